#include "commands/InternetWriting.h"

#include "Connection.h"
#include "DryRun.h"
#include "Failure.h"
#include "Numbers.h"
#include "Session.h"
#include "Wans.h"

#include <QStringList>
#include <algorithm>
#include <map>
#include <memory>
#include <string>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

/// A flag with which a write sends the static addresses too.
const struct StaticFlag {
    const char* name;
    int part; ///< only connections that have it look at the flag
    bool& (*in)(AspAdslSettings& settings);
} staticFlags[] = {
    {"russian-pppox-use-static", PppType,
     [](AspAdslSettings& s) -> bool& { return s.russianPppoxSettings.useStatic; }},
    {"vpn-use-static", Vpn, [](AspAdslSettings& s) -> bool& { return s.vpnSettings.useStatic; }},
    {"l2tp-use-static", L2tp,
     [](AspAdslSettings& s) -> bool& { return s.l2tpSettings.useStatic; }}};

/// A connection as the command line gives it.
struct Given {
    Medium medium;
    std::string wan;
    std::string linkType;
    std::map<std::string, std::string> texts; ///< by option; only those that are named
    std::map<std::string, SecretSource> secrets;
    std::map<std::string, bool> flags;
    bool dryRun = false;
};

QString option(const std::string& name)
{
    return QLatin1String("--") + QString::fromStdString(name);
}

/// The parts that the write sends, static addresses included if they are asked for.
int writtenParts(const Given& given)
{
    int parts = findLinkType(QString::fromStdString(given.linkType))->written(given.medium);
    for (const StaticFlag& flag : staticFlags) {
        if (parts & flag.part && given.flags.at(flag.name))
            parts |= Addresses;
    }
    return parts;
}

/// Refuses an option that the write would silently leave aside, or not take empty.
void expectEffect(const Given& given, int parts)
{
    const auto refuse = [&](const std::string& name) {
        throw Failure{WrongUsage, QStringLiteral("%1 has no effect on this %2 connection")
                                      .arg(option(name), QString::fromStdString(given.linkType))};
    };
    for (const ConnectionText& text : connectionTexts()) {
        const auto source = given.secrets.find(text.name);
        const bool named = given.texts.count(text.name) != 0 ||
                           (source != given.secrets.end() && source->second.isGivenByOption());
        if (named && !(text.part & parts))
            refuse(text.name);
    }
    for (const StaticFlag& flag : staticFlags) {
        if (given.flags.at(flag.name) && !(flag.part & parts))
            refuse(flag.name);
    }
}

/// Refuses what a write needs and hasn't got. `complete` is whether the gateway's own texts are
/// there already; if not, only what is named and empty is refused.
void expectNeeded(const Given& given, int parts, Connection& connection, bool complete)
{
    for (const ConnectionText& text : connectionTexts()) {
        const bool judged = complete || given.texts.count(text.name) != 0;
        if (judged && text.use == Use::Needed && text.part & parts && text.in(connection).isEmpty())
            throw Failure{WrongUsage,
                          QStringLiteral("no %1: give %2")
                              .arg(QString::fromLatin1(text.meaning), option(text.name))};
    }
}

void takeTexts(const Given& given, Connection& connection)
{
    for (const ConnectionText& text : connectionTexts()) {
        const auto named = given.texts.find(text.name);
        if (named != given.texts.end())
            text.in(connection) = QString::fromStdString(named->second);
    }
}

/// The secrets that are given for the parts that are written, by option. They are read before the
/// gateway is asked anything.
std::map<std::string, QString> readSecrets(Session& session, const Given& given, int parts)
{
    std::map<std::string, QString> secrets;
    for (const ConnectionText& text : connectionTexts()) {
        if (text.use == Use::Secret && text.part & parts && given.secrets.at(text.name).isGiven())
            secrets[text.name] = session.readSecret(given.secrets.at(text.name));
    }
    return secrets;
}

