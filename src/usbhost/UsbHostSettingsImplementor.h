#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

/// Requests of the gateway's USB host port, and of the connection and file-sharing objects behind
/// the shared disks.
class UsbHostSettingsImplementor : public CpeSettingsImplementor
{
public:
    virtual bool getUsbHostInstList(ParamMap& result) = 0;
    virtual bool getUsbHostAdvancedSettings(const QString& sambaInstance,
                                            const QString& connInstance, ParamMap& result) = 0;
    virtual bool setUsbHostAdvancedSettings(const QString& sambaInstance,
                                            const QString& connInstance, const ParamMap& values,
                                            ParamMap& result) = 0;
    virtual bool getUsbHostDevices(ParamMap& result) = 0;
    virtual bool diskUnmount(const QString& deviceId, ParamMap& result) = 0;
    virtual bool diskMount(const QString& deviceId, ParamMap& result) = 0;
};

} // namespace quorvel
