#include "voice/AspVoipImplementorV2.h"

#include "protocol/ParamKeys.h"
#include "voice/VoiceKeys.h"

namespace quorvel
{

using namespace wire;

namespace
{

/// Gets of several entries of each of several lines, line by line.
CommandList lineReads(const QString& entity, std::initializer_list<const char*> lines,
                      std::initializer_list<QLatin1String> entries)
{
    CommandList reads;
    for (const char* line : lines) {
        for (const QLatin1String entry : entries)
            reads << get(entity, lineEntry(QLatin1String(line), entry));
    }
    return reads;
}

/// A port as the gains to be written name it, and its number.
struct GainPort {
    const char* name;
    const char* line;
};

const GainPort gainPorts[] = {{"0", "0"}, {"1", "1"}, {"pstn", "2"}};

} // namespace

bool AspVoipImplementorV2::getLineList(const QString& entity, ParamMap& result)
{
    return run(readTransaction(entity, {allLineList}), result);
}

bool AspVoipImplementorV2::getGainSettings(const QString& entity, ParamMap& result)
{
    CommandList commands{begin(entity)};
    commands << lineReads(entity, {"0", "1", "2"}, {lineTransmitGain, lineReceiveGain})
             << end(entity);
    return run(commands, result);
}

bool AspVoipImplementorV2::getVoipCallHistory(AspVoipCallHistoryFilter filter,
                                              const QString& entity, ParamMap& result)
{
    const QString page = QStringLiteral("callhistory:%1:%2:%3")
                             .arg(filter.firstEntry)
                             .arg(filter.lastEntry)
                             .arg(filter.line);
    return run({query(entity, page)}, result);
}

bool AspVoipImplementorV2::getCallEntriesCount(const QString& line, const QString& entity,
                                               ParamMap& result)
{
    return run({query(entity, QLatin1String("loglength:") + line)}, result);
}

bool AspVoipImplementorV2::getVoipAccounts(const QString& entity, ParamMap& result)
{
    CommandList commands{query(entity, voiceStatus), begin(entity), get(entity, dslPhoneNumber)};
    commands << lineReads(entity, {"0", "1"},
                          {sipAuthUserName, sipAuthPassword, sipUri, sipProxyServer,
                           sipUserAgentDomain, lineEnable})
             << end(entity);
    return run(commands, result);
}

bool AspVoipImplementorV2::setGainSettings(const QString& entity, const ParamMap& settings,
                                           ParamMap& result)
{
    Values values;
    for (const GainPort& port : gainPorts) {
        for (const QLatin1String gain : {lineTransmitGain, lineReceiveGain}) {
            const QString name = replyKey(QLatin1String(port.name), gain);
            const QString value = settings.value(replyKey(entity, name));
            // A gain that isn't given stays as it is.
            if (!value.isEmpty())
                values.emplace_back(lineEntry(QLatin1String(port.line), gain), value);
        }
    }
    return run(writeAndApply(entity, values) << save(), result);
}

bool AspVoipImplementorV2::setVoipSettings(const QString& entity, const QString& line,
                                           const ParamMap& settings, ParamMap& result)
{
    const auto given = [&](const QString& name) {
        return settings.value(replyKey(entity, line + name));
    };
    const Values values{{lineEntry(line, sipAuthUserName), given(authUserName)},
                        {lineEntry(line, sipAuthPassword), given(authPassword)},
                        {lineEntry(line, sipUri), given(uri)},
                        {lineEntry(line, lineEnable), given(enable)}};
    return run(writeAndApply(entity, values) << save(), result);
}

} // namespace quorvel
