#include "voice/VoiceFixture.h"

#include <ostramw/ConfigDataFactory.h>

namespace quorvel::test
{

QString shown(const AspVoipAccount& account)
{
    // Taken apart by position: the order of the fields is part of the record.
    const auto& [id, type, voipStatus, userName, phoneNumber, uri, proxyServer, userAgentDomain,
                 authUserName, authPassword, transmitGain, receiveGain, gainTag, changed, enabled] =
        account;
    return QStringList{id,
                       type,
                       QString::number(voipStatus),
                       userName,
                       phoneNumber,
                       uri,
                       proxyServer,
                       userAgentDomain,
                       authUserName,
                       authPassword,
                       transmitGain,
                       receiveGain,
                       shown(gainTag),
                       shown(changed),
                       shown(enabled)}
        .join(QLatin1Char('|'));
}

QString shown(const AspVoipCallHistory& call)
{
    const auto& [time, destination, callerId, duration, direction, callType, status] = call;
    return QStringList{time,
                       destination,
                       callerId,
                       duration,
                       QString::number(direction),
                       QString::number(callType),
                       QString::number(status)}
        .join(QLatin1Char('|'));
}

QStringList shown(const AspVoipSettings& settings)
{
    const auto& [accounts, enabled] = settings;
    QStringList texts{shown(enabled)};
    for (const AspVoipAccount& account : accounts)
        texts.append(shown(account));
    return texts;
}

void configureGains(const char* fxsMin, const char* fxsMax, const char* fxoMin, const char* fxoMax)
{
    auto* const config = ostramw::ConfigDataFactory::getInstance();
    config->setConfigValue(text("OSTRA_CONFIG_DEFAULT_FXS_MINGAIN"), text(fxsMin));
    config->setConfigValue(text("OSTRA_CONFIG_DEFAULT_FXS_MAXGAIN"), text(fxsMax));
    config->setConfigValue(text("OSTRA_CONFIG_DEFAULT_FXO_MINGAIN"), text(fxoMin));
    config->setConfigValue(text("OSTRA_CONFIG_DEFAULT_FXO_MAXGAIN"), text(fxoMax));
}

void VoiceFacade::SetUp()
{
    FacadeOnGateway::SetUp();
    configureGains("0", "12", "-10", "10");
}

void VoiceFacade::takeOlderGeneration()
{
    build({{"XML_VERSION", "1.0.0"}, {"VOIP_VERSION", "1"}});
    facade = AspVoipSettingsFacade(cpe);
}

bool ProgrammedVoice::getCallEntriesCount(const QString& line, const QString& entity,
                                          ParamMap& result)
{
    countAskedOf = line + QLatin1Char(' ') + entity;
    result.insert(text("voice-0.numcallentries:"), claim);
    return true;
}

bool ProgrammedVoice::getVoipCallHistory(AspVoipCallHistoryFilter filter, const QString&, ParamMap&)
{
    pages.append(filter);
    return true;
}

} // namespace quorvel::test
