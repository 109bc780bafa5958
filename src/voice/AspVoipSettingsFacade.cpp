#include <quorvel/AspVoipSettingsFacade.h>

#include "protocol/Vocabulary.h"
#include "voice/GainConversion.h"
#include "voice/VoiceCall.h"
#include "voice/VoiceKeys.h"

#include <ostramw/ConfigDataFactory.h>

namespace quorvel
{

namespace
{

QString sipAddress(const AspVoipAccount& account)
{
    const QString& domain =
        account.userAgentDomain.isEmpty() ? account.proxyServer : account.userAgentDomain;
    return QLatin1String("SIP:") + account.uri + QLatin1Char('@') + domain;
}

} // namespace

void AspVoipSettingsFacade::getGainValues()
{
    const struct {
        const char* key;
        std::int32_t& end;
    } rangeEnds[] = {{"OSTRA_CONFIG_DEFAULT_FXS_MINGAIN", fxsMinGain},
                     {"OSTRA_CONFIG_DEFAULT_FXS_MAXGAIN", fxsMaxGain},
                     {"OSTRA_CONFIG_DEFAULT_FXO_MINGAIN", fxoMinGain},
                     {"OSTRA_CONFIG_DEFAULT_FXO_MAXGAIN", fxoMaxGain}};
    for (const auto& [key, end] : rangeEnds) {
        bool isNumber = false;
        const QString value =
            ostramw::ConfigDataFactory::getInstance()->getConfigValue(QLatin1String(key));
        const int number = value.toInt(&isNumber);
        if (isNumber)
            end = number;
    }
}

bool AspVoipSettingsFacade::setVoipSettings(const QString& entity, AspVoipAccount account,
                                            AspWebAppErrorCodes& error)
{
    if (!account.changed) {
        error = validateCpe();
        return false;
    }
    // The newer generation's names. The older one looks for others and finds none.
    const auto name = [&](QLatin1String entry) { return replyKey(entity, account.id + entry); };
    const ParamMap values{
        {name(wire::authUserName), account.authUserName},
        {name(wire::authPassword), account.authPassword},
        {name(wire::uri), sipAddress(account)},
        {name(wire::enable), account.enabled ? QStringLiteral("1") : QStringLiteral("0")}};
    return changeUnlessDenied(
        *this, error,
        voiceCall(&VoipSettingsImplementor::setVoipSettings, entity, account.id, values));
}

AspVoipAccount AspVoipSettingsFacade::getGainSettings(AspWebAppErrorCodes& error)
{
    // The reply belongs to no one account, so there is nothing to be read from it.
    fetch(
        *this, error, voiceCall(&VoipSettingsImplementor::getGainSettings, wire::voice0),
        [](const ParamMap&) {}, nullptr);
    return AspVoipAccount();
}

bool AspVoipSettingsFacade::setGainSettings(const QString& entity, QList<AspVoipAccount> accounts,
                                            AspWebAppErrorCodes& error)
{
    getGainValues();
    ParamMap values;
    for (const AspVoipAccount& account : qAsConst(accounts)) {
        // Under its number the analogue port finds no reader: implementors know it as "pstn".
        const bool isAnalogue = account.id == QLatin1String("2");
        const int min = isAnalogue ? fxoMinGain : fxsMinGain;
        const int max = isAnalogue ? fxoMaxGain : fxsMaxGain;
        const QString port = replyKey(entity, account.id);
        values.insert(replyKey(port, wire::lineTransmitGain),
                      convertGain(account.transmitGain, min, max));
        values.insert(replyKey(port, wire::lineReceiveGain),
                      convertGain(account.receiveGain, min, max));
    }
    return changeUnlessDenied(*this, error,
                              voiceCall(&VoipSettingsImplementor::setGainSettings, entity, values));
}

} // namespace quorvel
