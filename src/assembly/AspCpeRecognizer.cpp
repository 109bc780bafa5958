#include "assembly/AspCpeRecognizer.h"

#include <quorvel/CpeLoginResult.h>

#include "assembly/CpeParameters.h"
#include "general/AspGeneralSettingsImplV1.h"
#include "protocol/AspCpeAuthenticatorV1.h"
#include "protocol/AspRequestFormatterV1.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"
#include "protocol/HttpRequestExecutor.h"
#include "protocol/Log.h"
#include "protocol/ParamKeys.h"
#include "wan/AspWanSettingsImplementorV1.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

namespace
{

const QString present = QStringLiteral("1");

/// Finds the dialect and returns the names of the gateway's managers; false if it doesn't answer.
bool listManagers(AspGeneralSettingsImplV1& general, ParamMap& parameters, QList<QString>& managers)
{
    ParamMap reply;
    if (!general.getManagerList(reply)) {
        logError(QStringLiteral("Recognition failed. Unable to get manager list!"));
        return false;
    }
    QString dialect = reply.value(responseKey);
    if (dialect != QLatin1String("1.0.0")) {
        // Whatever isn't plainly the older dialect is asked again in the newer one. A failure of
        // that leaves the list empty, and so no function is found.
        dialect = QStringLiteral("1.0.1");
        reply.clear();
        general.setResponseParser(boost::make_shared<AspResponseParserV2>());
        general.setRequestFormatter(boost::make_shared<AspRequestFormatterV2>());
        general.getManagerList(reply);
    }
    parameters.insert(CPE_PARAM_XML_VERSION, dialect);
    managers = reply.values();
    return true;
}

void findWireless(const QList<QString>& managers, ParamMap& parameters)
{
    const bool core = managers.contains(wire::wirelessCore);
    const bool newer = managers.contains(wire::wireless);
    if (core || newer)
        parameters.insert(CPE_PARAM_WIRELESS_VERSION, present);
    if (core)
        parameters.insert(CPE_PARAM_WIRELESS_CORE_VERSION, present);
    if (newer)
        parameters.insert(CPE_PARAM_WIRELESS_NG_VERSION, present);
}

void findFunctions(const QList<QString>& managers, ParamMap& parameters)
{
    const struct {
        QLatin1String manager;
        const QString& parameter;
    } functions[] = {{wire::devmgr, CPE_PARAM_GENERAL_SETTINGS_VERSION},
                     {wire::dsl, CPE_PARAM_ADSL_VERSION},
                     {wire::wanVlan, CPE_PARAM_ETHERNET_VERSION},
                     {wire::usbhostMngr, CPE_PARAM_USBHOST_VERSION},
                     {wire::serial, CPE_PARAM_3G_VERSION},
                     {wire::vpn, CPE_PARAM_PPTP_VERSION},
                     {wire::l2tp, CPE_PARAM_L2TP_VERSION},
                     {wire::warranty, CPE_PARAM_WARRANTY_VERSION},
                     {wire::wan, CPE_PARAM_WAN_VERSION}};
    for (const auto& function : functions) {
        if (managers.contains(function.manager))
            parameters.insert(function.parameter, present);
    }
    if (managers.contains(wire::voice)) {
        const bool older = parameters.value(CPE_PARAM_XML_VERSION) == QLatin1String("1.0.0");
        parameters.insert(CPE_PARAM_VOIP_VERSION, older ? present : QStringLiteral("2"));
    }
    findWireless(managers, parameters);
}

/// The newer WAN model tells itself by a flag of the default WAN.
bool hasNewerWan(AspGeneralSettingsImplV1& general)
{
    AspWanSettingsImplementorV1 wan;
    wan.setResponseParser(general.getResponseParser());
    wan.setRequestFormatter(general.getRequestFormatter());
    wan.setAuthenticator(general.getAuthenticator());
    wan.setRequestExecutor(general.getRequestExecutor());
    ParamMap reply;
    if (!wan.getDefaultWan(wire::route0, reply))
        return false;
    const QString name = reply.value(QStringLiteral("route-0.default_gw"), wire::wan0);
    reply.clear();
    general.queryParameter(name, QStringLiteral("isnewwan"), QString(), reply);
    return reply.value(name + QLatin1String(".isnewwan")) == present;
}

QString listed(const ParamMap& parameters)
{
    QString text = QStringLiteral(":");
    for (auto it = parameters.constBegin(); it != parameters.constEnd(); ++it)
        text += it.key() + QLatin1String("->") + it.value() + QLatin1Char('\t');
    return text;
}

} // namespace

bool AspCpeRecognizer::recognize(const AuthenticationInfo& info, ParamMap& parameters)
{
    const auto authenticator = boost::make_shared<AspCpeAuthenticatorV1>();
    const auto executor = boost::make_shared<HttpRequestExecutor>();
    authenticator->setAuthenticationInfo(info);
    // Also if a session is stored: it may belong to other credentials.
    const int login = authenticator->login(executor);
    parameters.insert(AUTH_PARAM_LOGINRESULT, QString::number(login));
    if (login != CpeLoginSuccess)
        return false;
    logDebug(QStringLiteral("Recognizing CPE..."));

    AspGeneralSettingsImplV1 general;
    general.setResponseParser(boost::make_shared<AspResponseParserV1>());
    general.setRequestFormatter(boost::make_shared<AspRequestFormatterV1>());
    general.setAuthenticator(authenticator);
    general.setRequestExecutor(executor);
    QList<QString> managers;
    if (!listManagers(general, parameters, managers))
        return false;
    findFunctions(managers, parameters);
    if (parameters.contains(CPE_PARAM_WAN_VERSION) && hasNewerWan(general))
        parameters.insert(CPE_PARAM_WAN_VERSION, QStringLiteral("2"));

    logDebug(QLatin1String("CPE recognition completed for ") + info.cpeAddress);
    logDebug(QLatin1String("CPE Parameters: ") + listed(parameters));
    return true;
}

} // namespace quorvel
