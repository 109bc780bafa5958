#include "commands/WifiCommands.h"

#include "Failure.h"
#include "Radios.h"
#include "Session.h"

#include <QRegularExpression>
#include <algorithm>
#include <functional>
#include <optional>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

/// What is to become of a radio; what isn't there stays as it is.
struct Change {
    std::string radio;
    QList<std::pair<QString AspWirelessSettings::*, QString>> texts;
    std::optional<AspWirelessStatus> status;
    std::optional<SecretSource> keySource;
    QString key;

    bool isEmpty() const { return texts.isEmpty() && !status && !keySource; }
    bool names(QString AspWirelessSettings::*field) const
    {
        return std::any_of(texts.begin(), texts.end(),
                           [&](const auto& text) { return text.first == field; });
    }
};

/// The changes in the order of the command line; options go to the last one.
using Changes = QList<Change>;

struct Write {
    Radio radio;
    AspWirelessSettings settings;
};

const char* const allRadios = "all";

[[noreturn]] void complain(const QString& complaint)
{
    throw Failure{WrongUsage, complaint};
}

std::string meaningOfKey(const Change& change)
{
    return change.radio.empty() ? "new key" : "new key of " + change.radio;
}

/// Complains of an option that repeats or contradicts another one for the same radio.
void expectFirst(bool isFirst, const char* what, const Change& change)
{
    if (!isFirst)
        complain(QStringLiteral("the %1 is given twice%2")
                     .arg(QLatin1String(what),
                          change.radio.empty()
                              ? QString()
                              : QStringLiteral(" for ") + QString::fromStdString(change.radio)));
}

void begin(Changes& changes, const std::string& radio)
{
    const bool first = changes.size() == 1 && changes.first().radio.empty();
    if (first && !changes.first().isEmpty())
        complain(QStringLiteral("options in front of the first --radio belong to no radio"));
    if (!first)
        changes.append(Change());
    changes.last().radio = radio;
}

bool isWepKeyIndex(const QString& text)
{
    return text.size() == 1 && text >= QLatin1String("1") && text <= QLatin1String("4");
}

void checkText(const Change& change)
{
    for (const auto& [field, text] : change.texts) {
        if (printable(text) != text)
            complain(QStringLiteral("no control characters can be written"));
        const int length = text.toUtf8().size();
        if (field == &AspWirelessSettings::ssid && (length == 0 || length > 32))
            complain(QStringLiteral("the name of a network has 1 to 32 bytes, not %1").arg(length));
        if (field == &AspWirelessSettings::wepKeyIndex && !isWepKeyIndex(text))
            complain(QStringLiteral("the WEP keys are 1 to 4, and not '%1'").arg(text));
    }
}

/// Reads the keys, in the order of the command line, and complains of what needs no gateway to be
/// known as wrong.
void prepare(Session& session, Changes& changes)
{
    for (Change& change : changes) {
        if (change.isEmpty())
            complain(QStringLiteral("name at least one thing to change%1")
                         .arg(change.radio.empty() ? QString()
                                                   : QStringLiteral(" at %1").arg(
                                                         QString::fromStdString(change.radio))));
        checkText(change);
        if (change.keySource)
            change.key = session.readSecret(*change.keySource);
    }
}

void checkMode(const Radio& radio, const QString& mode)
{
    radio.capabilities();
    QStringList modes = radio.securityModes(0);
    if (radio.isNewer())
        modes += radio.securityModes(1);
    modes.removeDuplicates();
    // A radio that doesn't tell its modes may have this one.
    if (!modes.isEmpty() && !modes.contains(mode))
        complain(QStringLiteral("%1 has no security mode '%2', but %3")
                     .arg(radio.name(), mode, modes.join(QStringLiteral(", "))));
}

void applyTexts(const Radio& radio, const Change& change, AspWirelessSettings& settings)
{
    for (const auto& [field, text] : change.texts) {
        if (field == &AspWirelessSettings::securityMode)
            checkMode(radio, text);
        else if (field != &AspWirelessSettings::ssid && radio.isNewer())
            complain(
                QStringLiteral("%1 takes a WEP key, and nothing else about WEP").arg(radio.name()));
        settings.*field = text;
    }
}

/// Where the key stands that goes with the security mode; null if none does.
QString* keyIn(AspWirelessSettings& settings)
{
    switch (protectionOf(settings.securityMode)) {
    case Protection::Wpa:
        return &settings.wpaPassword;
    case Protection::Wep:
        return &settings.wepKeys[0];
    default:
        return nullptr;
    }
}

