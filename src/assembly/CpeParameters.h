#pragma once

#include <QString>

namespace quorvel
{

// The version of each function that recognition finds; a function that the gateway lacks has no
// entry. A key's text is its name.
inline const QString CPE_PARAM_XML_VERSION = QStringLiteral("CPE_PARAM_XML_VERSION");
inline const QString CPE_PARAM_GENERAL_SETTINGS_VERSION =
    QStringLiteral("CPE_PARAM_GENERAL_SETTINGS_VERSION");
inline const QString CPE_PARAM_ADSL_VERSION = QStringLiteral("CPE_PARAM_ADSL_VERSION");
inline const QString CPE_PARAM_ETHERNET_VERSION = QStringLiteral("CPE_PARAM_ETHERNET_VERSION");
inline const QString CPE_PARAM_WAN_VERSION = QStringLiteral("CPE_PARAM_WAN_VERSION");
inline const QString CPE_PARAM_WIRELESS_VERSION = QStringLiteral("CPE_PARAM_WIRELESS_VERSION");
inline const QString CPE_PARAM_WIRELESS_CORE_VERSION =
    QStringLiteral("CPE_PARAM_WIRELESS_CORE_VERSION");
inline const QString CPE_PARAM_WIRELESS_NG_VERSION =
    QStringLiteral("CPE_PARAM_WIRELESS_NG_VERSION");
inline const QString CPE_PARAM_VOIP_VERSION = QStringLiteral("CPE_PARAM_VOIP_VERSION");
inline const QString CPE_PARAM_USBHOST_VERSION = QStringLiteral("CPE_PARAM_USBHOST_VERSION");
inline const QString CPE_PARAM_3G_VERSION = QStringLiteral("CPE_PARAM_3G_VERSION");
inline const QString CPE_PARAM_PPTP_VERSION = QStringLiteral("CPE_PARAM_PPTP_VERSION");
inline const QString CPE_PARAM_L2TP_VERSION = QStringLiteral("CPE_PARAM_L2TP_VERSION");
inline const QString CPE_PARAM_WARRANTY_VERSION = QStringLiteral("CPE_PARAM_WARRANTY_VERSION");

} // namespace quorvel
