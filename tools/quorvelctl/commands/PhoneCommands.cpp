#include "Failure.h"
#include "GainRanges.h"
#include "Numbers.h"
#include "commands/Commands.h"
#include "commands/Phone.h"

#include <algorithm>
#include <map>
#include <memory>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

const QString telephonyObject = QStringLiteral("voice-0");

bool isLine(const AspVoipAccount& account)
{
    return account.type == QLatin1String("line");
}

QString kindOf(const AspVoipAccount& account)
{
    return isLine(account) ? QStringLiteral("line") : QStringLiteral("analogue port");
}

Record accountRecord(const AspVoipAccount& account)
{
    const Record port{plainField("line", "Line", account.id),
                      plainField("kind", "Kind", kindOf(account))};
    const Record gains{plainField("transmitGain", "Transmit gain", account.transmitGain),
                       plainField("receiveGain", "Receive gain", account.receiveGain)};
    if (!isLine(account))
        return port + gains;
    return port +
           Record{plainField("enabled", "Enabled", account.enabled),
                  plainField("state", "State", account.voipStatus),
                  plainField("name", "Name", account.userName),
                  plainField("number", "Number", account.phoneNumber),
                  plainField("sipUser", "SIP user", account.uri),
                  plainField("domain", "Domain", account.userAgentDomain),
                  plainField("proxy", "Proxy server", account.proxyServer),
                  plainField("login", "Login", account.authUserName),
                  secretField(QStringLiteral("sipPassword"), QStringLiteral("SIP password"),
                              account.authPassword)} +
           gains;
}

bool isOlder(Gateway& gateway)
{
    return gateway.object().getCpeProperties().voipVersion == QLatin1String("1");
}

AspVoipSettings readTelephony(Gateway& gateway)
{
    const auto phone = telephony(gateway);
    AspVoipSettings settings = gateway.ask(QStringLiteral("read the accounts"), [&](auto& error) {
        return phone->getVoipAccounts(error);
    });
    QList<AspVoipAccount>& accounts = settings.accounts;
    // The library doesn't tell lines that it couldn't get from lines that there aren't.
    if (std::none_of(accounts.cbegin(), accounts.cend(), isLine) && !isOlder(gateway))
        throw Failure{GatewayFailed,
                      QStringLiteral("can't read the accounts: the gateway tells of no lines")};
    std::stable_sort(accounts.begin(), accounts.end(),
                     [](const auto& one, const auto& other) { return one.id < other.id; });
    return settings;
}

/// The account of a SIP line.
AspVoipAccount readLine(Gateway& gateway, const QString& line)
{
    const QList<AspVoipAccount> accounts = readLines(gateway);
    for (const AspVoipAccount& account : accounts) {
        if (account.id == line && isLine(account))
            return account;
    }
    throw Failure{GatewayFailed, QStringLiteral("%1 has no line %2").arg(gateway.address(), line)};
}

void showAccounts(Session& session, const GainRanges& ranges)
{
    ranges.apply();
    const AspVoipSettings settings = readTelephony(session.gateway());
    QList<Record> accounts;
    for (const AspVoipAccount& account : settings.accounts)
        accounts.append(accountRecord(account));
    session.output().print({plainField("enabled", "Telephony is on", settings.enabled)},
                           QStringLiteral("accounts"), accounts,
                           QStringLiteral("This gateway doesn't tell of its accounts."));
}

/// What `phone set` is to change; what isn't given stays.
struct AccountChange {
    std::string line;
    std::map<std::string, std::string> texts;
    bool enable = false;
    bool disable = false;
    SecretSource password;

    bool isEmpty() const { return texts.empty() && !enable && !disable && !password.isGiven(); }
};

const struct {
    const char* option;
    const char* help;
    QString AspVoipAccount::*text;
} accountTexts[] = {
    {"login", "Name for the login to the SIP server", &AspVoipAccount::authUserName},
    {"sip-user", "User part of the SIP address", &AspVoipAccount::uri},
    {"domain", "Domain of the SIP address; without it that of the account, or its proxy server",
     &AspVoipAccount::userAgentDomain}};

