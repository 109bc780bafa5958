#pragma once

#include <quorvel/AspFacade.h>
#include <quorvel/AspWirelessSettingsFacadeImplementor.h>

namespace quorvel
{

/// One radio of the older generation, the instance of which is "wireless_core-0". It has the one
/// access point "wireless_ap-0".
///
/// Told here is only what goes beyond AspWirelessSettingsFacadeImplementor.
class QUORVEL_API AspWirelessSettingsFacade : public AspWirelessSettingsFacadeImplementor,
                                              public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// Asks "wireless_core-0" if no instance is set, as the two operations for WPS do.
    AspWirelessStatus checkWirelessStatus(AspWebAppErrorCodes& error) override;
    AspWpsEnabledStatus checkWpsEnabledStatus(AspWebAppErrorCodes& error) override;
    AspWpsEnabledStatus setWpsEnabledStatus(bool enabled, AspWebAppErrorCodes& error) override;
    AspWpsRole getWpsRole(AspWebAppErrorCodes& error) override;
    /// Asks "wireless_core-0", but takes the answer only if that is the instance.
    bool isSecurityProxyEnabled(AspWebAppErrorCodes& error) override;
    /// The frequency is empty unless the instance is "wireless_core-0".
    AspWirelessSettings getWirelessSettings(AspWebAppErrorCodes& error) override;
    /// Needs the instance "wireless_core-0" to switch the radio on or off; with any other an empty
    /// value is written.
    bool setWirelessSettings(const AspWirelessStatus& status, const AspWirelessSettings& settings,
                             AspWebAppErrorCodes& error) override;
    QString getWirelessSettingsQuery(const AspWirelessStatus& status,
                                     const AspWirelessSettings& settings,
                                     AspWebAppErrorCodes& error) override;
    QString setWirelessQuery(const QString& query, AspWebAppErrorCodes& error) override;
    /// Only the first one on gateways that list addresses as "mac" in place of "sta_mac".
    QStringList getWirelessClientMacList(AspWebAppErrorCodes& error) override;
    /// The list ends at the first gap in the gateway's numbering.
    QList<AspWirelessMeshInst> getWirelessMeshInstances(AspWebAppErrorCodes& error) override;
    bool isWirelessSecurityEnabled(AspWebAppErrorCodes& error) override;
    /// There are none to fetch: true, nothing is sent, and `error` is left alone.
    bool getWirelessCapabilities(AspWebAppErrorCodes& error) override;
    QString getManager() override;
    void setManager(const QString& newManager) override;
    /// "off", "wep" and "wpa_both", whatever the band. Sends nothing.
    QStringList getSupportSecurityModes(int band) override;

private:
    QString manager;
};

} // namespace quorvel