/// Puts the given secrets in place; one that neither is given nor kept by the gateway is missed.
void takeSecrets(const Given& given, int parts, const std::map<std::string, QString>& secrets,
                 Connection& connection)
{
    for (const ConnectionText& text : connectionTexts()) {
        if (text.use != Use::Secret || !(text.part & parts))
            continue;
        const auto secret = secrets.find(text.name);
        if (secret != secrets.end())
            text.in(connection) = secret->second;
        else if (text.in(connection).isEmpty())
            given.secrets.at(text.name).read();
    }
}

/// Refuses a WAN that runs over another medium, a modem included.
void expectMedium(const AspWanDetails& details, const Given& given)
{
    const bool dsl = given.medium == Medium::Dsl;
    const QStringList others{QLatin1String(dsl ? "eth" : "dsl"), QStringLiteral("serial")};
    if (others.contains(details.connectionType, Qt::CaseInsensitive))
        throw Failure{GatewayFailed, QStringLiteral("%1 is no WAN over %2")
                                         .arg(QString::fromStdString(given.wan),
                                              QLatin1String(dsl ? "DSL" : "Ethernet"))};
}

void takeAnnex(const Given& given, Connection& connection)
{
    AspAdslSettings& settings = connection.settings;
    settings.supportedAnnexMode = annexNamed(connection.supportedAnnexMode);
    settings.currentAnnexMode = annexNamed(connection.currentAnnexMode);
    if (given.texts.count("current-annex-mode") != 0 && settings.supportedAnnexMode != AspAnnexAB)
        throw Failure{
            GatewayFailed,
            QStringLiteral("%1 leaves no choice of the annex").arg(connection.dslInstance)};
}

/// The whole connection to write: what isn't given is what the gateway has.
Connection completed(Gateway& gateway, const Given& given, AspAdslSettingsFacade& facade)
{
    const QString wan = QString::fromStdString(given.wan);
    const int parts = writtenParts(given);
    Wans wans(gateway);
    wans.expect({wan});
    Connection connection;
    connection.wan = wans.details(wan);
    expectMedium(connection.wan, given);
    takeTexts(given, connection);
    nameEntities(connection, parts, gateway);
    readConnection(connection, parts, false, gateway, facade);
    takeTexts(given, connection);
    expectNeeded(given, parts, connection, true);
    takeAnnex(given, connection);
    connection.settings.linkType = QString::fromStdString(given.linkType);
    for (const StaticFlag& flag : staticFlags)
        flag.in(connection.settings) = given.flags.at(flag.name);
    return connection;
}

bool write(AspAdslSettingsFacade& facade, const Given& given, const Connection& connection,
           AspWebAppErrorCodes& error)
{
    const QString wan = QString::fromStdString(given.wan);
    if (given.medium == Medium::Dsl)
        return facade.setAdslSettings(wan, connection.dslInstance, connection.settings, error);
    return facade.setEthSettings(wan, connection.settings, error);
}

void send(Session& session, const Given& given, AspAdslSettingsFacade& facade,
          const Connection& connection)
{
    session.gateway().demand(QLatin1String("write the connection of ") +
                                 QString::fromStdString(given.wan),
                             [&](auto& error) { return write(facade, given, connection, error); });
}

/// Prints what the write would send.
void rehearse(Session& session, const Given& given, const Connection& connection)
{
    QStringList requests;
    const auto rehearsal = session.gateway().object().rehearse(
        [&](const QString& request) { requests.append(request); });
    send(session, given, *rehearsal->getAdslSettingsFacade(), connection);
    session.output().print(commandsOf(requests), QStringLiteral("No commands."));
}

void run(Session& session, const Given& given)
{
    const int parts = writtenParts(given);
    expectEffect(given, parts);
    Connection named;
    takeTexts(given, named);
    expectNeeded(given, parts, named, false);
    const auto secrets = readSecrets(session, given, parts);

    Gateway& gateway = session.gateway();
    const auto facade = gateway.object().getAdslSettingsFacade();
    gateway.require(facade, QStringLiteral("internet connections"));
    Connection connection = completed(gateway, given, *facade);
    takeSecrets(given, parts, secrets, connection);
    if (given.dryRun) {
        rehearse(session, given, connection);
        return;
    }
    send(session, given, *facade, connection);
    const QString outcome = connection.wan.enabled
                                ? QStringLiteral("The connection of %1 is stored and in effect.")
                                : QStringLiteral("The connection of %1 is stored, but %1 is off.");
    session.output().printDone(outcome.arg(QString::fromStdString(given.wan)));
}