void check(const AccountChange& change)
{
    if (change.isEmpty())
        throw Failure{WrongUsage, QStringLiteral("name at least one thing to change")};
    const auto user = change.texts.find("sip-user");
    if (user != change.texts.end() && user->second.find_first_of("@:") != std::string::npos)
        throw Failure{WrongUsage,
                      QStringLiteral("the SIP user is what stands before the @ of the address")};
    if (user != change.texts.end() && user->second.empty())
        throw Failure{WrongUsage, QStringLiteral("the SIP user is empty")};
}

/// Fails if writing the account back would spoil what the library doesn't know of it.
void expectWritable(const AspVoipAccount& account, bool hasNewPassword)
{
    if (account.uri.isEmpty())
        throw Failure{GatewayFailed,
                      QStringLiteral("line %1 has no SIP user: give --sip-user").arg(account.id)};
    if (account.userAgentDomain.isEmpty() && account.proxyServer.isEmpty())
        throw Failure{GatewayFailed, QStringLiteral("line %1 has neither domain nor proxy server: "
                                                    "give --domain")
                                         .arg(account.id)};
    // The gateway may have a password and keep it to itself; an empty text would end it.
    if (account.authPassword.isEmpty() && !hasNewPassword)
        throw Failure{GatewayFailed,
                      QStringLiteral("the gateway doesn't tell the SIP password of line %1: give "
                                     "it anew, or an empty one")
                          .arg(account.id)};
}

void setAccount(Session& session, const AccountChange& change)
{
    check(change);
    const bool hasPassword = change.password.isGiven();
    const QString password = hasPassword ? session.readSecret(change.password) : QString();
    Gateway& gateway = session.gateway();
    // The gateway replaces the whole account, so what isn't named is written back as it is.
    AspVoipAccount account = readLine(gateway, QString::fromStdString(change.line));
    for (const auto& row : accountTexts) {
        const auto text = change.texts.find(row.option);
        if (text != change.texts.end())
            account.*row.text = QString::fromStdString(text->second);
    }
    expectWritable(account, hasPassword);
    if (hasPassword)
        account.authPassword = password;
    account.enabled = change.enable || (account.enabled && !change.disable);
    account.changed = true;
    const auto phone = telephony(gateway);
    gateway.demand(QStringLiteral("write the account"), [&](auto& error) {
        return phone->setVoipSettings(telephonyObject, account, error);
    });
    session.output().printDone(QStringLiteral("The account of line %1 is stored.").arg(account.id));
}

/// What `phone gains` is to show or change; empty for all ports, and for a gain that stays.
struct GainChange {
    std::string line;
    std::string transmit;
    std::string receive;
    GainRanges ranges;

    bool isEmpty() const { return transmit.empty() && receive.empty(); }
};

void showGains(Session& session, const GainChange& wanted)
{
    wanted.ranges.expectAny();
    QList<Record> records;
    bool told = false;
    const QList<AspVoipAccount> accounts = readLines(session.gateway());
    for (const AspVoipAccount& account : accounts) {
        if (!wanted.line.empty() && account.id.toStdString() != wanted.line)
            continue;
        told = told || !account.transmitGain.isEmpty() || !account.receiveGain.isEmpty();
        records.append({plainField("line", "Line", account.id),
                        plainField("kind", "Kind", kindOf(account)),
                        plainField("transmitGain", "Transmit", account.transmitGain),
                        plainField("receiveGain", "Receive", account.receiveGain)});
    }
    if (records.isEmpty())
        throw Failure{GatewayFailed,
                      QStringLiteral("%1 has no line %2")
                          .arg(session.gateway().address(), QString::fromStdString(wanted.line))};
    // The library doesn't tell gains that it couldn't get from those that there aren't.
    if (!told)
        throw Failure{GatewayFailed,
                      QStringLiteral("can't read the gains: the gateway tells of none, or their "
                                     "range isn't given")};
    session.output().print(records, QString());
}

