#include "voice/AspVoipImplementorV1.h"

#include "protocol/ParamKeys.h"
#include "voice/VoiceKeys.h"

namespace quorvel
{

using namespace wire;

// What this generation doesn't serve counts as done, so that a host sees a gateway without lines,
// gains and calls, and no failure.

bool AspVoipImplementorV1::getLineList(const QString&, ParamMap&)
{
    return true;
}

bool AspVoipImplementorV1::getGainSettings(const QString&, ParamMap&)
{
    return true;
}

bool AspVoipImplementorV1::setGainSettings(const QString&, const ParamMap&, ParamMap&)
{
    return true;
}

bool AspVoipImplementorV1::getVoipCallHistory(AspVoipCallHistoryFilter, const QString&, ParamMap&)
{
    return true;
}

bool AspVoipImplementorV1::getCallEntriesCount(const QString&, const QString&, ParamMap&)
{
    return true;
}

bool AspVoipImplementorV1::getVoipAccounts(const QString& entity, ParamMap& result)
{
    return run({query(entity, voiceStatus)}, result);
}

bool AspVoipImplementorV1::setVoipSettings(const QString& entity, const QString& line,
                                           const ParamMap& settings, ParamMap& result)
{
    const QString path = lineEntry(QString::number(line.toInt()), sip);
    const auto given = [&](const QString& name) {
        return settings.value(replyKey(entity, replyKey(path, name)));
    };
    const Values values{{replyKey(path, authUserName), given(authUserName)},
                        {replyKey(path, authPassword), given(authPassword)},
                        {replyKey(path, uri), given(QStringLiteral("URI_USER"))},
                        {replyKey(path, enable), given(enable)},
                        {dslPhoneNumber, settings.value(replyKey(entity, dslPhoneNumber))}};
    return run(writeAndApply(entity, values) << save(), result);
}

} // namespace quorvel
