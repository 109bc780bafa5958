#pragma once

#include <quorvel/AspCpeProperties.h>
#include <quorvel/AuthenticationInfo.h>
#include <quorvel/CpeLoginResult.h>
#include <quorvel/QuorvelApi1Export.h>

#include <QString>
#include <boost/shared_ptr.hpp>
#include <functional>

namespace quorvel
{

class AspAdslSettingsFacade;
class AspGeneralSettingsFacade;
class AspUsbHostSettingsFacade;
class AspVoipSettingsFacade;
class AspWanSettingsFacade;
class AspWirelessSettingsFacadeManager;
class Cpe;

/// The host's handle on one gateway: it recognises the gateway when it is first needed, tells which
/// functions it has, logs in and hands out the settings facades.
///
/// Recognition happens at the first call of getCpeProperties, a `has` operation, a facade getter or
/// loginToCpe. It blocks for a login and up to four more exchanges of at most 20 seconds each, and
/// is tried twice. Once it succeeded its finding is kept for the life of the object; until then
/// every such call tries again, so don't poll an unreachable gateway with them. Queued events of
/// the calling thread run meanwhile.
///
/// The object takes no lock: use one object from one thread at a time, but for
/// abortPendingRequests and the static isDeviceAvailable. Different objects may be used from
/// different threads, and so may the facades, as told at AspFacade. Nothing throws.
class QUORVEL_API AspCpeFacadeObject
{
public:
    /// Copies `info`. Sends nothing.
    explicit AspCpeFacadeObject(const AuthenticationInfo& info);
    /// The copy has the same credentials and shares the recognised gateway, if there is one yet.
    AspCpeFacadeObject(const AspCpeFacadeObject& other);
    /// Takes the other object's credentials and shares its gateway.
    AspCpeFacadeObject& operator=(const AspCpeFacadeObject& other);
    /// Gives up the share in the gateway. If it was the last one, and no facade holds one, pending
    /// requests are aborted, those of newer radios excepted.
    virtual ~AspCpeFacadeObject();

    /// Replaces the credentials, always. On a gateway that is recognised already and had others, it
    /// also ends the stored session and logs in anew, which blocks for one exchange. True if there
    /// was nothing to do or the login succeeded; false if the login failed or the gateway is not
    /// recognised yet.
    bool setAuthenticationInfo(const AuthenticationInfo& info);

    /// Logs in unless a session is stored; in any case with `forceLogin`, and with an address that
    /// starts with "http://". Blocks for recognition if that is still due, and for one exchange.
    /// CpeLoginFailed if the gateway can't be recognised or has no general settings.
    CpeLoginResult loginToCpe(bool forceLogin);

    /// What recognition found; all empty if the gateway can't be recognised. `result`, unless null,
    /// then holds -1, and 0 otherwise.
    AspCpeProperties getCpeProperties(int* result);
    /// The same without telling a failure.
    AspCpeProperties getCpeProperties();

    /// Whether the gateway has general settings; false also if it can't be recognised, as with all
    /// the tests below.
    bool hasGeneral();
    bool hasPptp();     ///< Whether it has PPTP tunnels.
    bool hasL2tp();     ///< Whether it has L2TP tunnels.
    bool hasDsl();      ///< Whether it has a DSL line.
    bool hasWan();      ///< Whether it has WAN objects.
    bool hasWireless(); ///< Whether it has a radio of either generation.
    bool hasVoip();     ///< Whether it has telephony.
    bool has3G();       ///< Whether it has a 3G modem.
    bool hasUsbHost();  ///< Whether it has a USB host port.
    bool hasEth();      ///< Whether it has an Ethernet WAN.
    /// Whether it keeps a warranty record.
    bool hasWarrantyRegistrationSupport();
    /// Whether the host wants VDSL settings shown: the configuration value
    /// OSTRA_CONFIG_SHOWVDSLSETTINGS is "1". It says nothing about the gateway and is answered also
    /// without one, but like the other tests it tries to recognise the gateway first.
    bool hasVdsl();

    /// A new facade on the gateway's general settings. Empty if the gateway can't be recognised
    /// (`result`, unless null, then holds -1) or lacks them (`result` holds 0).
    boost::shared_ptr<AspGeneralSettingsFacade> getGeneralSettingsFacade(int* result);
    /// The same without telling why it is empty.
    boost::shared_ptr<AspGeneralSettingsFacade> getGeneralSettingsFacade();