void setGains(Session& session, const GainChange& change)
{
    if (change.line != "0" && change.line != "1")
        throw Failure{WrongUsage, QStringLiteral("gains can be changed of lines 0 and 1 only")};
    change.ranges.expectThatOfLines();
    Gateway& gateway = session.gateway();
    AspVoipAccount account = readLine(gateway, QString::fromStdString(change.line));
    account.transmitGain = QString::fromStdString(change.transmit);
    account.receiveGain = QString::fromStdString(change.receive);
    const auto phone = telephony(gateway);
    gateway.demand(QStringLiteral("write the gains"), [&](auto& error) {
        return phone->setGainSettings(telephonyObject, {account}, error);
    });
    session.output().printDone(QStringLiteral("The gains of line %1 are stored.").arg(account.id));
}

void gains(Session& session, const GainChange& change)
{
    change.ranges.apply();
    if (change.isEmpty())
        showGains(session, change);
    else
        setGains(session, change);
}

void addAccounts(commandline::Command group, Session& session)
{
    auto show = group.addCommand("accounts", "Show the lines with their accounts and gains");
    const auto ranges = std::make_shared<GainRanges>();
    ranges->addTo(show);
    show.callback([&session, ranges] { showAccounts(session, *ranges); });
}

void addSet(commandline::Command group, Session& session)
{
    auto write = group.addCommand("set", "Change the account of a line");
    const auto change = std::make_shared<AccountChange>();
    write.addOption("line", change->line, "Number of the line").required().valueName("NUMBER");
    for (const auto& row : accountTexts)
        write.addOption(
            std::string("--") + row.option,
            [change, name = std::string(row.option)](const std::string& text) {
                change->texts[name] = text;
            },
            row.help);
    auto enable = write.addFlag("--enable", change->enable, "Switch the line on");
    write.addFlag("--disable", change->disable, "Switch the line off").excludes(enable);
    change->password.addTo(write, "sip-password", "QUORVELCTL_SIP_PASSWORD", "SIP password");
    write.callback([&session, change] { setAccount(session, *change); });
}

std::string refuseUnlessPercentage(const std::string& text)
{
    return isNumberUpTo(QString::fromStdString(text), 100)
               ? std::string()
               : "a gain is a number from 0 to 100, and not " + text;
}

void addGains(commandline::Command group, Session& session)
{
    auto command = group.addCommand("gains", "Show the gains, or change those of a line");
    const auto change = std::make_shared<GainChange>();
    command.addOption("line", change->line, "Number of the line").valueName("NUMBER");
    command.addOption("--transmit", change->transmit, "Loudness towards the network, 0 to 100")
        .valueName("PERCENT")
        .check(refuseUnlessPercentage);
    command.addOption("--receive", change->receive, "Loudness towards the telephone, 0 to 100")
        .valueName("PERCENT")
        .check(refuseUnlessPercentage);
    change->ranges.addTo(command);
    command.callback([&session, change] { gains(session, *change); });
}

} // namespace

boost::shared_ptr<AspVoipSettingsFacade> telephony(Gateway& gateway)
{
    const auto facade = gateway.object().getVoipSettingsFacade();
    gateway.require(facade, QStringLiteral("telephony"));
    return facade;
}

void expectNewerTelephony(Gateway& gateway)
{
    telephony(gateway);
    if (isOlder(gateway))
        throw Failure{GatewayFailed, QStringLiteral("the telephony of %1 is of the older kind: its "
                                                    "accounts, gains and calls are out of reach")
                                         .arg(gateway.address())};
}

QList<AspVoipAccount> readLines(Gateway& gateway)
{
    expectNewerTelephony(gateway);
    return readTelephony(gateway).accounts;
}

void addPhoneCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("phone", "Show or change accounts and gains, list calls");
    addAccounts(group, session);
    addSet(group, session);
    addGains(group, session);
    addPhoneHistory(group, session);
}

} // namespace quorvelctl
