#include "Session.h"
#include "Wans.h"
#include "Words.h"
#include "commands/Commands.h"
#include "commands/WanChanges.h"

#include <memory>
#include <string>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

using Facade = AspWanSettingsFacade;

QString defaultGateway(Gateway& gateway, Wans& wans,
                       QString (Facade::*getter)(const QString&, AspWebAppErrorCodes&))
{
    return gateway.ask(word("read the default gateway"), [&](auto& error) {
        return (wans.facade().*getter)(routeInstance(), error);
    });
}

void list(Session& session)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    const QStringList names = wans.names();
    const QString inUse = defaultGateway(gateway, wans, &Facade::getDefaultGwStatus);
    QList<Record> records;
    for (const QString& wan : names)
        records.append(stateOf(wan, wans.details(wan))
                       << plainField("defaultGateway", "Default gateway", wan == inUse));
    session.output().print(records, word("No WANs."));
}

void show(Session& session, const QString& wan)
{
    Wans wans(session.gateway());
    wans.expect({wan});
    const AspWanDetails details = wans.details(wan);
    const auto listed = [](const QList<QString>& texts) {
        return QJsonArray::fromStringList(texts);
    };
    session.output().print(
        stateOf(wan, details)
        << plainField("dslLinkTypes", "Link types over DSL", listed(details.dslLinkTypes))
        << plainField("ethLinkTypes", "Link types over Ethernet", listed(details.ethLinkTypes))
        << plainField("pppoxInstance", "PPP entity", details.pppoxInstance)
        << plainField("pvcInstance", "PVC entity", details.pvcInstance)
        << plainField("rfc2684Instance", "RFC 2684 entity", details.rfc2684Instance)
        << plainField("wanVlanInstance", "VLAN entity", details.wanVlanInstance)
        << plainField("dhcpcInstance", "DHCP client entity", details.dhcpcInstance)
        << plainField("staticInstance", "Static address entity", details.staticInstance)
        << plainField("vpnInstances", "VPN entities", listed(details.vpnInstances)));
}

QString internetState(Gateway& gateway, Wans& wans)
{
    const QString what = word("read the state of the internet connection");
    auto state = gateway.ask(what, [&](auto& error) {
        return wans.facade().getInternetConnectionStatus(routeInstance(), error);
    });
    // Some gateways don't tell, but have a default WAN that is connected or isn't.
    if (state == AspGwInternetUnknown)
        state = gateway.ask(
            what, [&](auto& error) { return wans.facade().getInternetConnectionStatus2(error); });
    switch (state) {
    case AspGwInternetConnected:
        return word("connected");
    case AspGwInternetDisconnected:
        return word("disconnected");
    default:
        return word("unknown");
    }
}

void status(Session& session)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    const QString inUse = defaultGateway(gateway, wans, &Facade::getDefaultGwStatus);
    Record record{
        plainField("defaultWan", "Default WAN", wans.defaultWan()),
        plainField("aliasDefaultWan", "Alias default WAN",
                   defaultGateway(gateway, wans, &Facade::getAliasDefaultWan)),
        plainField("inUse", "In use", inUse),
        plainField("inUseByLinkState", "In use by link state",
                   defaultGateway(gateway, wans, &Facade::getDefaultGwStatusWithLinkState)),
        plainField("internet", "Internet", internetState(gateway, wans))};
    const struct {
        const char* key;
        const char* heading;
        bool exists;
        const char* instance;
        int (Facade::*getter)(const QString&, AspWebAppErrorCodes&);
    } links[] = {{"dslLink", "DSL link is up", gateway.object().hasDsl(), "dsl-0",
                  &Facade::getWanDslLinkStatus},
                 {"ethLink", "Ethernet link is up", gateway.object().hasEth(), "eth-0",
                  &Facade::getWanEthLinkStatus}};
    for (const auto& link : links) {
        if (!link.exists)
            continue;
        const QString instance = word(link.instance);
        const int up = gateway.ask(word("read the link state of ") + instance, [&](auto& error) {
            return (wans.facade().*link.getter)(instance, error);
        });
        record.append(plainField(link.key, link.heading, up == 1));
    }
    session.output().print(record);
}

void addReading(commandline::Command group, Session& session)
{
    group.addCommand("list", "List the WANs and how each is doing").callback([&session] {
        list(session);
    });
    group
        .addCommand("status", "Show the default gateway, the state of the internet connection "
                              "and the links")
        .callback([&session] { status(session); });
    auto command = group.addCommand("show", "Show what a WAN is made of");
    const auto wan = std::make_shared<std::string>();
    command.addOption("wan", *wan, "WAN, as wan-0").required();
    command.callback([&session, wan] { show(session, QString::fromStdString(*wan)); });
}

} // namespace

void addWanCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("wan", "Show or change the gateway's WANs");
    addReading(group, session);
    addWanChanges(group, session);
}

} // namespace quorvelctl