/// Takes the empty text too, which clears what the gateway has.
std::string refuseUnlessAddress(const std::string& text)
{
    const QStringList parts = QString::fromStdString(text).split(QLatin1Char('.'));
    const bool isAddress = parts.size() == 4 &&
                           std::all_of(parts.cbegin(), parts.cend(),
                                       [](const QString& part) { return isNumberUpTo(part, 255); });
    return text.empty() || isAddress ? std::string()
                                     : "an address is four numbers, as 192.0.2.1, and not " + text;
}

/// The same for the number of a VLAN or of a circuit, none of which is larger.
std::string refuseUnlessNumber(const std::string& text)
{
    return text.empty() || isNumberUpTo(QString::fromStdString(text), 65535)
               ? std::string()
               : "no number of a VLAN or a circuit: " + text;
}

void addText(commandline::Command command, const ConnectionText& text, Given& given)
{
    auto added = command.addOption(
        "--" + std::string(text.name),
        [&given, name = std::string(text.name)](const std::string& value) {
            given.texts[name] = value;
        },
        heading(text).toStdString());
    if (text.form == Form::Address)
        added.check(refuseUnlessAddress, "ADDRESS");
    else if (text.form == Form::Number)
        added.check(refuseUnlessNumber, "NUMBER");
    else if (text.form == Form::Annex)
        added.oneOf({"a", "b"});
    else if (text.form == Form::Annexes)
        added.oneOf({"a", "b", "ab"});
}

void addSecret(commandline::Command command, const ConnectionText& text, Given& given)
{
    std::string variable = "QUORVELCTL_";
    for (const char* character = text.name; *character; ++character)
        variable += *character == '-' ? '_' : static_cast<char>(std::toupper(*character));
    given.secrets[text.name].addTo(command, text.name, variable, text.meaning);
}

/// Adds options for the texts and flags that some link type sends over the medium.
void addOptions(commandline::Command command, Given& given)
{
    int known = 0;
    for (const std::string& name : linkTypesOver(given.medium)) {
        const LinkType& type = *findLinkType(QString::fromStdString(name));
        known |= type.written(given.medium) | (type.parts & Addresses);
    }
    for (const ConnectionText& text : connectionTexts()) {
        if (!(text.part & known) || text.use == Use::Shown)
            continue;
        if (text.use == Use::Secret)
            addSecret(command, text, given);
        else
            addText(command, text, given);
    }
    for (const StaticFlag& flag : staticFlags) {
        bool& value = given.flags[flag.name];
        if (flag.part & known)
            command.addFlag("--" + std::string(flag.name), value, "Write static addresses too");
    }
}

} // namespace

void addInternetWriting(commandline::Command group, Session& session)
{
    const struct {
        const char* name;
        const char* help;
        Medium medium;
    } commands[] = {
        {"set-dsl",
         "Write the connection of a WAN over DSL; what isn't named stays as the gateway has it",
         Medium::Dsl},
        {"set-eth",
         "Write the connection of a WAN over Ethernet; what isn't named stays as the gateway has "
         "it",
         Medium::Ethernet}};
    for (const auto& row : commands) {
        auto command = group.addCommand(row.name, row.help);
        const auto given = std::make_shared<Given>();
        given->medium = row.medium;
        command.addOption("wan", given->wan, "WAN, as wan-0").required();
        command.addOption("--link-type", given->linkType, "Link type")
            .required()
            .oneOf(linkTypesOver(row.medium));
        addOptions(command, *given);
        command.addFlag("--dry-run", given->dryRun,
                        "Print the commands that would be sent, and write nothing");
        command.callback([&session, given] { run(session, *given); });
    }
}

} // namespace quorvelctl
