#include "Failure.h"
#include "Session.h"
#include "Words.h"
#include "commands/Commands.h"

using namespace quorvel;

namespace quorvelctl
{

namespace
{

QString routerModeName(TelvoraCpeRouterMode mode)
{
    switch (mode) {
    case TelvoraCpeRouterModeRouter:
        return word("router");
    case TelvoraCpeRouterModeAp:
        return word("access point");
    default:
        return word("unknown");
    }
}

/// The gateway's functions, with the version of each; empty for what it lacks.
Record featuresOf(const AspCpeProperties& found)
{
    return {plainField("xml", "Dialect", found.xmlVersion),
            plainField("general", "General settings", found.generalSettingsVersion),
            plainField("adsl", "DSL", found.adslVersion),
            plainField("ethernet", "Ethernet WAN", found.ethernetVersion),
            plainField("wan", "WAN objects", found.wanVersion),
            plainField("wireless", "Wireless", found.wirelessVersion),
            plainField("voip", "Telephony", found.voipVersion),
            plainField("3g", "3G modem", found.threeGVersion),
            plainField("usbhost", "USB host", found.usbHostVersion),
            plainField("pptp", "PPTP tunnels", found.pptpVersion),
            plainField("l2tp", "L2TP tunnels", found.l2tpVersion),
            plainField("warranty", "Warranty record", found.warrantyVersion)};
}

QJsonArray functionsOf(const AspCpeProperties& found)
{
    QJsonArray names;
    for (const Field& feature : featuresOf(found).mid(1)) {
        if (!feature.value.toString().isEmpty())
            names.append(feature.key);
    }
    return names;
}

/// One text that the general settings know.
QJsonValue identity(Gateway& gateway, const char* what,
                    QString (AspGeneralSettingsFacade::*getter)(AspWebAppErrorCodes&))
{
    return gateway.ask(word("read the ") + word(what), [&](AspWebAppErrorCodes& error) {
        return (gateway.general().*getter)(error);
    });
}

void info(Session& session)
{
    Gateway& gateway = session.gateway();
    using Facade = AspGeneralSettingsFacade;
    const auto mode = gateway.ask(word("read the router mode"), [&](AspWebAppErrorCodes& error) {
        return gateway.general().getRouterMode(error);
    });
    const auto defaultGw =
        gateway.ask(word("read the default gateway"), [&](AspWebAppErrorCodes& error) {
            return gateway.general().getDefaultGw(word("route-0"), error);
        });
    session.output().print(
        {plainField("model", "Model", identity(gateway, "model name", &Facade::getModelName)),
         plainField("serialNumber", "Serial number",
                    identity(gateway, "serial number", &Facade::getSerialNumber)),
         plainField("firmware", "Firmware",
                    identity(gateway, "firmware version", &Facade::getFirmwareVersion)),
         plainField("ethMac", "Ethernet MAC",
                    identity(gateway, "Ethernet MAC address", &Facade::getEthMacAddress)),
         plainField("dslMac", "DSL MAC",
                    identity(gateway, "DSL MAC address", &Facade::getDslMacAddress)),
         plainField("wlanMac", "Wireless MAC",
                    identity(gateway, "wireless MAC address", &Facade::getWlanMacAddress)),
         plainField("routerMode", "Router mode", routerModeName(mode)),
         plainField("defaultGateway", "Default gateway", defaultGw),
         plainField("functions", "Functions", functionsOf(gateway.object().getCpeProperties()))});
}

void features(Session& session)
{
    session.output().print(featuresOf(session.gateway().object().getCpeProperties()));
}

void probe(Session& session)
{
    const QString address = session.options.address();
    const bool available = AspCpeFacadeObject::isDeviceAvailable(address);
    if (!available)
        throw Failure{NotReachable, QStringLiteral("%1 doesn't answer").arg(address)};
    session.output().print(
        {plainField("address", "Address", address), plainField("available", "Answers", true)});
}

void clients(Session& session)
{
    Gateway& gateway = session.gateway();
    const auto reserved = gateway.ask(word("list the clients"), [&](AspWebAppErrorCodes& error) {
        return gateway.general().getStaticClientList(error);
    });
    const auto leased = gateway.ask(word("list the leases"), [&](AspWebAppErrorCodes& error) {
        return gateway.general().getDynamicClientList(error);
    });
    QList<Record> records;
    const auto append = [&](const QList<AspDhcpsClient>& list, const char* kind) {
        for (const AspDhcpsClient& client : list)
            records.append({plainField("mac", "MAC", client.mac), plainField("ip", "IP", client.ip),
                            plainField("hostname", "Name", client.hostname),
                            plainField("kind", "Address is", word(kind))});
    };
    append(reserved, "reserved");
    append(leased, "leased");
    session.output().print(records, word("No clients."));
}

void managers(Session& session)
{
    Gateway& gateway = session.gateway();
    const auto names = gateway.askNames(word("list the managers"), [&](AspWebAppErrorCodes& error) {
        return gateway.general().getManagerList(error);
    });
    QList<Record> records;
    for (const QString& name : names)
        records.append({plainField("manager", "Manager", name)});
    session.output().print(records, word("No managers."));
}

/// Adds what the gateway tells of itself for hosts to heed, if it does.
template <typename Call>
void appendHint(Record& hints, Gateway& gateway, const char* key, const char* heading, Call call)
{
    const auto hint = gateway.askIfTold(word("read the hints"), call);
    if (hint)
        hints.append(plainField(key, heading, *hint));
}

void hints(Session& session)
{
    Gateway& gateway = session.gateway();
    AspGeneralSettingsFacade& general = gateway.general();
    Record hints;
    appendHint(hints, gateway, "rebootRequired", "Restart is due",
               [&](auto& error) { return general.isRebootRequired(error); });
    appendHint(hints, gateway, "rebootDurationMs", "Restart takes about (ms)",
               [&](auto& error) { return general.getRebootDuration(error); });
    appendHint(hints, gateway, "fwUpgradeDurationMs", "Upgrade takes about (ms)",
               [&](auto& error) { return general.getFwUpgradeDuration(error); });
    if (const auto internet = gateway.object().getAdslSettingsFacade())
        appendHint(hints, gateway, "usernameExtension", "User names end with",
                   [&](auto& error) { return internet->getUsernameExtension(error); });
    session.output().print(hints);
}

void showSession(Session& session)
{
    Gateway& gateway = session.gateway();
    const auto current = [&] { return gateway.general().getCurrentSessionId(); };
    QString id = current();
    const auto isValid = [&] {
        return gateway.ask(word("check the session"), [&](AspWebAppErrorCodes& error) {
            return gateway.general().checkSession(id, error);
        });
    };
    bool valid = isValid();
    // An expired session is renewed by the question itself, which is about the old one then.
    if (id != current()) {
        id = current();
        valid = isValid();
    }
    session.output().print(
        {secretField(word("session"), word("Session"), id), plainField("valid", "Valid", valid)});
}

} // namespace

void addIdentityCommands(commandline::Command program, Session& session)
{
    const struct {
        const char* name;
        const char* help;
        void (*run)(Session&);
    } commands[] = {
        {"info", "Show what the gateway is: identity, functions, router mode, default gateway",
         info},
        {"features", "Show the gateway's functions and their versions", features},
        {"hints", "Show how long a restart and an upgrade take, and what else is good to know",
         hints},
        {"probe", "Test whether something answers at the address, without a login", probe},
        {"clients", "List the clients of the gateway's DHCP server", clients},
        {"managers", "List the managers that run on the gateway", managers},
        {"session", "Show the session and whether the gateway takes it for valid", showSession}};
    for (const auto& command : commands)
        program.addCommand(command.name, command.help).callback([&session, run = command.run] {
            run(session);
        });
}

} // namespace quorvelctl
