#include <quorvel/AspCpeFacadeObject.h>

#include <quorvel/AspAdslSettingsFacade.h>
#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspUsbHostSettingsFacade.h>
#include <quorvel/AspVoipSettingsFacade.h>
#include <quorvel/AspWanSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "assembly/Cpe.h"
#include "assembly/CpeBuilderDirector.h"
#include "assembly/CpeBuilderFactory.h"
#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Log.h"
#include "protocol/NetworkExchange.h"

#include <ostramw/ConfigDataFactory.h>

#include <QCoreApplication>
#include <boost/make_shared.hpp>

namespace quorvel
{

namespace
{

const int probeLimitMs = 15000;

void report(int* result, int value)
{
    if (result)
        *result = value;
}

bool sameCredentials(const AuthenticationSettingsImplementor& current,
                     const AuthenticationInfo& info)
{
    return current.getCpeAddress() == info.cpeAddress && current.getUser() == info.user &&
           current.getPassword() == info.password;
}

} // namespace

AspCpeFacadeObject::AspCpeFacadeObject(const AuthenticationInfo& info) : authenticationInfo(info) {}

AspCpeFacadeObject::AspCpeFacadeObject(const AspCpeFacadeObject& other) = default;

AspCpeFacadeObject& AspCpeFacadeObject::operator=(const AspCpeFacadeObject& other) = default;

AspCpeFacadeObject::~AspCpeFacadeObject() = default;

bool AspCpeFacadeObject::refreshCpe()
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (cpe ? refreshSession() : reconstructCpe())
            return true;
    }
    return false;
}

bool AspCpeFacadeObject::refreshSession()
{
    logDebug(
        QStringLiteral("AspCpeFacadeObject::refreshCpe -> Cpe is valid. Refreshing session..."));
    if (cpe->ensureSession() != CpeLoginSuccess) {
        logError(QStringLiteral("AspCpeFacadeObject::refreshCpe -> Failed to refresh session!"));
        return false;
    }
    const QString address = cpe->getGeneralImplementor()->getCpeAddress();
    logDebug(QLatin1String("AspCpeFacadeObject::refreshCpe -> Session refreshed. Session ID: ") +
             AspCpeSessionStorage::getInstance()->getSession(address));
    return true;
}

bool AspCpeFacadeObject::reconstructCpe()
{
    logDebug(
        QStringLiteral("AspCpeFacadeObject::refreshCpe -> Cpe is NULL. Reconstructing Cpe..."));
    CpeBuilderDirector director;
    cpe = director.buildCpe(CpeBuilderFactory::getInstance()->createBuilder(0), authenticationInfo);
    if (!cpe) {
        logError(QStringLiteral("AspCpeFacadeObject::refreshCpe -> Failed to construct cpe."));
        return false;
    }
    logDebug(QStringLiteral("AspCpeFacadeObject::refreshCpe -> Cpe constructed."));
    return true;
}

bool AspCpeFacadeObject::setAuthenticationInfo(const AuthenticationInfo& info)
{
    authenticationInfo = info;
    if (!cpe)
        return false;
    const auto general = cpe->getGeneralImplementor();
    if (!general)
        return true;
    const auto authenticator = general->getAuthenticator();
    if (sameCredentials(*authenticator, info))
        return true;
    authenticator->forgetSession();
    authenticator->setAuthenticationInfo(info);
    return cpe->ensureSession() == CpeLoginSuccess;
}

CpeLoginResult AspCpeFacadeObject::loginToCpe(bool forceLogin)
{
    if (!getGeneralSettingsFacade())
        return CpeLoginFailed;
    if (forceLogin)
        cpe->getGeneralImplementor()->getAuthenticator()->forgetSession();
    return static_cast<CpeLoginResult>(cpe->ensureSession());
}

