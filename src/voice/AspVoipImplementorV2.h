#pragma once

#include "voice/VoipSettingsImplementor.h"

namespace quorvel
{

/// The newer telephony: two lines and an analogue port, with gains and a call log.
class AspVoipImplementorV2 : public VoipSettingsImplementor
{
public:
    bool getLineList(const QString& entity, ParamMap& result) override;
    bool getGainSettings(const QString& entity, ParamMap& result) override;
    bool setGainSettings(const QString& entity, const ParamMap& settings,
                         ParamMap& result) override;
    bool getVoipCallHistory(AspVoipCallHistoryFilter filter, const QString& entity,
                            ParamMap& result) override;
    bool getVoipAccounts(const QString& entity, ParamMap& result) override;
    bool getCallEntriesCount(const QString& line, const QString& entity, ParamMap& result) override;
    bool setVoipSettings(const QString& entity, const QString& line, const ParamMap& settings,
                         ParamMap& result) override;
};

} // namespace quorvel
