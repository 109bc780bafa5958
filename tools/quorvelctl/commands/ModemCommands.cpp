#include "Failure.h"
#include "Session.h"
#include "Wans.h"
#include "Words.h"
#include "commands/Commands.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

/// What the gateway calls the states of a SIM card.
const std::pair<Asp3GSimPinStatus, const char*> simPinWords[] = {
    {Asp3GSimPinInit, "pin_init"},         {Asp3GSimPinRequired, "pin_required"},
    {Asp3GSimPukRequired, "puk_required"}, {Asp3GSimPinOk, "pin_ok"},
    {Asp3GSimPinFailed, "pin_failed"},     {Asp3GSimPukOk, "puk_ok"},
    {Asp3GSimPukFailed, "puk_failed"},     {Asp3GSimPinNull, "pin_null"}};

/// What it calls the technologies.
const std::pair<Asp3GConnectionMode, const char*> connectionModeWords[] = {
    {Asp3GConnectionModeNoService, "no service"},
    {Asp3GConnectionModeGsm, "gsm mode"},
    {Asp3GConnectionModeGprs, "gprs mode"},
    {Asp3GConnectionModeEdge, "edge mode"},
    {Asp3GConnectionModeWcdma, "wcdma mode"},
    {Asp3GConnectionModeHsdpa, "hsdpa mode"},
    {Asp3GConnectionModeHsupa, "hsupa mode"},
    {Asp3GConnectionModeHsdpaAndHsupa, "hsdpa and hsupa mode"}};

template <typename Words, typename Meaning>
QString wordFor(Meaning meaning, const Words& words)
{
    for (const auto& row : words) {
        if (row.first == meaning)
            return word(row.second);
    }
    return word("unknown");
}

/// A modem as the command line gives it.
struct Given {
    std::string wan;
    std::string settingsInstance = "serial-0";
    SecretSource pin;
    SecretSource puk;
    std::optional<std::string> apn;
    std::optional<int> prefMode;
    std::optional<bool> force3g;
};

/// The modem of a gateway. Fails if it has none.
class Modem
{
public:
    Modem(Gateway& gateway, const Given& given)
        : gateway(gateway),
          wans(gateway),
          wan(QString::fromStdString(given.wan)),
          settingsInstance(QString::fromStdString(given.settingsInstance))
    {
        if (!wan.isEmpty())
            wans.expect({wan});
        else
            wan = gateway.ask(word("look for the modem"),
                              [&](auto& error) { return wans.facade().get3GWan(error); });
        if (wan.isEmpty())
            throw Failure{GatewayFailed, gateway.address() + word(" has no 3G modem")};
    }

    Asp3GSettings read()
    {
        const auto settings = gateway.ask(word("read the modem's settings"), [&](auto& error) {
            return wans.facade().get3GSettings(wan, settingsInstance, error);
        });
        // A request that fails looks like a modem that has nothing to tell.
        if (settings.imei.isEmpty() && settings.prefModeList.isEmpty() && settings.apn.isEmpty() &&
            settings.simPinStatus == Asp3GSimPinStatusUnknown &&
            settings.connectionMode == Asp3GConnectionModeUnknown)
            throw Failure{GatewayFailed, word("can't read the modem's settings: the gateway tells "
                                              "nothing of %1")
                                             .arg(wan)};
        return settings;
    }

    void write(const Asp3GSettings& settings)
    {
        gateway.demand(word("write the modem's settings"), [&](auto& error) {
            return wans.facade().set3GSettings(wan, settingsInstance, settings, error);
        });
    }

    const QString& name() const { return wan; }
    const QString& settingsName() const { return settingsInstance; }

private:
    Gateway& gateway;
    Wans wans;
    QString wan;
    const QString settingsInstance;
};

