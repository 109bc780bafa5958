#include "commands/WanChanges.h"

#include "Failure.h"
#include "Session.h"
#include "Wans.h"
#include "Words.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

using Facade = AspWanSettingsFacade;

/// What the commands with names behind them are given.
struct Names {
    std::string wan;
    std::string other; ///< an entity type, an interface
};

/// Switches a WAN on or off.
struct Toggle {
    const char* name;
    const char* help;
    const char* what;
    const char* outcome;
    bool (Facade::*operation)(const QString& wan, AspWebAppErrorCodes& error);
};

void toggle(Session& session, const Toggle& row, const QString& wan)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    wans.expect({wan});
    gateway.demand(word(row.what).arg(wan),
                   [&](auto& error) { return (wans.facade().*row.operation)(wan, error); });
    session.output().printDone(word(row.outcome).arg(wan));
}

/// The first of some names that isn't among others; empty if all are.
QString firstOther(const QStringList& names, const QStringList& others)
{
    for (const QString& name : names) {
        if (!others.contains(name))
            return name;
    }
    return QString();
}

void addEntity(Session& session, const QString& wan, const QString& type)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    wans.expect({wan});
    const QStringList before = gateway.instancesOf(type);
    QString created;
    try {
        // It logs its success as an error.
        gateway.order(word("add a %1 entity to %2").arg(type, wan), [&](auto& error) {
            return created = wans.facade().addEntity(wan, type, error);
        });
    } catch (Failure& failure) {
        if (!created.isEmpty())
            failure.message += word(" (%1 is created, but not added)").arg(created);
        throw;
    }
    // A session that has to be renewed between creating and adding takes the name with it.
    if (created.isEmpty())
        created = firstOther(gateway.instancesOf(type), before);
    if (created.isEmpty())
        throw Failure{GatewayFailed,
                      word("can't add a %1 entity to %2: the gateway created none").arg(type, wan)};
    session.output().print(
        {plainField("wan", "WAN", wan), plainField("entity", "Created and added", created)});
}

/// The entity of a type that a WAN has; empty if it has none, and nothing for types of which it
/// doesn't tell.
std::optional<QString> entityOf(const AspWanDetails& details, const QString& type)
{
    const struct {
        const char* type;
        QString instance;
    } entities[] = {{"pvc", details.pvcInstance},          {"rfc2684", details.rfc2684Instance},
                    {"pppox", details.pppoxInstance},      {"static", details.staticInstance},
                    {"wan_vlan", details.wanVlanInstance}, {"dhcpc", details.dhcpcInstance},
                    {"vpn", details.vpnInstances.value(0)}};
    for (const auto& entity : entities) {
        if (type == QLatin1String(entity.type))
            return entity.instance;
    }
    return std::nullopt;
}

void deleteEntity(Session& session, const QString& wan, const QString& type)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    wans.expect({wan});
    const auto entity = entityOf(wans.details(wan), type);
    // The gateway would be asked to delete an entity without a name.
    if (entity && entity->isEmpty())
        throw Failure{GatewayFailed, word("%1 has no %2 entity").arg(wan, type)};
    const QString what = word("delete the %1 entity of %2").arg(type, wan);
    gateway.demand(what, [&](auto& error) { return wans.facade().deleteEntity(wan, type, error); });
    // No error tells of it if the gateway refused to tell the library what to delete.
    if (entity && entity == entityOf(wans.details(wan), type))
        throw Failure{GatewayFailed, word("can't %1: the gateway didn't do it").arg(what)};
    session.output().printDone(word("The %1 entity of %2 is deleted.").arg(type, wan));
}

void addIface(Session& session, const QString& wan, const QString& iface)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    wans.expect({wan});
    gateway.demand(word("add %1 to %2").arg(iface, wan), [&](auto& error) {
        return wans.facade().addIface(wan, iface, error) == QString(QChar(1));
    });
    session.output().printDone(word("%1 is added to %2.").arg(iface, wan));
}

