#include "general/AspGeneralSettingsImplV1.h"

#include "general/GeneralKeys.h"

namespace quorvel
{

using namespace wire;

bool AspGeneralSettingsImplV1::getStaticClientList(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {clients}), result);
}

bool AspGeneralSettingsImplV1::getDynamicClientList(const QString& instance, ParamMap& result)
{
    return run({query(instance, leases)}, result);
}

bool AspGeneralSettingsImplV1::getEthMacAddress(ParamMap& result)
{
    return run({query(sysmgr0, getenvQuery, macEth0)}, result);
}

bool AspGeneralSettingsImplV1::getDslMacAddress(ParamMap& result)
{
    return run({query(sysmgr0, getenvQuery, macDsl0)}, result);
}

bool AspGeneralSettingsImplV1::getWlanMacAddress(ParamMap& result)
{
    return run({query(sysmgr0, getenvQuery, macWlan0)}, result);
}

bool AspGeneralSettingsImplV1::getFirmwareVersion(ParamMap& result)
{
    return run({query(sysmgr0, fwversion)}, result);
}

bool AspGeneralSettingsImplV1::getModelName(ParamMap& result)
{
    return run({query(sysmgr0, getenvQuery, hardwareProductId), query(sysmgr0, productId)}, result);
}

bool AspGeneralSettingsImplV1::getRouterMode(ParamMap& result)
{
    // Neither locks nor clears: it relies on every format operation having emptied the queue.
    queue(readTransaction(product0, {routerMode}));
    return sendQueue(result);
}

bool AspGeneralSettingsImplV1::getSerialNumber(ParamMap& result)
{
    return run({query(sysmgr0, getenvQuery, serialNumber)}, result);
}

bool AspGeneralSettingsImplV1::checkSession(const QString& session, ParamMap& result)
{
    return run({command(webui0, wire::checkSession, session)}, result);
}

bool AspGeneralSettingsImplV1::deleteSession(ParamMap& result)
{
    return run({command(webui0, wire::deleteSession)}, result);
}

bool AspGeneralSettingsImplV1::setCpeInternetModeAp2Router(const QString& mode, ParamMap& result)
{
    return run({begin(product0), set(product0, routerMode, mode), commit(product0), save(),
                end(product0), apply(cfgmgr0)},
               result);
}

bool AspGeneralSettingsImplV1::setCpePassword(const QString& password, ParamMap& result)
{
    // In two places, for the web interface and for the system, which change together.
    return run({begin(webui0), begin(sysmgr0), set(webui0, wire::password, password),
                set(sysmgr0, wire::password, password), commit(webui0), commit(sysmgr0), save(),
                end(webui0), end(sysmgr0), command(sysmgr0, applyUserInfo)},
               result);
}

bool AspGeneralSettingsImplV1::checkCpePassword(const QString& password, ParamMap& result)
{
    return run({command(webui0, checkAdminPassword, password)}, result);
}

bool AspGeneralSettingsImplV1::isRebootRequired(ParamMap& result)
{
    // Without the lock, so that the question doesn't wait behind a long operation.
    return send({query(sysmgr0, rebootReq)}, result);
}

bool AspGeneralSettingsImplV1::getRebootDuration(ParamMap& result)
{
    return run({query(webui0, rebootDuration)}, result);
}

bool AspGeneralSettingsImplV1::getFwUpgradeDuration(ParamMap& result)
{
    return run({query(webui0, fwupgradeDuration)}, result);
}

bool AspGeneralSettingsImplV1::factoryDefault(ParamMap& result)
{
    return run({command(cfgmgr0, wire::factoryDefault)}, result, true);
}

bool AspGeneralSettingsImplV1::rebootCpe(ParamMap& result)
{
    return run({command(sysmgr0, reboot)}, result, true);
}

bool AspGeneralSettingsImplV1::getDefaultGw(const QString& routeInstance, ParamMap& result)
{
    return run({begin(routeInstance), get(route0, defaultGw), end(routeInstance)}, result);
}

bool AspGeneralSettingsImplV1::setDefaultGw(const QString& routeInstance,
                                            const QString& wanInstance, ParamMap& result)
{
    CommandList commands{begin(routeInstance), set(route0, defaultGw, wanInstance),
                         commit(routeInstance), end(routeInstance)};
    commands << writeTransaction(wanInstance, {{enabled, QStringLiteral("1")}}) << save()
             << command(routeInstance, applyDefaultGw) << apply(wanInstance);
    return run(commands, result);
}

bool AspGeneralSettingsImplV1::getManagerList(ParamMap& result)
{
    return run({query(devmgr0, mngrList)}, result);
}

bool AspGeneralSettingsImplV1::getWirelessCoreList(ParamMap& result)
{
    return run({query(devmgr0, instList, wirelessCore), query(devmgr0, instList, wireless)},
               result);
}

bool AspGeneralSettingsImplV1::getManagerInstanceList(const QString& manager, ParamMap& result)
{
    return run({query(devmgr0, instList, manager)}, result);
}

bool AspGeneralSettingsImplV1::queryParameter(const QString& manager, const QString& parameter,
                                              const QString& value, ParamMap& result)
{
    return run({query(manager, parameter, value)}, result);
}

bool AspGeneralSettingsImplV1::getWarrantyInformation(ParamMap& result)
{
    CommandList commands{begin(warranty0)};
    for (const QLatin1String key : warrantyKeys)
        commands << get(warranty0, key);
    return run(commands << end(warranty0), result);
}

bool AspGeneralSettingsImplV1::setWarrantyInformation(const ParamMap& values, ParamMap& result)
{
    CommandList commands{begin(warranty0)};
    for (const QLatin1String key : warrantyKeys)
        commands << set(warranty0, key, values.value(key));
    return run(commands << commit(warranty0) << end(warranty0) << save(), result);
}

} // namespace quorvel
