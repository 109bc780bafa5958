#include "usbhost/AspUsbHostSettingsImplementorV1.h"

#include "protocol/ParamKeys.h"
#include "usbhost/UsbHostKeys.h"

namespace quorvel
{

using namespace wire;

bool AspUsbHostSettingsImplementorV1::getUsbHostInstList(ParamMap& result)
{
    return run({query(devmgr0, instList, conn), query(devmgr0, instList, sambaMngr)}, result);
}

bool AspUsbHostSettingsImplementorV1::getUsbHostAdvancedSettings(const QString& sambaInstance,
                                                                 const QString& connInstance,
                                                                 ParamMap& result)
{
    return run({begin(connInstance), begin(sambaInstance), get(connInstance, hostname),
                get(sambaInstance, description), get(sambaInstance, workGroup), end(connInstance),
                end(sambaInstance)},
               result);
}

bool AspUsbHostSettingsImplementorV1::setUsbHostAdvancedSettings(const QString& sambaInstance,
                                                                 const QString& connInstance,
                                                                 const ParamMap& values,
                                                                 ParamMap& result)
{
    const auto write = [&](const QString& instance, const QString& key) {
        return set(instance, key, values.value(replyKey(instance, key)));
    };
    // The new host name may cut the connection under the reply. Saved last here, because only what
    // is in effect is kept.
    return run({begin(connInstance), begin(sambaInstance), write(connInstance, hostname),
                write(sambaInstance, description), write(sambaInstance, workGroup),
                commit(connInstance), commit(sambaInstance), end(connInstance), end(sambaInstance),
                apply(connInstance), apply(sambaInstance), save()},
               result, true);
}

bool AspUsbHostSettingsImplementorV1::getUsbHostDevices(ParamMap& result)
{
    return run({begin(usbhostMngr0), query(usbhostMngr0, deviceList), end(usbhostMngr0)}, result);
}

bool AspUsbHostSettingsImplementorV1::diskUnmount(const QString& deviceId, ParamMap& result)
{
    return actOnDisk(wire::diskUnmount, deviceId, result);
}

bool AspUsbHostSettingsImplementorV1::diskMount(const QString& deviceId, ParamMap& result)
{
    return actOnDisk(wire::diskMount, deviceId, result);
}

bool AspUsbHostSettingsImplementorV1::actOnDisk(const QString& action, const QString& deviceId,
                                                ParamMap& result)
{
    return run({begin(usbhostMngr0),
                command(usbhostMngr0, action, QLatin1String("DevId:") + deviceId),
                end(usbhostMngr0)},
               result);
}

} // namespace quorvel
