#include "wireless/AspWirelessImplementorV1.h"

#include "protocol/ParamKeys.h"
#include "wireless/WirelessKeys.h"

namespace quorvel
{

using namespace wire;

bool AspWirelessImplementorV1::checkWirelessStatus(ParamMap& result, const QString& entity)
{
    return run(readTransaction(entity, {enabled}), result);
}

bool AspWirelessImplementorV1::getWpsRole(ParamMap& result, const QString&)
{
    return run({query(wirelessCore0, wpsRole)}, result);
}

bool AspWirelessImplementorV1::isSecurityProxyEnabled(ParamMap& result, const QString&)
{
    return run({query(wirelessCore0, securityProxy)}, result);
}

bool AspWirelessImplementorV1::getWirelessSettings(const QString& ap, const QString&,
                                                   ParamMap& result)
{
    CommandList commands{begin(ap), begin(wirelessCore0)};
    for (const QLatin1String key :
         {ssid, secMode, wpaAuthType, wepAuthType, wepKeyType, wepKeyIndex, wepKey1, wepKey2,
          wepKey3, wepKey4, wpaRekeyInterval, wpaRadiusEapReauthPeriod, wpaPassword, wpaRadiusAddr,
          wpaRadiusPort, wpaRadiusKey, wpa2RsnPreauth})
        commands << get(ap, key);
    return run(commands << get(wirelessCore0, freq) << end(wirelessCore0) << end(ap), result);
}

bool AspWirelessImplementorV1::setWirelessSettings(const ParamMap& settings, const QString&,
                                                   ParamMap& result)
{
    // The gateway may drop the very link that the reply would come by.
    return run(write(settings), result, true);
}

QString AspWirelessImplementorV1::getWirelessSettingsQuery(const ParamMap& settings, const QString&,
                                                           const QString&, ParamMap&)
{
    return format(write(settings));
}

bool AspWirelessImplementorV1::getWirelessMeshInstances(ParamMap& result)
{
    return run({query(devmgr0, instList, wirelessWds)}, result);
}

bool AspWirelessImplementorV1::getWirelessMeshInstanceInfo(const QString& instance, const QString&,
                                                           ParamMap& result)
{
    return run(readTransaction(instance, {enabled, mac}), result);
}

bool AspWirelessImplementorV1::getWirelessSecurityMode(const QString&, const QString&,
                                                       ParamMap& result)
{
    return run(readTransaction(wirelessAp0, {secMode}), result);
}

bool AspWirelessImplementorV1::getWirelessCapabilities(ParamMap&, const QString&)
{
    return false;
}

bool AspWirelessImplementorV1::getTxMode(ParamMap&, const QString&)
{
    return true;
}

CommandList AspWirelessImplementorV1::write(const ParamMap& settings)
{
    CommandList commands{begin(wirelessAp0)};
    commands << writeNetwork(wirelessAp0, QString(), secMode, settings) << commit(wirelessAp0)
             << end(wirelessAp0) << begin(wirelessCore0)
             << set(wirelessCore0, enabled, settings.value(replyKey(wirelessCore0, enabled)))
             << becomeRegistrar(wirelessCore0) << commit(wirelessCore0) << end(wirelessCore0)
             << apply(wirelessCore0) << save();
    return commands;
}

} // namespace quorvel
