#include <quorvel/AspWanSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "general/GeneralCall.h"
#include "protocol/Vocabulary.h"
#include "wan/WanCall.h"
#include "wan/WanKeys.h"

namespace quorvel
{

namespace
{

const TextField<Asp3GSettings> settingsFields[] = {{"pin", &Asp3GSettings::pin},
                                                   {"puk", &Asp3GSettings::puk},
                                                   {"apn", &Asp3GSettings::apn},
                                                   {"imei", &Asp3GSettings::imei},
                                                   {"operator", &Asp3GSettings::operatorName}};

const Word<Asp3GSimPinStatus> simPinWords[] = {
    {"pin_init", Asp3GSimPinInit},         {"pin_required", Asp3GSimPinRequired},
    {"puk_required", Asp3GSimPukRequired}, {"pin_ok", Asp3GSimPinOk},
    {"pin_failed", Asp3GSimPinFailed},     {"puk_ok", Asp3GSimPukOk},
    {"puk_failed", Asp3GSimPukFailed},     {"pin_null", Asp3GSimPinNull}};

const Word<Asp3GConnectionMode> connectionModeWords[] = {
    {"no service", Asp3GConnectionModeNoService},
    {"gsm mode", Asp3GConnectionModeGsm},
    {"gprs mode", Asp3GConnectionModeGprs},
    {"edge mode", Asp3GConnectionModeEdge},
    {"wcdma mode", Asp3GConnectionModeWcdma},
    {"hsdpa mode", Asp3GConnectionModeHsdpa},
    {"hsupa mode", Asp3GConnectionModeHsupa},
    {"hsdpa and hsupa mode", Asp3GConnectionModeHsdpaAndHsupa}};

Asp3GSettings settingsIn(const ParamMap& reply, const QString& wan, const QString& settingsInstance)
{
    const auto value = [&](QLatin1String entry) { return reply.value(replyKey(wan, entry)); };
    Asp3GSettings settings;
    readTexts(settings, settingsFields, reply, replyKey(wan, QString()));
    settings.prefMode = value(wire::prefmode).toInt();
    settings.force3g =
        isSet(reply, replyKey(replyKey(settingsInstance, wire::settings), wire::force3g));
    settings.simPinStatus =
        meaningOf(value(wire::simpinStatus), simPinWords, Asp3GSimPinStatusUnknown);
    settings.active = isSet(reply, replyKey(wan, wire::active));
    // A word, not a flag like its neighbours.
    settings.roaming = value(wire::roaming) == QLatin1String("roaming");
    settings.connectionMode =
        meaningOf(value(wire::connectionMode), connectionModeWords, Asp3GConnectionModeUnknown);
    settings.signalStrength = value(wire::signalStrength).toInt();
    settings.prefModeList = numberedValues(reply, replyKey(wan, wire::prefmodelist), 0);
    return settings;
}

} // namespace

bool AspWanSettingsFacade::has3GSupport(AspWebAppErrorCodes& error)
{
    bool supported = false;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::getManagerList),
        [&](const ParamMap& reply) { supported = reply.values().contains(wire::serial); }, nullptr);
    return supported;
}

QString AspWanSettingsFacade::get3GWan(AspWebAppErrorCodes& error)
{
    QString wan;
    const auto request = [&](FacadeCall& call) {
        return call.ask(&Cpe::getWanImplementor, &WanSettingsImplementor::get3GWan, wan);
    };
    fetch(
        *this, error, request,
        [&](const ParamMap&) {
            logDebug(QLatin1String("AspWanSettingsFacade::get3GWan -> 3G WAN:") + wan);
        },
        "AspWanSettingsFacade::get3GWan -> Failed to fetch 3G WAN!");
    return wan;
}

Asp3GSettings AspWanSettingsFacade::get3GSettings(const QString& wan,
                                                  const QString& settingsInstance,
                                                  AspWebAppErrorCodes& error)
{
    FacadeCall call(*this, error);
    // A failed request is not reported, unlike everywhere else: the error stays that of the entry.
    if (!call.isPermitted() ||
        !call.ask(&Cpe::getWanImplementor, &WanSettingsImplementor::get3GSettings, wan,
                  settingsInstance))
        return Asp3GSettings();
    call.reportError();
    return settingsIn(call.reply(), wan, settingsInstance);
}

bool AspWanSettingsFacade::set3GSettings(const QString& wan, const QString& settingsInstance,
                                         const Asp3GSettings& settings, AspWebAppErrorCodes& error)
{
    FacadeCall call(*this, error);
    if (!call.isPermitted() || !call.cpe()->getWanImplementor())
        return false;
    const ParamMap values{{replyKey(wan, wire::pin), settings.pin},
                          {replyKey(wan, wire::puk), settings.puk},
                          {replyKey(wan, wire::apn), settings.apn},
                          {replyKey(wan, wire::prefmode), QString::number(settings.prefMode)},
                          {replyKey(settingsInstance, wire::force3g),
                           settings.force3g ? QStringLiteral("1") : QStringLiteral("0")}};
    const bool done = call.ask(&Cpe::getWanImplementor, &WanSettingsImplementor::set3GSettings, wan,
                               settingsInstance, values);
    call.reportError();
    // A failure that left no trace counts as done.
    return done || call.reply().isEmpty();
}

} // namespace quorvel