bool isPassPhrase(const QString& key)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(?:[\\x20-\\x7e]{8,63}|[0-9A-Fa-f]{64})\\z"));
    return form.match(key).hasMatch();
}

/// A new WEP key is written as the first, where it would do nothing while another one is in use.
void expectFirstKeyInUse(const Radio& radio, const Change& change,
                         const AspWirelessSettings& settings)
{
    const int used = wepKeyInUse(settings);
    if (used != 0 && !change.names(&AspWirelessSettings::wepKeyIndex))
        complain(QStringLiteral("%1 uses WEP key %2, and only key 1 can be changed%3")
                     .arg(radio.name())
                     .arg(used + 1)
                     .arg(QLatin1String(radio.isNewer() ? "" : ": add --wep-key-index 1")));
}

void applyKey(const Radio& radio, const Change& change, AspWirelessSettings& settings)
{
    QString* const key = keyIn(settings);
    if (change.keySource && !key)
        complain(QStringLiteral("no key goes with the security mode '%1' of %2")
                     .arg(settings.securityMode, radio.name()));
    if (change.keySource && key == &settings.wpaPassword && !isPassPhrase(change.key))
        complain(QStringLiteral("the new key of %1 is neither 8 to 63 plain characters nor 64 "
                                "hexadecimal digits")
                     .arg(radio.name()));
    if (change.keySource && key == settings.wepKeys)
        expectFirstKeyInUse(radio, change, settings);
    if (change.keySource)
        *key = change.key;
    // A network that has none as it is, with a RADIUS server for instance, may stay so.
    if (key && key->isEmpty() &&
        (change.keySource || change.names(&AspWirelessSettings::securityMode)))
        complain(QStringLiteral("the security mode '%1' of %2 needs a key")
                     .arg(settings.securityMode, radio.name()));
}

AspWirelessStatus statusAfter(const Radio& radio, const Change& change)
{
    const AspWirelessStatus status = change.status ? *change.status : radio.status();
    if (status == AspWirelessStatusUnknown)
        complain(QStringLiteral("%1 doesn't tell whether it is on, and is switched on or off with "
                                "each change: add --on or --off")
                     .arg(radio.name()));
    return status;
}

/// The radio's settings as they are, with the change in them.
Write settle(const Radio& radio, const Change& change)
{
    // The library writes the first one's network, and an empty state, for any other.
    if (!radio.isNewer() && radio.name() != QLatin1String("wireless_core-0"))
        throw Failure{GatewayFailed,
                      QStringLiteral("can't write the settings of %1: of older radios only "
                                     "wireless_core-0 can be written")
                          .arg(radio.name())};
    AspWirelessSettings settings = radio.settings();
    applyTexts(radio, change, settings);
    applyKey(radio, change, settings);
    settings.status = statusAfter(radio, change);
    return {radio, settings};
}

QList<Write> settle(const Radios& radios, const Changes& changes)
{
    QList<Write> writes;
    for (const Change& change : changes) {
        const QList<Radio> chosen = change.radio == allRadios
                                        ? radios.named(std::string())
                                        : QList<Radio>{radios.one(change.radio)};
        for (const Radio& radio : chosen) {
            for (const Write& write : writes) {
                if (write.radio.name() == radio.name())
                    complain(QStringLiteral("%1 is named twice").arg(radio.name()));
            }
            writes.append(settle(radio, change));
        }
    }
    return writes;
}

bool writeTogether(const Radios& radios, const QList<Write>& writes, AspWebAppErrorCodes& error)
{
    QList<Radio> written;
    QList<AspWirelessSettings> settings;
    for (const Write& write : writes) {
        written.append(write.radio);
        settings.append(write.settings);
    }
    return radios.managerOf(written).setWirelessSettings(settings, error);
}

QString namesOf(const QList<Write>& writes)
{
    QStringList names;
    for (const Write& write : writes)
        names.append(write.radio.name());
    return names.join(QStringLiteral(", "));
}

void set(Session& session, Changes changes)
{
    prepare(session, changes);
    Gateway& gateway = session.gateway();
    const Radios radios(gateway);
    const QList<Write> writes = settle(radios, changes);
    const QString what = QStringLiteral("write the settings of %1").arg(namesOf(writes));
    const bool alone = writes.size() == 1 && !writes.first().radio.isNewer();
    if (!alone && gateway.object().getCpeProperties().xmlVersion == QLatin1String("1.0.0"))
        throw Failure{GatewayFailed, QStringLiteral("can't %1: the gateway's dialect 1.0.0 knows "
                                                    "only one older radio at a time")
                                         .arg(what)};
    // A radio that restarts may owe its reply, which costs an error line and is no failure.
    const bool done = gateway.order(what, [&](auto& error) {
        return alone ? writes.first().radio.write(writes.first().settings, error)
                     : writeTogether(radios, writes, error);
    });
    if (!done)
        throw Failure{GatewayFailed,
                      QStringLiteral("can't %1: the gateway didn't do it").arg(what)};
    session.output().printDone(
        QStringLiteral("The settings of %1 are written.").arg(namesOf(writes)));
}

