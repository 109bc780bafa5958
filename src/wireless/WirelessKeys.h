#pragma once

#include "protocol/Latin1.h"

/// The radios' own commands and keys.
namespace quorvel::wire
{

// Both generations.
inline constexpr QLatin1String ssid = "ssid"_latin1;
inline constexpr QLatin1String wpaPassword = "wpa_password"_latin1;
inline constexpr QLatin1String wepKey1 = "wep_key1"_latin1;
inline constexpr QLatin1String wepKey2 = "wep_key2"_latin1;
inline constexpr QLatin1String wepKey3 = "wep_key3"_latin1;
inline constexpr QLatin1String wepKey4 = "wep_key4"_latin1;
inline constexpr QLatin1String wpsEnabled = "wps_enabled"_latin1;
inline constexpr QLatin1String wpsRole = "wps_role"_latin1;
inline constexpr QLatin1String wpsConfigUuidUpdate = "wps_config_uuid_update"_latin1;
inline constexpr QLatin1String securityProxy = "security_proxy"_latin1;
inline constexpr QLatin1String staList = "sta_list"_latin1;
inline constexpr QLatin1String mac = "mac"_latin1;

/// The one key of a map of settings to be written: whichever key it is, it goes out as the first.
inline constexpr QLatin1String wepKey = "wep_key"_latin1;

// The older generation's spelling.
inline constexpr QLatin1String secMode = "sec_mode"_latin1;
inline constexpr QLatin1String wpaAuthType = "wpa_auth_type"_latin1;
inline constexpr QLatin1String wepAuthType = "wep_auth_type"_latin1;
inline constexpr QLatin1String wepKeyType = "wep_key_type"_latin1;
inline constexpr QLatin1String wepKeyIndex = "wep_key_index"_latin1;
inline constexpr QLatin1String wpaRekeyInterval = "wpa_rekey_interval"_latin1;
inline constexpr QLatin1String wpaRadiusEapReauthPeriod = "wpa_radius_eap_reauth_period"_latin1;
inline constexpr QLatin1String wpaRadiusAddr = "wpa_radius_addr"_latin1;
inline constexpr QLatin1String wpaRadiusPort = "wpa_radius_port"_latin1;
inline constexpr QLatin1String wpaRadiusKey = "wpa_radius_key"_latin1;
inline constexpr QLatin1String wpa2RsnPreauth = "wpa2_rsn_preauth"_latin1;
inline constexpr QLatin1String freq = "freq"_latin1;

// The newer generation's spelling.
inline constexpr QLatin1String securityMode = "security_mode"_latin1;
inline constexpr QLatin1String wpaAuthtype = "wpa_authtype"_latin1;
inline constexpr QLatin1String wepAuthtype = "wep_authtype"_latin1;
inline constexpr QLatin1String wepKeytype = "wep_keytype"_latin1;
inline constexpr QLatin1String wepKeyindex = "wep_keyindex"_latin1;
inline constexpr QLatin1String band = "band"_latin1;
inline constexpr QLatin1String wirelessCapabilities = "wireless_capabilities"_latin1;
inline constexpr QLatin1String txmode = "txmode"_latin1;

} // namespace quorvel::wire
