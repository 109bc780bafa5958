#include "commands/WifiCommands.h"

#include "Failure.h"
#include "Radios.h"
#include "Session.h"
#include "commands/Commands.h"

#include <iostream>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

QString word(const char* text)
{
    return QString::fromLatin1(text);
}

Field nameOf(const Radio& radio)
{
    return plainField("radio", "Radio", radio.name());
}

Field generationOf(const Radio& radio)
{
    return plainField("generation", "Generation", word(radio.isNewer() ? "newer" : "older"));
}

Field stateOf(const Radio& radio)
{
    const AspWirelessStatus status = radio.status();
    return plainField("state", "State",
                      word(status == AspWirelessEnabled    ? "on"
                           : status == AspWirelessDisabled ? "off"
                                                           : "unknown"));
}

const struct {
    const char* key;
    const char* heading;
    QString AspWirelessSettings::*text;
    bool secret = false;
    bool olderOnly = false;
} details[] = {
    {"ssid", "Network", &AspWirelessSettings::ssid},
    {"security", "Security mode", &AspWirelessSettings::securityMode},
    {"band", "Band", &AspWirelessSettings::freq},
    {"wpaAuthType", "WPA authentication", &AspWirelessSettings::wpaAuthType},
    {"wpaPassword", "WPA pass phrase", &AspWirelessSettings::wpaPassword, true},
    {"wpaRekeyInterval", "WPA rekey interval", &AspWirelessSettings::wpaRekeyInterval, false, true},
    {"wpa2RsnPreauth", "WPA2 preauthentication", &AspWirelessSettings::wpa2RsnPreauth, false, true},
    {"radiusAddress", "RADIUS server", &AspWirelessSettings::wpaRadiusAddr, false, true},
    {"radiusPort", "RADIUS port", &AspWirelessSettings::wpaRadiusPort, false, true},
    {"radiusKey", "RADIUS shared secret", &AspWirelessSettings::wpaRadiusKey, true, true},
    {"radiusReauthPeriod", "RADIUS reauthentication",
     &AspWirelessSettings::wpaRadiusEapReauthPeriod, false, true},
    {"wepAuthType", "WEP authentication", &AspWirelessSettings::wepAuthType},
    {"wepKeyType", "WEP key type", &AspWirelessSettings::wepKeyType},
    {"wepKeyIndex", "WEP key in use", &AspWirelessSettings::wepKeyIndex}};

Record recordOf(const Radio& radio)
{
    const AspWirelessSettings settings = radio.settings();
    Record record{nameOf(radio), generationOf(radio), stateOf(radio)};
    for (const auto& detail : details) {
        if (!detail.olderOnly || !radio.isNewer())
            record.append(
                {word(detail.key), word(detail.heading), settings.*detail.text, detail.secret});
    }
    for (int i = 0; i < 4; ++i)
        record.append(secretField(QStringLiteral("wepKey%1").arg(i + 1),
                                  QStringLiteral("WEP key %1").arg(i + 1), settings.wepKeys[i]));
    record.append(plainField("securityProxy", "Security proxy",
                             radio.ask("read the security proxy of", [](auto& facade, auto& error) {
                                 return facade.isSecurityProxyEnabled(error);
                             })));
    return record;
}

void list(Session& session)
{
    QList<Record> records;
    for (const Radio& radio : Radios(session.gateway()).named(std::string())) {
        const AspWirelessSettings settings = radio.settings();
        records.append({nameOf(radio), generationOf(radio), stateOf(radio),
                        plainField("ssid", "Network", settings.ssid),
                        plainField("security", "Security mode", settings.securityMode),
                        plainField("band", "Band", settings.freq)});
    }
    session.output().print(records, QString());
}

void show(Session& session, const std::string& name)
{
    QList<Record> records;
    for (const Radio& radio : Radios(session.gateway()).named(name))
        records.append(recordOf(radio));
    session.output().printEach(records);
}

void clients(Session& session, const std::string& name)
{
    QList<Record> records;
    QStringList silent;
    const QList<Radio> radios = Radios(session.gateway()).named(name);
    for (const Radio& radio : radios) {
        if (radio.isNewer()) {
            silent.append(radio.name());
            continue;
        }
        const QStringList addresses =
            radio.ask("list the clients of", [](auto& facade, auto& error) {
                return facade.getWirelessClientMacList(error);
            });
        for (const QString& address : addresses)
            records.append({nameOf(radio), plainField("mac", "MAC", address)});
    }
    excuse(silent, radios.size(), "who is connected");
    session.output().print(records, word("No clients."));
}