/// Lets an option change the last of the changes while the command line is read, as its place
/// decides which radio it is for.
void addOption(commandline::Command command, const std::shared_ptr<Changes>& changes,
               const char* name, const char* value, const char* help,
               std::function<void(Change&, const std::string&)> take)
{
    command
        .addOption(
            name, [changes, take](const std::string& text) { take(changes->last(), text); }, help)
        .valueName(value)
        .inPlace();
}

void addFlag(commandline::Command command, const std::shared_ptr<Changes>& changes,
             const char* name, const char* help, std::function<void(Change&)> take)
{
    command
        .addFlag(
            name, [changes, take] { take(changes->last()); }, help)
        .inPlace();
}

/// An argument as text. What isn't UTF-8 would become another name than was meant.
QString textOf(const char* option, const std::string& argument)
{
    const QString text = QString::fromStdString(argument);
    if (text.toStdString() != argument)
        complain(QStringLiteral("what %1 names is no UTF-8").arg(QLatin1String(option)));
    return text;
}

void addTextOptions(commandline::Command command, const std::shared_ptr<Changes>& changes)
{
    const struct {
        const char* option;
        const char* value;
        const char* help;
        QString AspWirelessSettings::*text;
    } rows[] = {{"--ssid", "NAME", "New name of the network", &AspWirelessSettings::ssid},
                {"--security", "MODE", "New security mode, one that 'wifi security-modes' lists",
                 &AspWirelessSettings::securityMode},
                {"--wep-auth-type", "TYPE", "New WEP authentication type",
                 &AspWirelessSettings::wepAuthType},
                {"--wep-key-type", "TYPE", "New WEP key type", &AspWirelessSettings::wepKeyType},
                {"--wep-key-index", "NUMBER", "Which WEP key to use; a new key is always the first",
                 &AspWirelessSettings::wepKeyIndex}};
    for (const auto& row : rows)
        addOption(command, changes, row.option, row.value, row.help,
                  [row](Change& change, const std::string& text) {
                      expectFirst(!change.names(row.text), row.option + 2, change);
                      change.texts.append({row.text, textOf(row.option, text)});
                  });
}

void takeKey(Change& change, const SecretSource& source)
{
    expectFirst(!change.keySource, "key", change);
    change.keySource = source;
}

void takeStatus(Change& change, AspWirelessStatus status)
{
    expectFirst(!change.status, "state", change);
    change.status = status;
}

void addKeyOptions(commandline::Command command, const std::shared_ptr<Changes>& changes)
{
    addOption(command, changes, "--key-file", "FILE",
              "Read the new key from the first line of this file",
              [](Change& change, const std::string& path) {
                  takeKey(change, SecretSource::inFile(meaningOfKey(change), path));
              });
    addOption(command, changes, "--key-env", "VARIABLE",
              "Read the new key from this environment variable",
              [](Change& change, const std::string& variable) {
                  takeKey(change, SecretSource::inVariable(meaningOfKey(change), variable));
              });
    addFlag(command, changes, "--key-stdin", "Read the new key from a line of standard input",
            [](Change& change) { takeKey(change, SecretSource::onStdin(meaningOfKey(change))); });
}

} // namespace

void addWifiSet(commandline::Command group, Session& session)
{
    auto command = group.addCommand(
        "set", "Change what is named of one or several radios, all in one request");
    command.addRemark("The options behind a --radio are for that radio. Each change also makes the "
                      "radio a registrar in WPS, and may end all connections over it.");
    const auto changes = std::make_shared<Changes>(Changes{Change()});
    addOption(command, changes, "--radio", "RADIO",
              "The radio that the options behind it are for, or 'all'; not needed if there is only "
              "one",
              [changes](Change&, const std::string& radio) { begin(*changes, radio); });
    addTextOptions(command, changes);
    addKeyOptions(command, changes);
    addFlag(command, changes, "--on", "Switch the radio on",
            [](Change& change) { takeStatus(change, AspWirelessEnabled); });
    addFlag(command, changes, "--off", "Switch the radio off",
            [](Change& change) { takeStatus(change, AspWirelessDisabled); });
    command.callback([&session, changes] { set(session, *changes); });
}

} // namespace quorvelctl
