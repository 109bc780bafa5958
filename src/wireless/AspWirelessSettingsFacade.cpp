#include <quorvel/AspWirelessSettingsFacade.h>

#include "protocol/Vocabulary.h"
#include "wireless/WirelessCall.h"

namespace quorvel
{

namespace
{

using Implementor = WirelessSettingsImplementor;

const Word<AspWirelessStatus> statusWords[] = {{"1", AspWirelessEnabled},
                                               {"0", AspWirelessDisabled}};

/// The texts that are read and written, and those that are only read.
const TextField<AspWirelessSettings> writtenFields[] = {
    {"ssid", &AspWirelessSettings::ssid},
    {"sec_mode", &AspWirelessSettings::securityMode},
    {"wep_auth_type", &AspWirelessSettings::wepAuthType},
    {"wep_key_type", &AspWirelessSettings::wepKeyType},
    {"wep_key_index", &AspWirelessSettings::wepKeyIndex},
    {"wpa_password", &AspWirelessSettings::wpaPassword}};
const TextField<AspWirelessSettings> readFields[] = {
    {"wpa_auth_type", &AspWirelessSettings::wpaAuthType},
    {"wpa_rekey_interval", &AspWirelessSettings::wpaRekeyInterval},
    {"wpa_radius_addr", &AspWirelessSettings::wpaRadiusAddr},
    {"wpa_radius_port", &AspWirelessSettings::wpaRadiusPort},
    {"wpa_radius_key", &AspWirelessSettings::wpaRadiusKey},
    {"wpa_radius_eap_reauth_period", &AspWirelessSettings::wpaRadiusEapReauthPeriod},
    {"wpa2_rsn_preauth", &AspWirelessSettings::wpa2RsnPreauth}};

const RadioFamily family = &Cpe::getWirelessImplementor;
const QString ap = wire::wirelessAp0;

QString orDefault(const QString& manager)
{
    return manager.isEmpty() ? QString(wire::wirelessCore0) : manager;
}

AspWirelessSettings settingsIn(const ParamMap& reply, const QString& manager)
{
    const QString prefix = replyKey(ap, QString());
    AspWirelessSettings settings;
    readTexts(settings, writtenFields, reply, prefix);
    readTexts(settings, readFields, reply, prefix);
    readWepKeys(settings, reply, prefix);
    // The core is asked whatever the manager is, so with another one this stays empty.
    settings.freq = reply.value(replyKey(manager, wire::freq));
    return settings;
}

ParamMap valuesToWrite(AspWirelessStatus status, const AspWirelessSettings& settings,
                       const QString& manager)
{
    ParamMap values = valuesOf(settings, writtenFields, ap);
    values.insert(replyKey(manager, wire::enabled), enabledText(status));
    return values;
}

QStringList clientsIn(const ParamMap& reply)
{
    const QString stem = QStringLiteral("wireless_ap-0.station");
    const NumberedEntries macs(reply, stem, QStringLiteral(".sta_mac"));
    // Only the first station is looked for in the other spelling.
    const auto otherFirst = reply.constFind(stem + QLatin1String("1.mac"));
    QStringList clients;
    const QString* client = macs.find(1);
    if (!client && otherFirst != reply.constEnd())
        client = &otherFirst.value();
    for (int next = 2; client; ++next) {
        clients.append(*client);
        client = macs.find(next);
    }
    return clients;
}

} // namespace

AspWirelessStatus AspWirelessSettingsFacade::checkWirelessStatus(AspWebAppErrorCodes& error)
{
    const QString core = orDefault(manager);
    const QString status = fetchText(
        *this, error, asking(family, replyLast(&Implementor::checkWirelessStatus), core),
        replyKey(core, wire::enabled),
        "AspWirelessSettingsFacade::checkWirelessStatus -> Wireless Status:",
        "AspWirelessSettingsFacade::checkWirelessStatus -> Failed to fetch wireless status!");
    return meaningOf(status, statusWords, AspWirelessStatusUnknown);
}

AspWpsEnabledStatus AspWirelessSettingsFacade::checkWpsEnabledStatus(AspWebAppErrorCodes& error)
{
    return fetchWpsEnabledStatus(*this, error, family, orDefault(manager));
}

AspWpsEnabledStatus AspWirelessSettingsFacade::setWpsEnabledStatus(bool enabled,
                                                                   AspWebAppErrorCodes& error)
{
    AspWpsEnabledStatus status = AspWpsStatusUnknown;
    fetch(
        *this, error,
        asking(family, replyLast(&Implementor::setWpsEnabledStatus), enabled, orDefault(manager)),
        [&](const ParamMap&) {
            status = enabled ? AspWpsEnabled : AspWpsDisabled;
            logDebug(QStringLiteral("AspWirelessSettingsFacade::setWpsEnabledStatus "
                                    "successfully..."));
        },
        "AspWirelessSettingsFacade::setWpsEnabledStatus -> Failed to set Wps status!");
    return status;
}

AspWpsRole AspWirelessSettingsFacade::getWpsRole(AspWebAppErrorCodes& error)
{
    return fetchWpsRole(*this, error, family, wire::wirelessCore0,
                        "AspWirelessSettingsFacade::getWpsRole -> Wps Role:",
                        "AspWirelessSettingsFacade::getWpsRole -> Failed to fetch Wps status!");
}

bool AspWirelessSettingsFacade::isSecurityProxyEnabled(AspWebAppErrorCodes& error)
{
    return fetchSecurityProxy(
        *this, error, family, manager,
        "AspWirelessSettingsFacade::isSecurityProxyEnabled -> Security Proxy: ",
        "AspWirelessSettingsFacade::isSecurityProxyEnabled -> Failed to fetch proxy status!");
}

AspWirelessSettings AspWirelessSettingsFacade::getWirelessSettings(AspWebAppErrorCodes& error)
{
    AspWirelessSettings settings;
    fetch(
        *this, error, asking(family, &Implementor::getWirelessSettings, ap, manager),
        [&](const ParamMap& reply) {
            settings = settingsIn(reply, manager);
            logDebug(QLatin1String("AspWirelessSettingsFacade::getWirelessSettings -> Wireless "
                                   "Settings:") +
                     listing(settings));
        },
        "AspWirelessSettingsFacade::getWirelessSettings -> Failed to fetch wireless settings!");
    return settings;
}

bool AspWirelessSettingsFacade::setWirelessSettings(const AspWirelessStatus& status,
                                                    const AspWirelessSettings& settings,
                                                    AspWebAppErrorCodes& error)
{
    // A failure without a trace is a reply that was lost while the radio restarts.
    return changeUnlessDenied(*this, error,
                              asking(family, &Implementor::setWirelessSettings,
                                     valuesToWrite(status, settings, manager), manager));
}

QString AspWirelessSettingsFacade::getWirelessSettingsQuery(const AspWirelessStatus& status,
                                                            const AspWirelessSettings& settings,
                                                            AspWebAppErrorCodes& error)
{
    return formatSettings(*this, error, family, valuesToWrite(status, settings, manager), ap,
                          manager);
}

QString AspWirelessSettingsFacade::setWirelessQuery(const QString& query,
                                                    AspWebAppErrorCodes& error)
{
    return sendSettings(*this, error, family, query);
}

QStringList AspWirelessSettingsFacade::getWirelessClientMacList(AspWebAppErrorCodes& error)
{
    QStringList clients;
    fetch(
        *this, error, asking(family, &Implementor::getWirelessClientMacList, ap),
        [&](const ParamMap& reply) {
            clients = clientsIn(reply);
            logAddresses(clients);
        },
        "AspWirelessSettingsFacade::getWirelessClientMacList -> Failed to fetch client list!");
    return clients;
}

QList<AspWirelessMeshInst> AspWirelessSettingsFacade::getWirelessMeshInstances(
    AspWebAppErrorCodes& error)
{
    QList<AspWirelessMeshInst> links;
    FacadeCall call(*this, error);
    if (!call.isPermitted())
        return links;
    if (call.ask(family, &Implementor::getWirelessMeshInstances)) {
        const QList<QString> instances =
            numberedValues(call.reply(), QStringLiteral("devmgr-0.wireless_wds.inst"), 0);
        for (const QString& instance : instances) {
            if (call.ask(family, &Implementor::getWirelessMeshInstanceInfo, instance, manager))
                links.append({call.reply().value(replyKey(instance, wire::mac)),
                              isSet(call.reply(), replyKey(instance, wire::enabled))});
        }
        logLinks(links);
    } else {
        logError(QStringLiteral("AspWirelessSettingsFacade::getWirelessClientMacList -> Failed to "
                                "fetch client list!"));
    }
    call.reportError();
    return links;
}

bool AspWirelessSettingsFacade::isWirelessSecurityEnabled(AspWebAppErrorCodes& error)
{
    return fetchSecurity(*this, error, family, ap, manager, replyKey(ap, wire::secMode),
                         "AspWirelessSettingsFacade::getWirelessSecurityMode -> Failed to fetch "
                         "wireless security mode!");
}

bool AspWirelessSettingsFacade::getWirelessCapabilities(AspWebAppErrorCodes&)
{
    return true;
}

QString AspWirelessSettingsFacade::getManager()
{
    return manager;
}

void AspWirelessSettingsFacade::setManager(const QString& newManager)
{
    manager = newManager;
}

QStringList AspWirelessSettingsFacade::getSupportSecurityModes(int)
{
    return {QStringLiteral("off"), QStringLiteral("wep"), QStringLiteral("wpa_both")};
}

} // namespace quorvel
