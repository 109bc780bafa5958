#pragma once

#include "voice/VoipSettingsImplementor.h"

namespace quorvel
{

/// The older and smaller telephony, which serves its status and the write of an account only. All
/// other operations succeed without sending anything.
class AspVoipImplementorV1 : public VoipSettingsImplementor
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