AspCpeProperties AspCpeFacadeObject::getCpeProperties(int* result)
{
    report(result, 0);
    if (!cpe && !refreshCpe())
        report(result, -1);
    if (!cpe) {
        logError(QStringLiteral("AspCpeFacadeObject::getCpeProperties -> Failed to fetch "
                                "properties.Cpe does not exist"));
        report(result, -1);
        return AspCpeProperties();
    }
    const ParamMap& found = *cpe->getParameters();
    return {found.value(CPE_PARAM_XML_VERSION),     found.value(CPE_PARAM_GENERAL_SETTINGS_VERSION),
            found.value(CPE_PARAM_ADSL_VERSION),    found.value(CPE_PARAM_ETHERNET_VERSION),
            found.value(CPE_PARAM_WAN_VERSION),     found.value(CPE_PARAM_WIRELESS_VERSION),
            found.value(CPE_PARAM_VOIP_VERSION),    found.value(CPE_PARAM_3G_VERSION),
            found.value(CPE_PARAM_USBHOST_VERSION), found.value(CPE_PARAM_PPTP_VERSION),
            found.value(CPE_PARAM_L2TP_VERSION),    found.value(CPE_PARAM_WARRANTY_VERSION)};
}

AspCpeProperties AspCpeFacadeObject::getCpeProperties()
{
    return getCpeProperties(nullptr);
}

bool AspCpeFacadeObject::hasGeneral()
{
    return !getCpeProperties().generalSettingsVersion.isEmpty();
}

bool AspCpeFacadeObject::hasPptp()
{
    return !getCpeProperties().pptpVersion.isEmpty();
}

bool AspCpeFacadeObject::hasL2tp()
{
    return !getCpeProperties().l2tpVersion.isEmpty();
}

bool AspCpeFacadeObject::hasDsl()
{
    return !getCpeProperties().adslVersion.isEmpty();
}

bool AspCpeFacadeObject::hasWan()
{
    return !getCpeProperties().wanVersion.isEmpty();
}

bool AspCpeFacadeObject::hasWireless()
{
    return !getCpeProperties().wirelessVersion.isEmpty();
}

bool AspCpeFacadeObject::hasVoip()
{
    return !getCpeProperties().voipVersion.isEmpty();
}

bool AspCpeFacadeObject::has3G()
{
    return !getCpeProperties().threeGVersion.isEmpty();
}

bool AspCpeFacadeObject::hasUsbHost()
{
    return !getCpeProperties().usbHostVersion.isEmpty();
}

bool AspCpeFacadeObject::hasEth()
{
    return !getCpeProperties().ethernetVersion.isEmpty();
}

bool AspCpeFacadeObject::hasWarrantyRegistrationSupport()
{
    return !getCpeProperties().warrantyVersion.isEmpty();
}

bool AspCpeFacadeObject::hasVdsl()
{
    getCpeProperties();
    // A setting of the host's application, not a finding about the gateway.
    return ostramw::ConfigDataFactory::getInstance()->getConfigValue(
               QStringLiteral("OSTRA_CONFIG_SHOWVDSLSETTINGS")) == QLatin1String("1");
}

bool AspCpeFacadeObject::hasFamily(int* result, IsPresent isPresent, const char* failureLine)
{
    if (!cpe && !refreshCpe())
        report(result, -1);
    if (!cpe)
        return false;
    const bool present = isPresent(getCpeProperties(result));
    if (!present)
        logError(QLatin1String(failureLine));
    return present;
}

template <typename Facade>
boost::shared_ptr<Facade> AspCpeFacadeObject::makeFacade(int* result, IsPresent isPresent,
                                                         const char* failureLine)
{
    if (!hasFamily(result, isPresent, failureLine))
        return boost::shared_ptr<Facade>();
    return boost::make_shared<Facade>(cpe);
}

boost::shared_ptr<AspGeneralSettingsFacade> AspCpeFacadeObject::getGeneralSettingsFacade(
    int* result)
{
    return makeFacade<AspGeneralSettingsFacade>(
        result,
        [](const AspCpeProperties& found) { return !found.generalSettingsVersion.isEmpty(); },
        "AspCpeFacadeObject::getGeneralSettingsFacade -> GeneralSettingsVersion is invalid.");
}

boost::shared_ptr<AspGeneralSettingsFacade> AspCpeFacadeObject::getGeneralSettingsFacade()
{
    return getGeneralSettingsFacade(nullptr);
}

boost::shared_ptr<AspAdslSettingsFacade> AspCpeFacadeObject::getAdslSettingsFacade(int* result)
{
    return makeFacade<AspAdslSettingsFacade>(
        result,
        [](const AspCpeProperties& found) {
            return !found.adslVersion.isEmpty() || !found.ethernetVersion.isEmpty();
        },
        "AspCpeFacadeObject::getAdslSettingsFacade -> AdslVersion is invalid.");
}

