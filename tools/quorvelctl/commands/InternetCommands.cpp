#include "Connection.h"
#include "Failure.h"
#include "Session.h"
#include "Wans.h"
#include "Words.h"
#include "commands/Commands.h"
#include "commands/InternetWriting.h"

#include <memory>
#include <string>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

const int everyPart = Ppp | PppType | Line | Vlan | DhcpClient | Vpn | L2tp | Addresses;

/// What there is to show of a WAN: what belongs to its link type and to its medium.
int partsOf(const AspWanDetails& details)
{
    const LinkType* type = findLinkType(details.linkType);
    int parts = type ? type->parts : 0;
    if (details.connectionType.compare(QLatin1String("dsl"), Qt::CaseInsensitive) == 0)
        parts |= Line;
    if (details.connectionType.compare(QLatin1String("eth"), Qt::CaseInsensitive) == 0)
        parts |= Vlan;
    return parts;
}

QString wanToShow(Wans& wans, const QString& given)
{
    if (!given.isEmpty()) {
        wans.expect({given});
        return given;
    }
    const QString wan = wans.defaultWan();
    if (wan.isEmpty())
        throw Failure{WrongUsage, word("the gateway has no default WAN: name one")};
    return wan;
}

void show(Session& session, const QString& given, bool all)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    const QString wan = wanToShow(wans, given);
    Connection connection;
    connection.wan = wans.details(wan);
    const AspWanDetails& details = connection.wan;
    int parts = all ? everyPart : partsOf(details);
    if (!gateway.object().hasDsl())
        parts &= ~Line;
    const auto facade = gateway.object().getAdslSettingsFacade();
    nameEntities(connection, parts, gateway);
    readConnection(connection, parts, true, gateway,
                   gateway.require(facade, word("internet connections")));
    Record record = stateOf(wan, details);
    for (const ConnectionText& text : connectionTexts()) {
        if (text.part & parts)
            record.append(
                {jsonKey(text), heading(text), text.in(connection), text.use == Use::Secret});
    }
    session.output().print(record);
}

} // namespace

void addInternetCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("internet", "Show or write an internet connection");
    auto command = group.addCommand("show", "Show the internet connection of a WAN");
    const auto wan = std::make_shared<std::string>();
    const auto all = std::make_shared<bool>(false);
    command.addOption("wan", *wan, "WAN, as wan-0; without it the default WAN");
    command.addFlag("--all", *all, "Also what the link type doesn't use");
    command.callback([&session, wan, all] { show(session, QString::fromStdString(*wan), *all); });
    addInternetWriting(group, session);
}

} // namespace quorvelctl
