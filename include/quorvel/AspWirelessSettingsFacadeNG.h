#pragma once

#include <quorvel/AspFacade.h>
#include <quorvel/AspWirelessSettingsFacadeImplementor.h>
#include <quorvel/Capabilities.h>

#include <boost/shared_ptr.hpp>

namespace quorvel
{

/// One radio of the newer generation, as "wireless-0", and the first of its access points.
///
/// Told here is only what goes beyond AspWirelessSettingsFacadeImplementor. Requests to these
/// radios can't be aborted. The capabilities are kept: they must not be fetched or set while
/// another thread uses the facade.
class QUORVEL_API AspWirelessSettingsFacadeNG : public AspWirelessSettingsFacadeImplementor,
                                                public AspFacade
{
public:
    using AspFacade::AspFacade;

    /// Radios of this generation don't tell: AspWirelessStatusUnknown, and nothing is sent.
    AspWirelessStatus checkWirelessStatus(AspWebAppErrorCodes& error) override;
    AspWpsEnabledStatus checkWpsEnabledStatus(AspWebAppErrorCodes& error) override;
    /// Can't be set alone: AspWpsStatusUnknown, and nothing is sent.
    AspWpsEnabledStatus setWpsEnabledStatus(bool enabled, AspWebAppErrorCodes& error) override;
    AspWpsRole getWpsRole(AspWebAppErrorCodes& error) override;
    bool isSecurityProxyEnabled(AspWebAppErrorCodes& error) override;
    /// Takes no lock: beside another call to the radio it may fail with AspWebAppRequestFailed.
    AspWirelessSettings getWirelessSettings(AspWebAppErrorCodes& error) override;
    /// Settings go by getWirelessSettingsQuery and setWirelessQuery only: false, and nothing is
    /// sent.
    bool setWirelessSettings(const AspWirelessStatus& status, const AspWirelessSettings& settings,
                             AspWebAppErrorCodes& error) override;
    /// Of the WEP fields only the key is written; the other three go out empty.
    QString getWirelessSettingsQuery(const AspWirelessStatus& status,
                                     const AspWirelessSettings& settings,
                                     AspWebAppErrorCodes& error) override;
    QString setWirelessQuery(const QString& query, AspWebAppErrorCodes& error) override;
    /// Radios of this generation don't tell: empty, nothing is sent, and `error` is left alone.
    QStringList getWirelessClientMacList(AspWebAppErrorCodes& error) override;
    /// An exchange per link that the radio can have by its capabilities, and none without them. A
    /// link without an address is left out.
    QList<AspWirelessMeshInst> getWirelessMeshInstances(AspWebAppErrorCodes& error) override;
    /// Whether the gateway answered, whatever it said.
    bool isWirelessSecurityEnabled(AspWebAppErrorCodes& error) override;
    /// Fetches the capabilities that getCapabilities gives; if that fails, the old ones stay. A
    /// document that isn't JSON gives empty ones. The result is always false; `error` tells.
    bool getWirelessCapabilities(AspWebAppErrorCodes& error) override;
    QString getManager() override;
    void setManager(const QString& newManager) override;
    /// Those that the capabilities name for the band and the radio's transmit mode, which is asked
    /// for. Empty if either doesn't tell.
    QStringList getSupportSecurityModes(int band) override;

    /// What was fetched last. Null before the first fetch. A later fetch leaves the tree alone.
    boost::shared_ptr<Capabilities> getCapabilities() const { return capabilities; }
    /// Replaces what was fetched. May be null.
    void setCapabilities(boost::shared_ptr<Capabilities> newCapabilities)
    {
        capabilities = newCapabilities;
    }

private:
    QString getTxMode(AspWebAppErrorCodes& error);

    QString manager;
    boost::shared_ptr<Capabilities> capabilities;
};

} // namespace quorvel
