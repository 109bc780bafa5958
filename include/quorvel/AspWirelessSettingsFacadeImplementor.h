#pragma once

#include <quorvel/AspWebAppErrorCodes.h>
#include <quorvel/AspWirelessMeshInst.h>
#include <quorvel/AspWirelessSettings.h>
#include <quorvel/AspWirelessStatus.h>
#include <quorvel/AspWpsEnabledStatus.h>
#include <quorvel/AspWpsRole.h>
#include <quorvel/CpeSettingsImplementor.h>
#include <quorvel/QuorvelApi1Export.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace quorvel
{

/// What the facade of one radio offers, of whichever generation it is. A host usually has
/// AspWirelessSettingsFacadeManager, which asks the radios' facades.
///
/// Blocking, threads, events and errors are as told at AspFacade; an operation makes one exchange
/// unless it says otherwise. The classes of the two generations tell where they differ.
class QUORVEL_API AspWirelessSettingsFacadeImplementor : public CpeSettingsImplementor
{
public:
    /// Whether the radio is on. AspWirelessStatusUnknown on failure.
    virtual AspWirelessStatus checkWirelessStatus(AspWebAppErrorCodes& error) = 0;
    /// Whether WPS is on. AspWpsStatusUnknown on failure, and `error` is AspWebAppNoError then.
    virtual AspWpsEnabledStatus checkWpsEnabledStatus(AspWebAppErrorCodes& error) = 0;
    /// Switches WPS on, with the radio as the registrar, or off. Stored and put into effect. The
    /// status that was set, AspWpsStatusUnknown on failure.
    virtual AspWpsEnabledStatus setWpsEnabledStatus(bool enabled, AspWebAppErrorCodes& error) = 0;
    /// The radio's part in WPS. AspWpsRoleUnknown on failure, and `error` is AspWebAppNoError then.
    virtual AspWpsRole getWpsRole(AspWebAppErrorCodes& error) = 0;
    /// Whether the gateway's security proxy is on. False on failure, and if getManager is not the
    /// instance that the gateway answers for.
    virtual bool isSecurityProxyEnabled(AspWebAppErrorCodes& error) = 0;

    /// Name and security of the radio's network. An empty record on failure; `managerIndex` and
    /// `status` are never set.
    virtual AspWirelessSettings getWirelessSettings(AspWebAppErrorCodes& error) = 0;
    /// Writes `settings`, switches the radio on if `status` is AspWirelessEnabled and else off, and
    /// puts WPS into the registrar role. Stored and put into effect, which may end the wireless
    /// connections of all devices, this one's among them.
    ///
    /// The security mode decides what else is written: the password if it begins with "wpa" or
    /// "WPA", the four WEP fields if it begins with "wep" or "WEP", else neither. A reply that
    /// doesn't come in time or can't be read counts as success, with AspWebAppNoError.
    virtual bool setWirelessSettings(const AspWirelessStatus& status,
                                     const AspWirelessSettings& settings,
                                     AspWebAppErrorCodes& error) = 0;
    /// The commands of that write as text, to be joined with those of other radios. Sends nothing.
    /// Empty on a gateway with dialect "1.0.0", which has no such form.
    virtual QString getWirelessSettingsQuery(const AspWirelessStatus& status,
                                             const AspWirelessSettings& settings,
                                             AspWebAppErrorCodes& error) = 0;
    /// Sends texts of getWirelessSettingsQuery, joined with nothing between, in one request. Always
    /// empty; `error` tells how it went, under the same rules as with setWirelessSettings. On a
    /// gateway with dialect "1.0.0" an empty request is sent.
    ///
    /// Takes no lock: beside another call to the radios it may fail with AspWebAppRequestFailed.
    virtual QString setWirelessQuery(const QString& query, AspWebAppErrorCodes& error) = 0;

    /// MAC addresses of the devices in the radio's network, spelled as the gateway spells them.
    /// Empty on failure.
    virtual QStringList getWirelessClientMacList(AspWebAppErrorCodes& error) = 0;
    /// The radio's mesh links. A link that can't be read is left out. Empty on failure. An exchange
    /// per link beside the first; `error` tells of all of them.
    virtual QList<AspWirelessMeshInst> getWirelessMeshInstances(AspWebAppErrorCodes& error) = 0;
    /// Whether the network has any security mode but "off". False on failure.
    virtual bool isWirelessSecurityEnabled(AspWebAppErrorCodes& error) = 0;
    /// Fetches what the radio can do, where its generation tells it. The result says nothing.
    virtual bool getWirelessCapabilities(AspWebAppErrorCodes& error) = 0;

    /// The instance that stands for the radio, as "wireless_core-0". Empty at first.
    virtual QString getManager() = 0;
    /// Sets that instance. Sends nothing; not while another thread uses the facade.
    virtual void setManager(const QString& newManager) = 0;

    /// The security modes that the network can have. `band` is 1 for 5 GHz and anything else for
    /// 2.4 GHz.
    virtual QStringList getSupportSecurityModes(int band) = 0;
};

} // namespace quorvel
