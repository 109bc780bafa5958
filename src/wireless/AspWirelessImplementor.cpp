#include "wireless/AspWirelessImplementor.h"

#include "protocol/ParamKeys.h"
#include "wireless/WirelessKeys.h"

#include <QMutexLocker>

namespace quorvel
{

using namespace wire;

namespace
{

/// Gateways spell their modes in small or in capital letters, but never mixed.
bool isOfKind(const QString& mode, QLatin1String small, QLatin1String capital)
{
    return mode.startsWith(small) || mode.startsWith(capital);
}

} // namespace

bool AspWirelessImplementor::checkWpsEnabledStatus(ParamMap& result, const QString& entity)
{
    return run(readTransaction(entity, {wpsEnabled}), result);
}

bool AspWirelessImplementor::setWpsEnabledStatus(ParamMap& result, bool enabled,
                                                 const QString& entity)
{
    CommandList commands{begin(entity), set(entity, wpsEnabled,
                                            enabled ? QStringLiteral("1") : QStringLiteral("0"))};
    if (enabled)
        commands << becomeRegistrar(entity);
    return run(commands << commit(entity) << end(entity) << apply(entity) << save(), result);
}

bool AspWirelessImplementor::getWirelessClientMacList(const QString& entity, ParamMap& result)
{
    return run({query(entity, staList)}, result);
}

CommandList AspWirelessImplementor::writeNetwork(const QString& inst, const QString& prefix,
                                                 const QString& modeKey, const ParamMap& settings)
{
    const auto write = [&](const QString& written, const QString& key) {
        return set(inst, written, settings.value(replyKey(inst, key)));
    };
    CommandList commands{write(prefix + ssid, ssid), write(prefix + modeKey, modeKey)};
    const QString mode = settings.value(replyKey(inst, modeKey));
    if (isOfKind(mode, QLatin1String("wpa"), QLatin1String("WPA")))
        commands << write(prefix + wpaPassword, wpaPassword);
    else if (isOfKind(mode, QLatin1String("wep"), QLatin1String("WEP")))
        commands << write(wepAuthType, wepAuthType) << write(wepKeyIndex, wepKeyIndex)
                 << write(wepKeyType, wepKeyType) << write(wepKey1, wepKey);
    return commands;
}

CommandList AspWirelessImplementor::becomeRegistrar(const QString& inst)
{
    return {set(inst, wpsConfigUuidUpdate, QString()),
            set(inst, wpsRole, QStringLiteral("registrar"))};
}

QString AspWirelessImplementor::format(const CommandList& commands)
{
    QMutexLocker locker(&mutex);
    getRequestFormatter()->clearCommands();
    queue(commands);
    return getRequestFormatter()->formatCommands();
}

} // namespace quorvel
