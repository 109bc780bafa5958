#include <quorvel/AspGeneralSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "general/GeneralCall.h"
#include "general/GeneralKeys.h"
#include "protocol/Vocabulary.h"

namespace quorvel
{

namespace
{

const TextField<AspDeviceWarrantyInformation> warrantyFields[] = {
    {"name", &AspDeviceWarrantyInformation::name},
    {"email", &AspDeviceWarrantyInformation::email},
    {"phone", &AspDeviceWarrantyInformation::phone},
    {"token", &AspDeviceWarrantyInformation::token},
    {"usertoken", &AspDeviceWarrantyInformation::usertoken},
    {"timestamp", &AspDeviceWarrantyInformation::timestamp}};

QString sysmgrKey(QLatin1String entry)
{
    return replyKey(wire::sysmgr0, entry);
}

TelvoraCpeRouterMode routerModeOf(const QString& text)
{
    const QString mode = text.toLower();
    if (mode == QLatin1String("router"))
        return TelvoraCpeRouterModeRouter;
    if (mode == QLatin1String("ap"))
        return TelvoraCpeRouterModeAp;
    return TelvoraCpeRouterModeUnknown;
}

} // namespace

QString AspGeneralSettingsFacade::getEthMacAddress(AspWebAppErrorCodes& error)
{
    return fetchText(*this, error, general(&GeneralSettingsImplementor::getEthMacAddress),
                     sysmgrKey(wire::macEth0),
                     "AspGeneralSettingsFacade::getEthMacAddress -> Ethernet MAC Address:",
                     "AspGeneralSettingsFacade::getEthMacAddress -> Failed to fetch ethernet MAC "
                     "Address!");
}

QString AspGeneralSettingsFacade::getDslMacAddress(AspWebAppErrorCodes& error)
{
    return fetchText(
        *this, error, general(&GeneralSettingsImplementor::getDslMacAddress),
        sysmgrKey(wire::macDsl0), "AspGeneralSettingsFacade::getDslMacAddress -> DSL MAC Address:",
        "AspGeneralSettingsFacade::getDslMacAddress -> Failed to fetch DSL MAC Address!");
}

QString AspGeneralSettingsFacade::getWlanMacAddress(AspWebAppErrorCodes& error)
{
    return fetchText(
        *this, error, general(&GeneralSettingsImplementor::getWlanMacAddress),
        sysmgrKey(wire::macWlan0),
        "AspGeneralSettingsFacade::getWlanMacAddress -> WLAN MAC Address:",
        "AspGeneralSettingsFacade::getWlanMacAddress -> Failed to fetch WLAN MAC Address!");
}

QString AspGeneralSettingsFacade::getFirmwareVersion(AspWebAppErrorCodes& error)
{
    return fetchText(
        *this, error, general(&GeneralSettingsImplementor::getFirmwareVersion),
        sysmgrKey(wire::fwversion),
        "AspGeneralSettingsFacade::getFirmwareVersion -> Firmware Version:",
        "AspGeneralSettingsFacade::getFirmwareVersion -> Failed to fetch firmware version!");
}

QString AspGeneralSettingsFacade::getSerialNumber(AspWebAppErrorCodes& error)
{
    return fetchText(*this, error, general(&GeneralSettingsImplementor::getSerialNumber),
                     sysmgrKey(wire::serialNumber),
                     "AspGeneralSettingsFacade::getSerialNumber -> Serial No:",
                     "AspGeneralSettingsFacade::getSerialNumber -> Failed to fetch serial no!");
}

QString AspGeneralSettingsFacade::getDefaultGw(const QString& routeInstance,
                                               AspWebAppErrorCodes& error)
{
    return fetchText(*this, error,
                     general(&GeneralSettingsImplementor::getDefaultGw, routeInstance),
                     replyKey(routeInstance, wire::defaultGw),
                     "AspGeneralSettingsFacade::getDefaultGw -> Default Gateway:",
                     "AspGeneralSettingsFacade::getDefaultGw -> Failed to fetch default gateway!");
}

QString AspGeneralSettingsFacade::getModelName(AspWebAppErrorCodes& error)
{
    QString model;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::getModelName),
        [&](const ParamMap& reply) {
            const QString hardwareKey = sysmgrKey(wire::hardwareProductId);
            model = reply.value(sysmgrKey(wire::productId));
            if (model.isEmpty())
                model = reply.value(hardwareKey);
            // The line names the key, not the value.
            logDebug(QLatin1String("AspGeneralSettingsFacade::getModelName -> Model Name:") +
                     hardwareKey);
        },
        "AspGeneralSettingsFacade::getModelName -> Failed to fetch model name!");
    return model;
}

TelvoraCpeRouterMode AspGeneralSettingsFacade::getRouterMode(AspWebAppErrorCodes& error)
{
    TelvoraCpeRouterMode mode = TelvoraCpeRouterModeUnknown;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::getRouterMode),
        [&](const ParamMap& reply) {
            const QString text = reply.value(replyKey(wire::product0, wire::routerMode));
            logDebug(QLatin1String("AspGeneralSettingsFacade::getRouterMode ->Router mode:") +
                     text);
            mode = routerModeOf(text);
        },
        "AspGeneralSettingsFacade::getRouterMode -> Failed to fetch Router mode!");
    return mode;
}

bool AspGeneralSettingsFacade::setCpeInternetModeAp2Router(const QString& mode,
                                                           AspWebAppErrorCodes& error)
{
    return change(*this, error,
                  general(&GeneralSettingsImplementor::setCpeInternetModeAp2Router, mode),
                  [](bool done) {
                      logDebug(done ? QStringLiteral("AspGeneralSettingsFacade::"
                                                     "setCpeInternetModeAp2Router -> Cpe internet "
                                                     "mode changed")
                                    : QStringLiteral("AspGeneralSettingsFacade::"
                                                     "setCpeInternetModeAp2Router -> Cpe internet "
                                                     "mode can not changed"));
                  });
}

bool AspGeneralSettingsFacade::setDefaultGw(const QString& routeInstance,
                                            const QString& wanInstance, AspWebAppErrorCodes& error)
{
    return change(*this, error,
                  general(&GeneralSettingsImplementor::setDefaultGw, routeInstance, wanInstance));
}

AspDeviceWarrantyInformation AspGeneralSettingsFacade::getWarrantyInformation(
    AspWebAppErrorCodes& error)
{
    AspDeviceWarrantyInformation info;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::getWarrantyInformation),
        [&](const ParamMap& reply) {
            readTexts(info, warrantyFields, reply, replyKey(wire::warranty0, QString()));
        },
        nullptr);
    return info;
}

bool AspGeneralSettingsFacade::setWarrantyInformation(const AspDeviceWarrantyInformation& info,
                                                      AspWebAppErrorCodes& error)
{
    ParamMap values;
    for (const auto& field : warrantyFields)
        values.insert(QLatin1String(field.entry), info.*field.member);
    return change(*this, error,
                  general(&GeneralSettingsImplementor::setWarrantyInformation, values));
}

} // namespace quorvel