void mesh(Session& session, const std::string& name)
{
    QList<Record> records;
    QStringList silent;
    const QList<Radio> radios = Radios(session.gateway()).named(name);
    for (const Radio& radio : radios) {
        // A newer radio's capabilities tell how many links it can have.
        if (radio.isNewer() && !radio.capabilities()) {
            silent.append(radio.name());
            continue;
        }
        const auto links = radio.ask("list the mesh links of", [](auto& facade, auto& error) {
            return facade.getWirelessMeshInstances(error);
        });
        for (const AspWirelessMeshInst& link : links)
            records.append({nameOf(radio), plainField("mac", "MAC", link.mac),
                            plainField("enabled", "Enabled", link.enabled)});
    }
    excuse(silent, radios.size(), "which mesh links there are");
    session.output().print(records, word("No mesh links."));
}

void securityModes(Session& session, const std::string& name)
{
    QList<Record> records;
    const auto append = [&](const Radio& radio, const char* band, int number) {
        records.append({nameOf(radio), plainField("band", "Band", word(band)),
                        plainField("securityModes", "Security modes",
                                   QJsonArray::fromStringList(radio.securityModes(number)))});
    };
    for (const Radio& radio : Radios(session.gateway()).named(name)) {
        radio.capabilities();
        append(radio, radio.isNewer() ? "2.4 GHz" : "any", 0);
        if (radio.isNewer())
            append(radio, "5 GHz", 1);
    }
    session.output().print(records, QString());
}

Record wpsOf(const Radio& radio)
{
    const auto status = radio.ask("read the state of WPS at", [](auto& facade, auto& error) {
        return facade.checkWpsEnabledStatus(error);
    });
    const auto role = radio.ask("read the part in WPS of",
                                [](auto& facade, auto& error) { return facade.getWpsRole(error); });
    return {nameOf(radio),
            plainField("wps", "WPS",
                       word(status == AspWpsEnabled    ? "on"
                            : status == AspWpsDisabled ? "off"
                                                       : "unknown")),
            plainField("role", "Role",
                       word(role == AspWpsRegistrar  ? "registrar"
                            : role == AspWpsEnrollee ? "enrollee"
                                                     : "unknown"))};
}

void switchWps(Session& session, const std::string& name, const QString& state)
{
    const Radio radio = Radios(session.gateway()).one(name);
    if (radio.isNewer())
        throw Failure{GatewayFailed,
                      QStringLiteral("WPS of %1 can't be switched: only that of older radios can")
                          .arg(radio.name())};
    const bool on = state == QLatin1String("on");
    const auto now = radio.ask("switch WPS at", [&](auto& facade, auto& error) {
        return facade.setWpsEnabledStatus(on, error);
    });
    if (now != (on ? AspWpsEnabled : AspWpsDisabled))
        throw Failure{GatewayFailed, QStringLiteral("can't switch WPS at %1: the gateway didn't do "
                                                    "it")
                                         .arg(radio.name())};
    session.output().printDone(QStringLiteral("WPS of %1 is %2.").arg(radio.name(), state));
}

void wps(Session& session, const std::string& name, const std::string& state)
{
    if (!state.empty()) {
        switchWps(session, name, QString::fromStdString(state));
        return;
    }
    QList<Record> records;
    for (const Radio& radio : Radios(session.gateway()).named(name))
        records.append(wpsOf(radio));
    session.output().print(records, QString());
}

void addWps(commandline::Command group, Session& session)
{
    auto command = group.addCommand(
        "wps", "Show whether devices can join by WPS, or switch that at an older radio");
    const auto radio = addRadioOption(command);
    const auto state = std::make_shared<std::string>();
    command.addOption("state", *state, "Switch WPS on or off").oneOf({"on", "off"});
    command.callback([&session, radio, state] { wps(session, *radio, *state); });
}

} // namespace

std::shared_ptr<std::string> addRadioOption(commandline::Command command)
{
    const auto radio = std::make_shared<std::string>();
    command.addOption("--radio", *radio, "The radio, by the name that 'wifi list' shows")
        .valueName("RADIO");
    return radio;
}

void excuse(const QStringList& silent, int asked, const char* question)
{
    const QString line = QStringLiteral("%1 isn't told by %2")
                             .arg(word(question), silent.join(QStringLiteral(", ")));
    if (silent.size() == asked)
        throw Failure{GatewayFailed, line};
    if (!silent.isEmpty())
        std::cerr << "quorvelctl: " << printable(line).toStdString() << '\n';
}

void addWifiCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("wifi", "Show and change the wireless networks");
    group.addCommand("list", "List the radios and their networks").callback([&session] {
        list(session);
    });
    const struct {
        const char* name;
        const char* help;
        void (*run)(Session&, const std::string&);
    } commands[] = {
        {"show", "Show all settings of the radios, or of one", show},
        {"clients", "List the devices that are connected to older radios", clients},
        {"mesh", "List the mesh links", mesh},
        {"security-modes", "List the security modes that a radio can have", securityModes}};
    for (const auto& row : commands) {
        auto command = group.addCommand(row.name, row.help);
        const auto radio = addRadioOption(command);
        command.callback([&session, radio, run = row.run] { run(session, *radio); });
    }
    addWifiSet(group, session);
    addWps(group, session);
    addWifiCapabilities(group, session);
    addWifiQr(group, session);
}

} // namespace quorvelctl
