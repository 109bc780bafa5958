#pragma once

#include <quorvel/AspDeviceWarrantyInformation.h>
#include <quorvel/AspDhcpsClient.h>
#include <quorvel/AspFacade.h>
#include <quorvel/TelvoraCpeRouterMode.h>

#include <QList>
#include <QString>

namespace quorvel
{

/// Identity of a gateway, administrator password, reboot and factory reset, default gateway, DHCP
/// clients, manager lists, warranty record and session checks.
///
/// Blocking, threads, events and errors are as told at AspFacade; every operation makes one
/// exchange unless it says otherwise.
class QUORVEL_API AspGeneralSettingsFacade : public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// MAC address of the Ethernet port, spelled as the gateway spells it. Empty on failure.
    QString getEthMacAddress(AspWebAppErrorCodes& error);
    /// MAC address of the DSL port, spelled as the gateway spells it. Empty on failure.
    QString getDslMacAddress(AspWebAppErrorCodes& error);
    /// MAC address of the wireless radio, spelled as the gateway spells it. Empty on failure.
    QString getWlanMacAddress(AspWebAppErrorCodes& error);
    /// Version of the firmware that the gateway runs. Empty on failure.
    QString getFirmwareVersion(AspWebAppErrorCodes& error);
    /// The gateway's product id, or where it has none the one burnt into its hardware. Empty on
    /// failure.
    QString getModelName(AspWebAppErrorCodes& error);
    /// Serial number of the gateway. Empty on failure.
    QString getSerialNumber(AspWebAppErrorCodes& error);

    /// Whether the gateway routes or is an access point. TelvoraCpeRouterModeUnknown on failure.
    ///
    /// Takes no lock: beside another call into this family it may fail with
    /// AspWebAppRequestFailed, and it must not run beside one on another thread.
    TelvoraCpeRouterMode getRouterMode(AspWebAppErrorCodes& error);

    /// Changes the router mode, stores it and puts it into effect. `mode` is the gateway's word,
    /// "router" or "ap"; it is sent as it is. Whether the gateway answered; see `error` for its
    /// verdict. The gateway may change its address and drop connections.
    bool setCpeInternetModeAp2Router(const QString& mode, AspWebAppErrorCodes& error);

    /// Changes the administrator password on the gateway, stores it and puts it into effect. Later
    /// logins through this gateway object use the new password; after a failure they keep the old
    /// one. Whether the gateway answered; see `error` for its verdict.
    bool setCpePassword(const QString& password, AspWebAppErrorCodes& error);
    /// Whether `password` is the administrator password. False also on failure; `error` tells.
    bool checkCpePassword(const QString& password, AspWebAppErrorCodes& error);

    /// Name of the WAN instance that is the default gateway, as "wan-0". `routeInstance` must be
    /// "route-0": for any other text the result is empty. Empty on failure.
    QString getDefaultGw(const QString& routeInstance, AspWebAppErrorCodes& error);
    /// Makes `wanInstance` the default gateway, enables it, stores both and puts them into effect.
    /// `routeInstance` must be "route-0". Whether the gateway answered; see `error` for its
    /// verdict. The internet connection may be interrupted.
    bool setDefaultGw(const QString& routeInstance, const QString& wanInstance,
                      AspWebAppErrorCodes& error);

    /// Whether a changed setting waits for a reboot. False on failure.
    ///
    /// Takes no lock: beside another call into this family it may fail with
    /// AspWebAppRequestFailed, and it must not run beside one on another thread.
    bool isRebootRequired(AspWebAppErrorCodes& error);
    /// How long a reboot takes, in the gateway's own unit (milliseconds on the gateways known so
    /// far). 60003 if the gateway can't be asked or gives no number; 0 if there is no gateway.
    int getRebootDuration(AspWebAppErrorCodes& error);
    /// How long a firmware upgrade takes, in the gateway's own unit. 200004 if the gateway can't be
    /// asked or gives no number; 0 if there is no gateway.
    int getFwUpgradeDuration(AspWebAppErrorCodes& error);
    /// Restarts the gateway and returns how long that takes, as getRebootDuration does; 0 if there
    /// is no gateway. The duration is returned also if the command could not be sent: `error`
    /// tells, and a gateway that stops answering counts as success. The session ends in any case.
    /// Two exchanges.
    int rebootCpe(AspWebAppErrorCodes& error);
    /// Resets the gateway to its factory settings, which loses all settings, and restarts it.
    /// Returns and reports as rebootCpe does. Two exchanges.
    int factoryDefault(AspWebAppErrorCodes& error);

    /// The warranty record. Empty on failure.
    AspDeviceWarrantyInformation getWarrantyInformation(AspWebAppErrorCodes& error);
    /// Replaces all six texts of the warranty record, empty ones included, and stores it. Whether
    /// the gateway answered; see `error` for its verdict.
    bool setWarrantyInformation(const AspDeviceWarrantyInformation& info,
                                AspWebAppErrorCodes& error);

    /// Whether the gateway takes `session` for a valid session. False also on failure.
    bool checkSession(const QString& session, AspWebAppErrorCodes& error);
    /// The session under which requests go out at the moment, a secret; empty if there is none or
    /// no gateway. Sends nothing.
    QString getCurrentSessionId();

    /// The clients with a reserved address. Empty on failure. Clients whose MAC address is all
    /// zeros are left out, and the list ends at the first gap in the gateway's numbering.
    QList<AspDhcpsClient> getStaticClientList(AspWebAppErrorCodes& error);
    /// The clients with a lease, under the same rules as getStaticClientList.
    QList<AspDhcpsClient> getDynamicClientList(AspWebAppErrorCodes& error);

    /// Names of the managers that run on the gateway, as "wan", in no useful order. Empty on
    /// failure. A "0" stands among them if the request had to log in first.
    QList<QString> getManagerList(AspWebAppErrorCodes& error);
    /// Names of the instances of `manager`, as "wan-0". Empty on failure. A "0" stands among them
    /// if the request had to log in first.
    QList<QString> getManagerInstanceList(const QString& manager, AspWebAppErrorCodes& error);
    /// Names of the radios of both generations, as "wireless_core-0" and "wireless-0". Empty on
    /// failure.
    QList<QString> getWirelessCoreList(AspWebAppErrorCodes& error);
    /// The same without telling an error: empty may mean none or failure.
    QList<QString> getWirelessCoreList();
};

} // namespace quorvel
