#include <quorvel/AspWirelessSettingsFacadeNG.h>

#include "wireless/CapabilityDocument.h"
#include "wireless/WirelessCall.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

namespace
{

using Implementor = WirelessSettingsImplementor;

/// The texts that are read and written; the pass-phrase's type is only read.
const TextField<AspWirelessSettings> writtenFields[] = {
    {"ssid", &AspWirelessSettings::ssid},
    {"security_mode", &AspWirelessSettings::securityMode},
    {"wep_authtype", &AspWirelessSettings::wepAuthType},
    {"wep_keytype", &AspWirelessSettings::wepKeyType},
    {"wep_keyindex", &AspWirelessSettings::wepKeyIndex},
    {"wpa_password", &AspWirelessSettings::wpaPassword}};

const RadioFamily family = &Cpe::getWirelessImplementorNG;
/// The one access point that is served.
const QString ap = QStringLiteral("ap0");

/// What stands before the entries of an access point or a mesh link.
QString prefixOf(const QString& manager, const QString& name)
{
    return replyKey(manager, name + QLatin1Char('_'));
}

AspWirelessSettings settingsIn(const ParamMap& reply, const QString& manager)
{
    const QString prefix = prefixOf(manager, ap);
    AspWirelessSettings settings;
    readTexts(settings, writtenFields, reply, prefix);
    readWepKeys(settings, reply, prefix);
    settings.wpaAuthType = reply.value(prefix + wire::wpaAuthtype);
    settings.freq = reply.value(replyKey(manager, wire::band));
    return settings;
}

/// A tree of a document as gateways send it.
boost::shared_ptr<Capabilities> parseCapabilities(QString document)
{
    // Gateways send one character more than the JSON.
    document.chop(1);
    const auto capabilities = boost::make_shared<Capabilities>();
    capabilities->setData(readCapabilityDocument(document));
    capabilities->parse();
    return capabilities;
}

/// The transmit modes of a band; none if the capabilities don't reach that far.
QList<boost::shared_ptr<Mode>> modesOf(const boost::shared_ptr<Capabilities>& capabilities,
                                       int band)
{
    const auto bands = capabilities ? capabilities->getBand() : boost::shared_ptr<Band>();
    if (!bands)
        return {};
    const auto ghz = band == 1 ? bands->getGhz5000() : bands->getGhz2400();
    const auto modes = ghz ? ghz->getModes() : boost::shared_ptr<Modes>();
    return modes ? modes->getItems() : QList<boost::shared_ptr<Mode>>();
}

QStringList securityModesOf(const Mode& mode)
{
    QStringList names;
    if (const auto securityModes = mode.getSecurityModes()) {
        for (const auto& securityMode : securityModes->getItems())
            names.append(securityMode->getName());
    }
    return names;
}

int meshLinkCount(const boost::shared_ptr<Capabilities>& capabilities)
{
    return capabilities && capabilities->getBand() ? capabilities->getWdsPrefix().size() : 0;
}

} // namespace

AspWirelessStatus AspWirelessSettingsFacadeNG::checkWirelessStatus(AspWebAppErrorCodes& error)
{
    error = validateCpe();
    return AspWirelessStatusUnknown;
}

AspWpsEnabledStatus AspWirelessSettingsFacadeNG::checkWpsEnabledStatus(AspWebAppErrorCodes& error)
{
    return fetchWpsEnabledStatus(*this, error, family, manager);
}

AspWpsEnabledStatus AspWirelessSettingsFacadeNG::setWpsEnabledStatus(bool,
                                                                     AspWebAppErrorCodes& error)
{
    error = validateCpe();
    return AspWpsStatusUnknown;
}

AspWpsRole AspWirelessSettingsFacadeNG::getWpsRole(AspWebAppErrorCodes& error)
{
    return fetchWpsRole(*this, error, family, manager,
                        "AspWirelessSettingsFacadeNG::getWpsRole -> Wps Role:",
                        "AspWirelessSettingsFacadeNG::getWpsRole -> Failed to fetch Wps status!");
}

bool AspWirelessSettingsFacadeNG::isSecurityProxyEnabled(AspWebAppErrorCodes& error)
{
    return fetchSecurityProxy(
        *this, error, family, manager,
        "AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Security Proxy: ",
        "AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Failed to fetch proxy status!");
}

