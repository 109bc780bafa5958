#pragma once

#include "assembly/CpeParameters.h"

#include <quorvel/ParamMap.h>

#include <boost/shared_ptr.hpp>

namespace quorvel
{

class AdslSettingsImplementor;
class GeneralSettingsImplementor;
class UsbHostSettingsImplementor;
class VoipSettingsImplementor;
class WanSettingsImplementor;
class WirelessSettingsImplementor;

/// One recognised gateway, put together for what it can do: an implementor per family, null where
/// the gateway lacks the family. Nothing changes after building.
class Cpe
{
public:
    Cpe() = default;
    /// Aborts pending requests, then releases the parts.
    virtual ~Cpe();

    boost::shared_ptr<AdslSettingsImplementor> getAdslImplementor() const { return adsl; }
    void setAdslImplementor(boost::shared_ptr<AdslSettingsImplementor> implementor)
    {
        adsl = implementor;
    }
    boost::shared_ptr<WirelessSettingsImplementor> getWirelessImplementor() const
    {
        return wireless;
    }
    void setWirelessImplementor(boost::shared_ptr<WirelessSettingsImplementor> implementor)
    {
        wireless = implementor;
    }
    boost::shared_ptr<WirelessSettingsImplementor> getWirelessImplementorNG() const
    {
        return wirelessNG;
    }
    void setWirelessImplementorNG(boost::shared_ptr<WirelessSettingsImplementor> implementor)
    {
        wirelessNG = implementor;
    }
    boost::shared_ptr<VoipSettingsImplementor> getVoipImplementor() const { return voip; }
    void setVoipImplementor(boost::shared_ptr<VoipSettingsImplementor> implementor)
    {
        voip = implementor;
    }
    boost::shared_ptr<GeneralSettingsImplementor> getGeneralImplementor() const { return general; }
    void setGeneralImplementor(boost::shared_ptr<GeneralSettingsImplementor> implementor)
    {
        general = implementor;
    }
    boost::shared_ptr<WanSettingsImplementor> getWanImplementor() const { return wan; }
    void setWanImplementor(boost::shared_ptr<WanSettingsImplementor> implementor)
    {
        wan = implementor;
    }
    boost::shared_ptr<UsbHostSettingsImplementor> getUsbHostImplementor() const { return usbHost; }
    void setUsbHostImplementor(boost::shared_ptr<UsbHostSettingsImplementor> implementor)
    {
        usbHost = implementor;
    }

    bool hasVoipImplementor() const { return voip.get() != nullptr; }
    bool hasUsbHostImplementor() const { return usbHost.get() != nullptr; }

    boost::shared_ptr<ParamMap> getParameters() const { return parameters; }
    void setParameters(boost::shared_ptr<ParamMap> newParameters) { parameters = newParameters; }

    /// Ends the waits of all families but the newer wireless one, whose requests run to their end.
    /// Callable from any thread.
    void abortPendingRequests();

    /// Makes sure that a session is stored, logging in if there is none. A CpeLoginResult.
    int ensureSession();

private:
    Q_DISABLE_COPY(Cpe)

    boost::shared_ptr<AdslSettingsImplementor> adsl;
    boost::shared_ptr<WirelessSettingsImplementor> wireless;
    boost::shared_ptr<WirelessSettingsImplementor> wirelessNG;
    boost::shared_ptr<VoipSettingsImplementor> voip;
    boost::shared_ptr<GeneralSettingsImplementor> general;
    boost::shared_ptr<WanSettingsImplementor> wan;
    boost::shared_ptr<ParamMap> parameters;
    boost::shared_ptr<UsbHostSettingsImplementor> usbHost;
};

} // namespace quorvel
