#pragma once

#include <quorvel/AspVoipSettingsFacade.h>

#include "support/FacadeOnGateway.h"
#include "support/Golden.h"
#include "support/Text.h"
#include "support/Transcript.h"
#include "voice/AspVoipImplementorV2.h"

#include <functional>

namespace quorvel::test
{

/// All fields of a record in their order, behind bars.
QString shown(const AspVoipAccount& account);
QString shown(const AspVoipCallHistory& call);
/// A record per line; telephony's own flag first.
QStringList shown(const AspVoipSettings& settings);

/// Sets the ranges of the host's configuration, as texts.
void configureGains(const char* fxsMin, const char* fxsMax, const char* fxoMin, const char* fxoMax);

/// A voice facade on the newest kind of gateway, whose lines have gains from 0 to 12 and whose
/// analogue port has gains from -10 to 10.
class VoiceFacade : public FacadeOnGateway<AspVoipSettingsFacade>
{
protected:
    void SetUp() override;

    /// Puts the older generation in the place of the newer one.
    void takeOlderGeneration();
};

/// Telephony that answers without a gateway, as the test says.
class ProgrammedVoice : public AspVoipImplementorV2
{
public:
    bool setGainSettings(const QString&, const ParamMap&, ParamMap&) override { return false; }
    bool setVoipSettings(const QString&, const QString&, const ParamMap&, ParamMap&) override
    {
        return false;
    }
    bool getCallEntriesCount(const QString& line, const QString& entity, ParamMap& result) override;
    bool getVoipCallHistory(AspVoipCallHistoryFilter filter, const QString& entity,
                            ParamMap& result) override;

    QString claim;
    QString countAskedOf;
    QList<AspVoipCallHistoryFilter> pages;
};

} // namespace quorvel::test
