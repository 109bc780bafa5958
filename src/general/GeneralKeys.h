#pragma once

#include "protocol/Latin1.h"

/// The general settings' own commands and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String getenvQuery = "getenv"_latin1;
inline constexpr QLatin1String macEth0 = "MAC_ETH_0"_latin1;
inline constexpr QLatin1String macDsl0 = "MAC_DSL_0"_latin1;
inline constexpr QLatin1String macWlan0 = "MAC_WLAN_0"_latin1;
inline constexpr QLatin1String hardwareProductId = "PRODUCT_ID"_latin1;
inline constexpr QLatin1String serialNumber = "SERIAL_NUMBER"_latin1;
inline constexpr QLatin1String productId = "productid"_latin1;
inline constexpr QLatin1String fwversion = "fwversion"_latin1;
inline constexpr QLatin1String rebootReq = "reboot_req"_latin1;
inline constexpr QLatin1String reboot = "reboot"_latin1;
inline constexpr QLatin1String factoryDefault = "factory_default"_latin1;
inline constexpr QLatin1String rebootDuration = "reboot_duration"_latin1;
inline constexpr QLatin1String fwupgradeDuration = "fwupgrade_duration"_latin1;
inline constexpr QLatin1String routerMode = "router_mode"_latin1;
inline constexpr QLatin1String applyUserInfo = "apply_user_info"_latin1;
inline constexpr QLatin1String checkAdminPassword = "check_admin_password"_latin1;
inline constexpr QLatin1String adminPassword = "admin_password"_latin1;
inline constexpr QLatin1String checkSession = "check_session"_latin1;
inline constexpr QLatin1String sessionOk = "session_ok"_latin1;
inline constexpr QLatin1String deleteSession = "delete_session"_latin1;
inline constexpr QLatin1String clients = "clients"_latin1;
inline constexpr QLatin1String leases = "leases"_latin1;

/// The texts of the warranty record, in the order of reading and writing.
inline constexpr QLatin1String warrantyKeys[] = {"name"_latin1,      "email"_latin1,
                                                 "phone"_latin1,     "token"_latin1,
                                                 "usertoken"_latin1, "timestamp"_latin1};

} // namespace quorvel::wire