    /// A new facade on the gateway's internet connection, over DSL or over Ethernet. Empty if the
    /// gateway can't be recognised (`result`, unless null, then holds -1) or has neither a DSL line
    /// nor an Ethernet WAN (`result` holds 0).
    boost::shared_ptr<AspAdslSettingsFacade> getAdslSettingsFacade(int* result);
    /// The same without telling why it is empty.
    boost::shared_ptr<AspAdslSettingsFacade> getAdslSettingsFacade();

    /// A new facade on the gateway's WAN objects, under the same rules.
    boost::shared_ptr<AspWanSettingsFacade> getWanSettingsFacade(int* result);
    /// The same without telling why it is empty.
    boost::shared_ptr<AspWanSettingsFacade> getWanSettingsFacade();

    /// A new manager of the gateway's radios, with none of them chosen. Empty if the gateway can't
    /// be recognised (`result`, unless null, then holds -1) or has no radio (`result` holds 0).
    ///
    /// Asks the gateway for its radios and each newer one for its capabilities: an exchange, and
    /// another per newer radio. A gateway that doesn't answer, or lacks general settings, gives a
    /// manager without radios. The parts of a manager stay to the end of the process, so keep it
    /// rather than make another.
    boost::shared_ptr<AspWirelessSettingsFacadeManager> getWirelessSettingsFacadeImp(int* result);
    /// The same with the radio `managerId` chosen, from 0; any number may be given.
    boost::shared_ptr<AspWirelessSettingsFacadeManager> getWirelessSettingsFacadeImp(int managerId,
                                                                                     int* result);
    /// The first form without telling why it is empty.
    boost::shared_ptr<AspWirelessSettingsFacadeManager> getWirelessSettingsFacade();
    /// The second form without telling why it is empty.
    boost::shared_ptr<AspWirelessSettingsFacadeManager> getWirelessSettingsFacade(int managerId);

    /// A new facade on the gateway's telephony, under the same rules.
    boost::shared_ptr<AspVoipSettingsFacade> getVoipSettingsFacade(int* result);
    /// The same without telling why it is empty.
    boost::shared_ptr<AspVoipSettingsFacade> getVoipSettingsFacade();

    /// A new facade on the gateway's USB host port, under the same rules.
    boost::shared_ptr<AspUsbHostSettingsFacade> getUsbHostSettingsFacade(int* result);
    /// The same without telling why it is empty.
    boost::shared_ptr<AspUsbHostSettingsFacade> getUsbHostSettingsFacade();

    /// A handle on the same gateway whose facades change nothing: each of their requests is given
    /// to `take`, as it would go to the web application, and counts as done, with a reply that
    /// holds neither a value nor an error. So a setter's requests tell what it would do. Getters
    /// give their defaults, and where a second request builds on the reply to a first, it is built
    /// on nothing.
    ///
    /// Recognises this object's gateway first if that is still due, as the facade getters do. Empty
    /// if that fails. Nothing of the new handle reaches the gateway, and no session is made or
    /// ended by it: logins count as done, too, and a rehearsed restart or password concerns the new
    /// handle alone. `take` runs on the thread of the operation and must not call into the family
    /// that it is called from. The requests hold secrets in clear.
    boost::shared_ptr<AspCpeFacadeObject> rehearse(
        std::function<void(const QString& request)> take);

    /// Ends the waits of all requests that are under way on this gateway, through whichever facade
    /// or thread, newer radios excepted; they fail with AspWebAppRequestFailed within 100 ms, or if
    /// they were logging in, as told at AspWebAppNoError. Recognition, setAuthenticationInfo and
    /// loginToCpe run to their end. May be called from any thread, as long as this object is not
    /// being recognised, changed or destroyed meanwhile. Later requests are not affected.
    void abortPendingRequests();

    /// Whether something answers plain HTTP at `address` without an error: one GET of its start
    /// page, with no login, in at most 15 seconds. "http://" is put before an address that doesn't
    /// start with it. May be called from any thread; needs a QCoreApplication.
    static bool isDeviceAvailable(const QString& address);

protected:
    /// Makes sure that the gateway is recognised and a session exists, in at most two attempts.
    bool refreshCpe();

private:
    using IsPresent = bool (*)(const AspCpeProperties& found);

    bool refreshSession();
    bool reconstructCpe();
    bool hasFamily(int* result, IsPresent isPresent, const char* failureLine);
    template <typename Facade>
    boost::shared_ptr<Facade> makeFacade(int* result, IsPresent isPresent, const char* failureLine);

    boost::shared_ptr<Cpe> cpe;
    AuthenticationInfo authenticationInfo;
};

} // namespace quorvel
