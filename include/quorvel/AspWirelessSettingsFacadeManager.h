#pragma once

#include <quorvel/AspFacade.h>
#include <quorvel/AspWirelessMeshInst.h>
#include <quorvel/AspWirelessSettings.h>
#include <quorvel/AspWirelessStatus.h>
#include <quorvel/AspWpsEnabledStatus.h>
#include <quorvel/AspWpsRole.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace quorvel
{

class AspWirelessSettingsFacadeImplementor;

/// All radios of a gateway, which may be of different generations.
///
/// Some operations ask one radio: the one that setManagerId chose, whatever `index` they are given.
/// An `index` below 0 stops them. So choose a radio first and give its number to both. Others ask
/// all radios, one after the other.
///
/// Blocking, events and errors are as told at AspFacade; an operation makes one exchange per radio
/// that it asks unless it says otherwise. What it does to a radio is told at
/// AspWirelessSettingsFacadeImplementor. A radio that is chosen but doesn't exist gives the same as
/// an `index` below 0: the default, and AspWebAppNoError. One manager, with its copies, belongs to
/// one thread at a time.
class QUORVEL_API AspWirelessSettingsFacadeManager : public AspFacade
{
public:
    /// A manager of the radios among `managers`, instances as the gateway names them: those that
    /// contain "wireless_core" are of the older generation, those that contain "wireless-0" of the
    /// newer one, all others are passed over.
    ///
    /// Asks each newer radio for its capabilities, so it blocks for an exchange per radio. What is
    /// made for a radio here stays to the end of the process; so don't make managers in a loop.
    AspWirelessSettingsFacadeManager(boost::shared_ptr<Cpe> cpe, QStringList managers);
    /// The copy shares the radios and goes its own way in choosing one.
    AspWirelessSettingsFacadeManager(const AspWirelessSettingsFacadeManager& other);
    /// Takes the other manager's radios and choice.
    AspWirelessSettingsFacadeManager& operator=(const AspWirelessSettingsFacadeManager& other);
    /// Leaves the radios' facades alone, as they stay to the end of the process.
    ~AspWirelessSettingsFacadeManager() override;

    /// How many radios there are.
    int getManagerCount();
    /// Chooses a radio, from 0. None is chosen at first. Any number may be given.
    void setManagerId(int id);
    /// Replaces the names of the radios, and nothing but the names.
    void setManagerList(const QStringList& newManagers);

    /// Whether the chosen radio is on. AspWirelessStatusUnknown on failure, and for radios of the
    /// newer generation.
    AspWirelessStatus checkWirelessStatus(int index, AspWebAppErrorCodes& error);
    /// Whether WPS is on at the chosen radio. AspWpsStatusUnknown on failure, and a request that
    /// fails gives AspWebAppNoError.
    AspWpsEnabledStatus checkWpsEnabledStatus(int index, AspWebAppErrorCodes& error);
    /// Name and security of the chosen radio's network. An empty record on failure. `managerIndex`
    /// and `status` are never set.
    AspWirelessSettings getWirelessSettings(int index, AspWebAppErrorCodes& error);
    /// The security modes that the chosen radio's network can have on a band, 1 for 5 GHz and
    /// anything else for 2.4 GHz. Empty on failure. Sends nothing to a radio of the older
    /// generation.
    QStringList getSupportSecurityModes(int band, int index);

    /// Writes the settings of the chosen radio, as
    /// AspWirelessSettingsFacadeImplementor::setWirelessSettings tells. False on failure, and for
    /// radios of the newer generation: they are written by the other form only.
    bool setWirelessSettings(const AspWirelessStatus& status, const AspWirelessSettings& settings,
                             AspWebAppErrorCodes& error);
    /// Writes the settings of all radios in one request, the first record to the first radio and so
    /// on, each with its own `status`; `managerIndex` plays no part, and neither does the choice.
    /// Records beyond the radios are left aside.
    ///
    /// True whatever came of the request: `error` tells. False and nothing sent if there is no
    /// radio, or fewer records than radios. On a gateway with dialect "1.0.0" an empty request is
    /// sent, and nothing changes.
    bool setWirelessSettings(const QList<AspWirelessSettings>& settings,
                             AspWebAppErrorCodes& error);

    /// MAC addresses of the devices in all networks, radio by radio; those of newer radios don't
    /// tell. A radio that fails gives none. `error` is the last asked radio's.
    QStringList getWirelessClientMacList(AspWebAppErrorCodes& error);
    /// The mesh links of all radios, radio by radio. A radio that fails gives none. `error` is the
    /// last radio's. Several exchanges per radio.
    QList<AspWirelessMeshInst> getWirelessMeshInstances(AspWebAppErrorCodes& error);
    /// Whether any radio has security. False on failure. `error` is the last asked radio's; those
    /// behind the first that has are not asked.
    bool isWirelessSecurityEnabled(AspWebAppErrorCodes& error);
    /// Always false: no radio is asked.
    bool isSecurityProxyEnabled(AspWebAppErrorCodes& error);
    /// Always AspWpsRoleUnknown: no radio is asked.
    AspWpsRole getWpsRole(AspWebAppErrorCodes& error);

private:
    using Facades = QList<AspWirelessSettingsFacadeImplementor*>;

    void Initialize();
    Facades getWirelessManagerList();
    Facades getManagerList() const;
    AspWirelessSettingsFacadeImplementor* getManagerList(int index) const;

    template <typename Result, typename Operation>
    Result askChosen(int index, AspWebAppErrorCodes& error, Result otherwise, Operation operation);
    template <typename List>
    List askAll(AspWebAppErrorCodes& error,
                List (AspWirelessSettingsFacadeImplementor::*operation)(AspWebAppErrorCodes&));

    std::int32_t managerId = -1;
    QStringList managers;
    /// Shared by copies and never deleted.
    Facades facades;
};

} // namespace quorvel
