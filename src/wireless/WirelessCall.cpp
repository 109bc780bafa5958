#include "wireless/WirelessCall.h"

namespace quorvel
{

namespace
{

using Implementor = WirelessSettingsImplementor;

const Word<AspWpsEnabledStatus> wpsWords[] = {{"1", AspWpsEnabled}, {"0", AspWpsDisabled}};

const Word<AspWpsRole> roleWords[] = {{"enrollee", AspWpsEnrollee}, {"registrar", AspWpsRegistrar}};

} // namespace

AspWpsEnabledStatus fetchWpsEnabledStatus(AspFacade& facade, AspWebAppErrorCodes& error,
                                          RadioFamily family, const QString& instance)
{
    const QString status = fetchUnreported(
        facade, error, asking(family, replyLast(&Implementor::checkWpsEnabledStatus), instance),
        replyKey(instance, wire::wpsEnabled),
        "AspWirelessSettingsFacade::checkWpsEnabledStatus -> Wps Status:",
        "AspWirelessSettingsFacade::checkWpsEnabledStatus -> Failed to fetch Wps status!");
    return meaningOf(status, wpsWords, AspWpsStatusUnknown);
}

AspWpsRole fetchWpsRole(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                        const QString& instance, const char* label, const char* failureLine)
{
    const QString role = fetchUnreported(
        facade, error, asking(family, replyLast(&Implementor::getWpsRole), instance),
        replyKey(instance, wire::wpsRole), label, failureLine);
    return meaningOf(role, roleWords, AspWpsRoleUnknown);
}

bool fetchSecurityProxy(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                        const QString& instance, const char* label, const char* failureLine)
{
    bool on = false;
    fetch(
        facade, error, asking(family, replyLast(&Implementor::isSecurityProxyEnabled), instance),
        [&](const ParamMap& reply) {
            on = isSet(reply, replyKey(instance, wire::securityProxy));
            logDebug(QLatin1String(label) + QLatin1String(on ? "ENABLED" : "DISABLED"));
        },
        failureLine);
    return on;
}

bool fetchSecurity(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                   const QString& ap, const QString& manager, const QString& key,
                   const char* failureLine)
{
    bool secured = false;
    fetch(
        facade, error, asking(family, &Implementor::getWirelessSecurityMode, ap, manager),
        [&](const ParamMap& reply) { secured = reply.value(key) != QLatin1String("off"); },
        failureLine);
    return secured;
}

QString formatSettings(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                       const ParamMap& values, const QString& ap, const QString& manager)
{
    QString commands;
    change(facade, error, [&](FacadeCall& call) {
        return call.ask(family, [&](Implementor& radio, ParamMap& reply) {
            commands = radio.getWirelessSettingsQuery(values, ap, manager, reply);
            return true;
        });
    });
    return commands;
}

QString sendSettings(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                     const QString& query)
{
    change(facade, error, [&](FacadeCall& call) {
        return call.ask(family, [&](Implementor& radio, ParamMap& reply) {
            // A radio may drop the very link that the reply would come by.
            return radio.executeRequest(radio.getRequestFormatter()->wrapCommands(query), reply,
                                        true);
        });
    });
    return QString();
}

void readWepKeys(AspWirelessSettings& settings, const ParamMap& reply, const QString& prefix)
{
    const QLatin1String keys[] = {wire::wepKey1, wire::wepKey2, wire::wepKey3, wire::wepKey4};
    for (int i = 0; i < 4; ++i)
        settings.wepKeys[i] = reply.value(prefix + keys[i]);
}

QString listing(const AspWirelessSettings& settings)
{
    return QLatin1String("\nSSID:\t") + settings.ssid + QLatin1String("\nSecurity Mode:\t") +
           settings.securityMode + QLatin1String("\nWEP Authentication Type:\t") +
           settings.wepAuthType + QLatin1String("\nWPA Authentication Type:\t") +
           settings.wpaAuthType;
}

void logAddresses(const QStringList& addresses)
{
    QString text = QStringLiteral("AspWirelessSettingsFacade::getWirelessClientMacList -> Client "
                                  "MAC List:");
    for (const QString& address : addresses)
        text += address + QLatin1Char('\n');
    logDebug(text);
}

void logLinks(const QList<AspWirelessMeshInst>& links)
{
    QStringList addresses;
    for (const AspWirelessMeshInst& link : links)
        addresses.append(link.mac);
    logAddresses(addresses);
}

} // namespace quorvel
