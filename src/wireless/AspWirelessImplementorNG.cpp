#include "wireless/AspWirelessImplementorNG.h"

#include "protocol/ParamKeys.h"
#include "wireless/WirelessKeys.h"

namespace quorvel
{

using namespace wire;

namespace
{

/// What stands before the keys of an access point or a mesh link.
QString prefixOf(const QString& name)
{
    return name + QLatin1Char('_');
}

} // namespace

bool AspWirelessImplementorNG::checkWirelessStatus(ParamMap&, const QString&)
{
    return true;
}

bool AspWirelessImplementorNG::getWpsRole(ParamMap& result, const QString& entity)
{
    return run({query(entity, wpsRole)}, result);
}

bool AspWirelessImplementorNG::isSecurityProxyEnabled(ParamMap& result, const QString& entity)
{
    return run({query(entity, securityProxy)}, result);
}

bool AspWirelessImplementorNG::getWirelessSettings(const QString& ap, const QString& manager,
                                                   ParamMap& result)
{
    const QString prefix = prefixOf(ap);
    CommandList commands{begin(manager)};
    for (const QLatin1String key : {ssid, securityMode, wpaAuthtype, wepAuthtype, wepKeytype,
                                    wepKeyindex, wepKey1, wepKey2, wepKey3, wepKey4, wpaPassword})
        commands << get(manager, prefix + key);
    // Without the lock, so that the settings don't wait behind another request to the radio, which
    // nobody can abort.
    return send(commands << get(manager, band) << end(manager), result);
}

bool AspWirelessImplementorNG::setWirelessSettings(const ParamMap& settings, const QString& manager,
                                                   ParamMap& result)
{
    // The gateway may drop the very link that the reply would come by.
    return run(write(settings, QString(), manager), result, true);
}

QString AspWirelessImplementorNG::getWirelessSettingsQuery(const ParamMap& settings,
                                                           const QString& ap,
                                                           const QString& manager, ParamMap&)
{
    return format(write(settings, prefixOf(ap), manager));
}

bool AspWirelessImplementorNG::getWirelessMeshInstances(ParamMap&)
{
    return true;
}

bool AspWirelessImplementorNG::getWirelessMeshInstanceInfo(const QString& instance,
                                                           const QString& manager, ParamMap& result)
{
    const QString prefix = prefixOf(instance);
    return run(readTransaction(manager, {prefix + enabled, prefix + mac}), result);
}

bool AspWirelessImplementorNG::getWirelessSecurityMode(const QString&, const QString& manager,
                                                       ParamMap& result)
{
    return run(readTransaction(manager, {securityMode}), result);
}

bool AspWirelessImplementorNG::getWirelessCapabilities(ParamMap& result, const QString& manager)
{
    return run({query(manager, wirelessCapabilities)}, result);
}

bool AspWirelessImplementorNG::getTxMode(ParamMap& result, const QString& manager)
{
    return run(readTransaction(manager, {txmode}), result);
}

CommandList AspWirelessImplementorNG::write(const ParamMap& settings, const QString& prefix,
                                            const QString& manager)
{
    CommandList commands{begin(manager)};
    // The keys of WEP go out without the prefix and in the older spelling, though they are read
    // with the prefix and in the newer one: that is how these gateways take them.
    commands << writeNetwork(manager, prefix, securityMode, settings)
             << set(manager, enabled, settings.value(replyKey(manager, enabled)))
             << becomeRegistrar(manager) << commit(manager) << end(manager) << apply(manager)
             << save();
    return commands;
}

} // namespace quorvel
