#pragma once

#include <quorvel/AspVoipCallHistoryFilter.h>

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

/// Requests of the gateway's telephony. `entity` is the telephony object; a line is given by its
/// number.
class VoipSettingsImplementor : public CpeSettingsImplementor
{
public:
    virtual bool getLineList(const QString& entity, ParamMap& result) = 0;
    virtual bool getGainSettings(const QString& entity, ParamMap& result) = 0;
    virtual bool setGainSettings(const QString& entity, const ParamMap& settings,
                                 ParamMap& result) = 0;
    virtual bool getVoipCallHistory(AspVoipCallHistoryFilter filter, const QString& entity,
                                    ParamMap& result) = 0;
    virtual bool getVoipAccounts(const QString& entity, ParamMap& result) = 0;
    virtual bool getCallEntriesCount(const QString& line, const QString& entity,
                                     ParamMap& result) = 0;
    virtual bool setVoipSettings(const QString& entity, const QString& line,
                                 const ParamMap& settings, ParamMap& result) = 0;
};

} // namespace quorvel
