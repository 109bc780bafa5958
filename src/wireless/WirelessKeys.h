#pragma once

#include <QLatin1String>

/// The radios' own commands and keys.
namespace quorvel::wire
{

// Both generations.
inline constexpr QLatin1String ssid("ssid");
inline constexpr QLatin1String wpaPassword("wpa_password");
inline constexpr QLatin1String wepKey1("wep_key1");
inline constexpr QLatin1String wepKey2("wep_key2");
inline constexpr QLatin1String wepKey3("wep_key3");
inline constexpr QLatin1String wepKey4("wep_key4");
inline constexpr QLatin1String wpsEnabled("wps_enabled");
inline constexpr QLatin1String wpsRole("wps_role");
inline constexpr QLatin1String wpsConfigUuidUpdate("wps_config_uuid_update");
inline constexpr QLatin1String securityProxy("security_proxy");
inline constexpr QLatin1String staList("sta_list");
inline constexpr QLatin1String mac("mac");

/// The one key of a map of settings to be written: whichever key it is, it goes out as the first.
inline constexpr QLatin1String wepKey("wep_key");

// The older generation's spelling.
inline constexpr QLatin1String secMode("sec_mode");
inline constexpr QLatin1String wpaAuthType("wpa_auth_type");
inline constexpr QLatin1String wepAuthType("wep_auth_type");
inline constexpr QLatin1String wepKeyType("wep_key_type");
inline constexpr QLatin1String wepKeyIndex("wep_key_index");
inline constexpr QLatin1String wpaRekeyInterval("wpa_rekey_interval");
inline constexpr QLatin1String wpaRadiusEapReauthPeriod("wpa_radius_eap_reauth_period");
inline constexpr QLatin1String wpaRadiusAddr("wpa_radius_addr");
inline constexpr QLatin1String wpaRadiusPort("wpa_radius_port");
inline constexpr QLatin1String wpaRadiusKey("wpa_radius_key");
inline constexpr QLatin1String wpa2RsnPreauth("wpa2_rsn_preauth");
inline constexpr QLatin1String freq("freq");

// The newer generation's spelling.
inline constexpr QLatin1String securityMode("security_mode");
inline constexpr QLatin1String wpaAuthtype("wpa_authtype");
inline constexpr QLatin1String wepAuthtype("wep_authtype");
inline constexpr QLatin1String wepKeytype("wep_keytype");
inline constexpr QLatin1String wepKeyindex("wep_keyindex");
inline constexpr QLatin1String band("band");
inline constexpr QLatin1String wirelessCapabilities("wireless_capabilities");
inline constexpr QLatin1String txmode("txmode");

} // namespace quorvel::wire
