#pragma once

#include <QLatin1String>

/// The general settings' own commands and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String getenvQuery("getenv");
inline constexpr QLatin1String macEth0("MAC_ETH_0");
inline constexpr QLatin1String macDsl0("MAC_DSL_0");
inline constexpr QLatin1String macWlan0("MAC_WLAN_0");
inline constexpr QLatin1String hardwareProductId("PRODUCT_ID");
inline constexpr QLatin1String serialNumber("SERIAL_NUMBER");
inline constexpr QLatin1String productId("productid");
inline constexpr QLatin1String fwversion("fwversion");
inline constexpr QLatin1String rebootReq("reboot_req");
inline constexpr QLatin1String reboot("reboot");
inline constexpr QLatin1String factoryDefault("factory_default");
inline constexpr QLatin1String rebootDuration("reboot_duration");
inline constexpr QLatin1String fwupgradeDuration("fwupgrade_duration");
inline constexpr QLatin1String routerMode("router_mode");
inline constexpr QLatin1String applyUserInfo("apply_user_info");
inline constexpr QLatin1String checkAdminPassword("check_admin_password");
inline constexpr QLatin1String adminPassword("admin_password");
inline constexpr QLatin1String checkSession("check_session");
inline constexpr QLatin1String sessionOk("session_ok");
inline constexpr QLatin1String deleteSession("delete_session");
inline constexpr QLatin1String clients("clients");
inline constexpr QLatin1String leases("leases");

/// The texts of the warranty record, in the order of reading and writing.
inline constexpr QLatin1String warrantyKeys[] = {
    QLatin1String("name"),  QLatin1String("email"),     QLatin1String("phone"),
    QLatin1String("token"), QLatin1String("usertoken"), QLatin1String("timestamp")};

} // namespace quorvel::wire
