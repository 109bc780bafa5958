#pragma once

#include "usbhost/UsbHostSettingsImplementor.h"

namespace quorvel
{

/// The USB host of gateways with the web application, whatever their version.
class AspUsbHostSettingsImplementorV1 : public UsbHostSettingsImplementor
{
public:
    bool getUsbHostInstList(ParamMap& result) override;
    bool getUsbHostAdvancedSettings(const QString& sambaInstance, const QString& connInstance,
                                    ParamMap& result) override;
    bool setUsbHostAdvancedSettings(const QString& sambaInstance, const QString& connInstance,
                                    const ParamMap& values, ParamMap& result) override;
    bool getUsbHostDevices(ParamMap& result) override;
    bool diskUnmount(const QString& deviceId, ParamMap& result) override;
    bool diskMount(const QString& deviceId, ParamMap& result) override;

private:
    bool actOnDisk(const QString& action, const QString& deviceId, ParamMap& result);
};

} // namespace quorvel
