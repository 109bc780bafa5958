#pragma once

#include <quorvel/AspFacade.h>
#include <quorvel/AspUsbHostDevices.h>

#include <QString>

namespace quorvel
{

/// USB host port of a gateway: its devices, mounting and unmounting of disks, and the settings of
/// file sharing.
///
/// Blocking, threads, events and errors are as told at AspFacade; every operation makes one
/// exchange unless it says otherwise. A gateway without a USB host port gives the stated default
/// with AspWebAppNoError, and nothing is sent.
class QUORVEL_API AspUsbHostSettingsFacade : public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// The printers and disks on the port; devices of other kinds are left out. `advanced` stays
    /// empty. Empty on failure, and if the gateway's count of devices is no positive number.
    AspUsbHostDevices getUsbHostDevices(AspWebAppErrorCodes& error);
    /// Whether there is a printer, and whether a disk is mounted. Both false on failure, which only
    /// `error` tells from a port with nothing on it.
    void getUsbStatus(bool& printerConnected, bool& diskMounted, AspWebAppErrorCodes& error);

    /// Mounts a disk. `deviceId` is the disk's, and is sent as it is. Always false, also on
    /// success: `error` alone tells what the gateway says, and the list of devices what is mounted.
    bool diskMount(const QString& deviceId, AspWebAppErrorCodes& error);
    /// Unmounts a disk, so that it can be unplugged, under the same rules.
    bool diskUnmount(const QString& deviceId, AspWebAppErrorCodes& error);

    /// The settings of file sharing, with the objects that hold them: the first connection and the
    /// first file-sharing service of the gateway. Empty on failure. Two exchanges.
    AspUsbHostAdvancedSettings getUsbHostAdvancedSettings(AspWebAppErrorCodes& error);
    /// Replaces the three texts of `settings.advanced`, empty ones included, puts them into effect
    /// and stores them; the devices are not used. `settings.advanced.instances` must be as
    /// getUsbHostAdvancedSettings gave it, or the texts go astray. A gateway that stops answering
    /// counts as success, because the change may cut the connection: false only if the request
    /// failed and left a trace.
    bool setUsbHostAdvancedSettings(AspUsbHostDevices settings, AspWebAppErrorCodes& error);
};

} // namespace quorvel