void show(Session& session, const Given& given)
{
    Modem modem(session.gateway(), given);
    const Asp3GSettings settings = modem.read();
    session.output().print(
        {plainField("wan", "WAN", modem.name()),
         plainField("settingsInstance", "Settings object", modem.settingsName()),
         plainField("simPinStatus", "SIM", wordFor(settings.simPinStatus, simPinWords)),
         secretField(word("pin"), word("PIN"), settings.pin),
         secretField(word("puk"), word("PUK"), settings.puk),
         plainField("apn", "APN", settings.apn), plainField("active", "Active", settings.active),
         plainField("operatorName", "Operator", settings.operatorName),
         plainField("roaming", "Roaming", settings.roaming),
         plainField("connectionMode", "Technology",
                    wordFor(settings.connectionMode, connectionModeWords)),
         plainField("signalStrength", "Signal strength", settings.signalStrength),
         plainField("prefMode", "Preferred mode", settings.prefMode),
         plainField("prefModeList", "Modes", QJsonArray::fromStringList(settings.prefModeList)),
         plainField("force3g", "Held to 3G", settings.force3g),
         plainField("imei", "IMEI", settings.imei)});
}

/// Takes over what is given. A PIN that the SIM has refused, or an old PUK, isn't tried again with
/// what else is written: after a few attempts the SIM locks itself.
void take(const Given& given, const QString& pin, const QString& puk, Asp3GSettings& settings)
{
    if (!pin.isNull())
        settings.pin = pin;
    else if (settings.simPinStatus == Asp3GSimPinFailed)
        settings.pin.clear();
    if (!puk.isNull())
        settings.puk = puk;
    else if (settings.simPinStatus == Asp3GSimPukRequired ||
             settings.simPinStatus == Asp3GSimPukFailed)
        settings.puk.clear();
    if (given.apn)
        settings.apn = QString::fromStdString(*given.apn);
    settings.prefMode = given.prefMode.value_or(settings.prefMode);
    settings.force3g = given.force3g.value_or(settings.force3g);
}

/// A secret that may be left out; null then.
QString readIfGiven(Session& session, const SecretSource& source)
{
    if (!source.isGiven())
        return QString();
    const QString secret = session.readSecret(source);
    return secret.isNull() ? QLatin1String("") : secret;
}

void expectUnlocked(const Asp3GSettings& settings)
{
    switch (settings.simPinStatus) {
    case Asp3GSimPinFailed:
        throw Failure{GatewayFailed, word("the SIM refused the PIN")};
    case Asp3GSimPukRequired:
        throw Failure{GatewayFailed, word("the SIM asks for its PUK")};
    case Asp3GSimPukFailed:
        throw Failure{GatewayFailed, word("the SIM refused the PUK")};
    default:
        return;
    }
}

void set(Session& session, const Given& given)
{
    const QString pin = readIfGiven(session, given.pin);
    const QString puk = readIfGiven(session, given.puk);
    if (pin.isNull() && puk.isNull() && !given.apn && !given.prefMode && !given.force3g)
        throw Failure{WrongUsage, word("name at least one setting of the modem")};
    Modem modem(session.gateway(), given);
    // The gateway takes all five settings at once, so what isn't named is written back as it is.
    Asp3GSettings settings = modem.read();
    take(given, pin, puk, settings);
    modem.write(settings);
    if (!pin.isEmpty() || !puk.isEmpty())
        expectUnlocked(modem.read());
    session.output().printDone(word("The modem's settings are stored."));
}

} // namespace

void addModemCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("modem", "Show or set the 3G modem");
    const struct {
        const char* name;
        const char* help;
        void (*run)(Session&, const Given&);
    } commands[] = {{"show", "Show the modem's settings and state", show},
                    {"set", "Change settings of the modem", set}};
    for (const auto& row : commands) {
        auto command = group.addCommand(row.name, row.help);
        const auto given = std::make_shared<Given>();
        command.addOption("--wan", given->wan, "WAN of the modem; found without it");
        command
            .addOption("--settings-instance", given->settingsInstance,
                       "Object that keeps the force-3G setting")
            .showDefault();
        if (row.run == set) {
            given->pin.addTo(command, "pin", "QUORVELCTL_PIN", "PIN of the SIM card");
            given->puk.addTo(command, "puk", "QUORVELCTL_PUK", "PUK of the SIM card");
            command.addOption("--apn", given->apn, "Access point name of the mobile network");
            command.addOption("--pref-mode", given->prefMode,
                              "Preferred mode, in the gateway's own numbering");
            command.addOption("--force3g", given->force3g, "Hold the modem to 3G (true, false)");
        }
        command.callback([&session, given, run = row.run] { run(session, *given); });
    }
}

} // namespace quorvelctl