void deleteIface(Session& session, const QString& wan, const QString& iface)
{
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    wans.expect({wan});
    gateway.demand(word("take %1 from %2").arg(iface, wan),
                   [&](auto& error) { return wans.facade().deleteIface(wan, iface, error); });
    session.output().printDone(word("%1 is taken from %2.").arg(iface, wan));
}

struct Switch {
    std::string defaultGw;
    std::vector<std::string> enable;
    std::vector<std::string> disable;
};

QStringList textsOf(const std::vector<std::string>& words)
{
    QStringList texts;
    for (const std::string& word : words)
        texts.append(QString::fromStdString(word));
    return texts;
}

void switchConnection(Session& session, const Switch& given)
{
    const QString defaultGw = QString::fromStdString(given.defaultGw);
    const QStringList enable = textsOf(given.enable);
    const QStringList disable = textsOf(given.disable);
    for (const QString& wan : enable) {
        if (disable.contains(wan))
            throw Failure{WrongUsage, word("%1 is to be both enabled and disabled").arg(wan)};
    }
    Gateway& gateway = session.gateway();
    Wans wans(gateway);
    wans.expect(QStringList(defaultGw) + enable + disable);
    gateway.demand(word("switch to %1").arg(defaultGw), [&](auto& error) {
        return wans.facade().switchConnectionType(enable, disable, defaultGw, error);
    });
    session.output().printDone(
        word("%1 is the default gateway until the gateway restarts.").arg(defaultGw));
}

void addToggles(commandline::Command group, Session& session)
{
    static const Toggle toggles[] = {
        {"enable", "Switch a WAN on", "enable %1", "%1 is enabled.", &Facade::enableWan},
        {"disable", "Switch a WAN off", "disable %1", "%1 is disabled.", &Facade::disableWan}};
    for (const Toggle& row : toggles) {
        auto command = group.addCommand(row.name, row.help);
        const auto wan = std::make_shared<std::string>();
        command.addOption("wan", *wan, "WAN, as wan-0").required();
        command.callback(
            [&session, &row, wan] { toggle(session, row, QString::fromStdString(*wan)); });
    }
}

void addChanges(commandline::Command group, Session& session)
{
    const struct {
        const char* name;
        const char* help;
        const char* argument;
        const char* meaning;
        void (*run)(Session&, const QString& wan, const QString& other);
    } changes[] = {
        {"add-entity", "Create an entity and add it to a WAN", "type",
         "Type of the entity, as pppox", addEntity},
        {"delete-entity", "Delete the entity of a type that a WAN has", "type",
         "Type of the entity, as pppox", deleteEntity},
        {"add-iface", "Add an interface to a WAN", "iface", "Name of the interface", addIface},
        {"delete-iface", "Take an interface from a WAN", "iface", "Name of the interface",
         deleteIface}};
    for (const auto& row : changes) {
        auto command = group.addCommand(row.name, row.help);
        const auto names = std::make_shared<Names>();
        command.addOption("wan", names->wan, "WAN, as wan-0").required();
        command.addOption(row.argument, names->other, row.meaning).required();
        command.callback([&session, names, argument = row.argument, run = row.run] {
            if (names->other.empty())
                throw Failure{WrongUsage, word("the %1 is empty").arg(word(argument))};
            run(session, QString::fromStdString(names->wan), QString::fromStdString(names->other));
        });
    }
}

void addSwitch(commandline::Command group, Session& session)
{
    auto command =
        group.addCommand("switch", "Make a WAN the default gateway, until the gateway restarts");
    const auto given = std::make_shared<Switch>();
    command.addOption("wan", given->defaultGw, "WAN, as wan-0").required();
    const auto addWans = [&](const char* name, std::vector<std::string>& wans, const char* help) {
        command.addOption(name, wans, help).oneAtATime().separator(',');
    };
    addWans("--enable", given->enable, "WANs to switch on, separated by commas");
    addWans("--disable", given->disable, "WANs to switch off, separated by commas");
    command.callback([&session, given] { switchConnection(session, *given); });
}

} // namespace

void addWanChanges(commandline::Command group, Session& session)
{
    addToggles(group, session);
    addSwitch(group, session);
    addChanges(group, session);
}

} // namespace quorvelctl