boost::shared_ptr<AspAdslSettingsFacade> AspCpeFacadeObject::getAdslSettingsFacade()
{
    return getAdslSettingsFacade(nullptr);
}

boost::shared_ptr<AspWanSettingsFacade> AspCpeFacadeObject::getWanSettingsFacade(int* result)
{
    return makeFacade<AspWanSettingsFacade>(
        result, [](const AspCpeProperties& found) { return !found.wanVersion.isEmpty(); },
        "AspCpeFacadeObject::getWanSettingsFacade -> WanVersion is invalid.");
}

boost::shared_ptr<AspWanSettingsFacade> AspCpeFacadeObject::getWanSettingsFacade()
{
    return getWanSettingsFacade(nullptr);
}

boost::shared_ptr<AspWirelessSettingsFacadeManager>
AspCpeFacadeObject::getWirelessSettingsFacadeImp(int* result)
{
    if (!hasFamily(
            result, [](const AspCpeProperties& found) { return !found.wirelessVersion.isEmpty(); },
            "AspCpeFacadeObject::getWirelessSettingsFacade -> WirelessVersion is invalid."))
        return boost::shared_ptr<AspWirelessSettingsFacadeManager>();
    // Without general settings nobody can tell the radios.
    const auto general = getGeneralSettingsFacade();
    const QList<QString> radios = general ? general->getWirelessCoreList() : QList<QString>();
    return boost::make_shared<AspWirelessSettingsFacadeManager>(cpe, radios);
}

boost::shared_ptr<AspWirelessSettingsFacadeManager>
AspCpeFacadeObject::getWirelessSettingsFacadeImp(int managerId, int* result)
{
    const auto manager = getWirelessSettingsFacadeImp(result);
    if (manager)
        manager->setManagerId(managerId);
    return manager;
}

boost::shared_ptr<AspWirelessSettingsFacadeManager> AspCpeFacadeObject::getWirelessSettingsFacade()
{
    return getWirelessSettingsFacadeImp(nullptr);
}

boost::shared_ptr<AspWirelessSettingsFacadeManager> AspCpeFacadeObject::getWirelessSettingsFacade(
    int managerId)
{
    return getWirelessSettingsFacadeImp(managerId, nullptr);
}

boost::shared_ptr<AspVoipSettingsFacade> AspCpeFacadeObject::getVoipSettingsFacade(int* result)
{
    return makeFacade<AspVoipSettingsFacade>(
        result, [](const AspCpeProperties& found) { return !found.voipVersion.isEmpty(); },
        "AspCpeFacadeObject::getVoipSettingsFacade -> VoipVersion is invalid.");
}

boost::shared_ptr<AspVoipSettingsFacade> AspCpeFacadeObject::getVoipSettingsFacade()
{
    return getVoipSettingsFacade(nullptr);
}

boost::shared_ptr<AspUsbHostSettingsFacade> AspCpeFacadeObject::getUsbHostSettingsFacade(
    int* result)
{
    return makeFacade<AspUsbHostSettingsFacade>(
        result, [](const AspCpeProperties& found) { return !found.usbHostVersion.isEmpty(); },
        "AspCpeFacadeObject::getUsbHostSettingsFacade -> UsbHostVersion is invalid.");
}

boost::shared_ptr<AspUsbHostSettingsFacade> AspCpeFacadeObject::getUsbHostSettingsFacade()
{
    return getUsbHostSettingsFacade(nullptr);
}

void AspCpeFacadeObject::abortPendingRequests()
{
    if (cpe)
        cpe->abortPendingRequests();
}

bool AspCpeFacadeObject::isDeviceAvailable(const QString& address)
{
    if (!QCoreApplication::instance()) {
        logError(QStringLiteral("AspCpeFacadeObject::isDeviceAvailable -> A QCoreApplication is "
                                "needed for requests"));
        return false;
    }
    QString text = address;
    // Also before "https://": the probe speaks plain HTTP only.
    if (!text.startsWith(QLatin1String("http://")))
        text.prepend(QLatin1String("http://"));
    NetworkExchange exchange;
    const auto ending = exchange.get(NetworkExchange::request(QUrl(text)), probeLimitMs);
    return ending == NetworkExchange::Ending::Finished &&
           exchange.reply().error() == QNetworkReply::NoError;
}

} // namespace quorvel