AspWirelessSettings AspWirelessSettingsFacadeNG::getWirelessSettings(AspWebAppErrorCodes& error)
{
    AspWirelessSettings settings;
    fetch(
        *this, error, asking(family, &Implementor::getWirelessSettings, ap, manager),
        [&](const ParamMap& reply) {
            settings = settingsIn(reply, manager);
            logDebug(QLatin1String("AspWirelessSettingsFacadeNG::getWirelessSettings -> Wireless "
                                   "Settings:") +
                     listing(settings));
        },
        "AspWirelessSettingsFacadeNG::getWirelessSettings -> Failed to fetch wireless settings!");
    return settings;
}

bool AspWirelessSettingsFacadeNG::setWirelessSettings(const AspWirelessStatus&,
                                                      const AspWirelessSettings&,
                                                      AspWebAppErrorCodes& error)
{
    error = validateCpe();
    return false;
}

QString AspWirelessSettingsFacadeNG::getWirelessSettingsQuery(const AspWirelessStatus& status,
                                                              const AspWirelessSettings& settings,
                                                              AspWebAppErrorCodes& error)
{
    // Three of the WEP values stand under names that the write doesn't look for, so they go out
    // empty: that is how these gateways are written.
    ParamMap values = valuesOf(settings, writtenFields, manager);
    values.insert(replyKey(manager, wire::enabled), enabledText(status));
    return formatSettings(*this, error, family, values, ap, manager);
}

QString AspWirelessSettingsFacadeNG::setWirelessQuery(const QString& query,
                                                      AspWebAppErrorCodes& error)
{
    return sendSettings(*this, error, family, query);
}

QStringList AspWirelessSettingsFacadeNG::getWirelessClientMacList(AspWebAppErrorCodes&)
{
    return QStringList();
}

QList<AspWirelessMeshInst> AspWirelessSettingsFacadeNG::getWirelessMeshInstances(
    AspWebAppErrorCodes& error)
{
    QList<AspWirelessMeshInst> links;
    FacadeCall call(*this, error);
    if (!call.isPermitted())
        return links;
    const int count = meshLinkCount(capabilities);
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("wds%1").arg(i);
        if (!call.ask(family, &Implementor::getWirelessMeshInstanceInfo, name, manager))
            continue;
        const QString prefix = prefixOf(manager, name);
        const QString mac = call.reply().value(prefix + wire::mac);
        if (!mac.isEmpty())
            links.append({mac, isSet(call.reply(), prefix + wire::enabled)});
    }
    logLinks(links);
    call.reportError();
    return links;
}

bool AspWirelessSettingsFacadeNG::isWirelessSecurityEnabled(AspWebAppErrorCodes& error)
{
    // The gateway answers under another name, so every answer counts as security: on these radios
    // the question is whether there is an answer.
    return fetchSecurity(*this, error, family, ap, manager, QStringLiteral("ap0_security_mode"),
                         "AspWirelessSettingsFacadeNG::getWirelessSecurityMode -> Failed to fetch "
                         "wireless security mode!");
}

bool AspWirelessSettingsFacadeNG::getWirelessCapabilities(AspWebAppErrorCodes& error)
{
    fetch(
        *this, error, asking(family, replyLast(&Implementor::getWirelessCapabilities), manager),
        [&](const ParamMap& reply) {
            capabilities =
                parseCapabilities(reply.value(replyKey(manager, wire::wirelessCapabilities)));
            // Both lines speak of another operation.
            logDebug(QStringLiteral("AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> "
                                    "Security Proxy: "));
        },
        "AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Failed to fetch proxy status!");
    return false;
}

QString AspWirelessSettingsFacadeNG::getManager()
{
    return manager;
}

void AspWirelessSettingsFacadeNG::setManager(const QString& newManager)
{
    manager = newManager;
}

QStringList AspWirelessSettingsFacadeNG::getSupportSecurityModes(int band)
{
    AspWebAppErrorCodes unreported;
    const QString txMode = getTxMode(unreported);
    QStringList names;
    if (txMode.isEmpty())
        return names;
    for (const auto& mode : modesOf(capabilities, band)) {
        if (mode->getName() == txMode)
            names += securityModesOf(*mode);
    }
    return names;
}

QString AspWirelessSettingsFacadeNG::getTxMode(AspWebAppErrorCodes& error)
{
    return fetchUnreported(
        *this, error, asking(family, replyLast(&Implementor::getTxMode), manager),
        replyKey(manager, wire::txmode), "AspWirelessSettingsFacadeNG::getTxMode -> TxMode:",
        "AspWirelessSettingsFacadeNG::getTxMode -> Failed to fetch TxMode!");
}

} // namespace quorvel
