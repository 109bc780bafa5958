#pragma once

#include "protocol/Latin1.h"

/// The connection objects' own queries and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String usernameExtension = "username_extension"_latin1;
inline constexpr QLatin1String pppState = "state"_latin1;
inline constexpr QLatin1String dslStatus = "status"_latin1;
inline constexpr QLatin1String annexes = "annexes"_latin1;
inline constexpr QLatin1String annex = "annex"_latin1;
inline constexpr QLatin1String encaps = "encaps"_latin1;
inline constexpr QLatin1String vdslSupport = "vdsl_support"_latin1;

inline constexpr QLatin1String username = "username"_latin1;
inline constexpr QLatin1String mtu = "mtu"_latin1;
inline constexpr QLatin1String vpi = "vpi"_latin1;
inline constexpr QLatin1String vci = "vci"_latin1;
inline constexpr QLatin1String vlanid = "vlanid"_latin1;
inline constexpr QLatin1String trafficClass = "traffic_class"_latin1;
inline constexpr QLatin1String pcr = "pcr"_latin1;
inline constexpr QLatin1String scr = "scr"_latin1;
inline constexpr QLatin1String mbs = "mbs"_latin1;
inline constexpr QLatin1String tunnelServer = "server"_latin1;
inline constexpr QLatin1String tunnelUsername = "username-0"_latin1;
inline constexpr QLatin1String tunnelPassword = "password-0"_latin1;
inline constexpr QLatin1String defaultroute = "defaultroute"_latin1;
inline constexpr QLatin1String netmask = "netmask"_latin1;
inline constexpr QLatin1String vlanName = "name"_latin1;
inline constexpr QLatin1String vlanPort = "port"_latin1;
inline constexpr QLatin1String staticIp = "ip"_latin1;
inline constexpr QLatin1String staticMask = "mask"_latin1;
inline constexpr QLatin1String staticGateway = "gateway"_latin1;
inline constexpr QLatin1String staticDns1 = "dns1"_latin1;
inline constexpr QLatin1String staticDns2 = "dns2"_latin1;

// Entities of a WAN that are no link type of their own.
inline constexpr QLatin1String pppox = "pppox"_latin1;
inline constexpr QLatin1String rfc2684 = "rfc2684"_latin1;
inline constexpr QLatin1String pvc = "pvc"_latin1;
inline constexpr QLatin1String dhcpc = "dhcpc"_latin1;

// Link types. Some are called like the entity that they need; "vpn" and "l2tp" are managers too.
inline constexpr QLatin1String pppoe = "pppoe"_latin1;
inline constexpr QLatin1String pppoa = "pppoa"_latin1;
inline constexpr QLatin1String russianPppoe = "russian_pppoe"_latin1;
inline constexpr QLatin1String dhcp = "dhcp"_latin1;
inline constexpr QLatin1String bridge = "bridge"_latin1;
inline constexpr QLatin1String staticAddress = "static"_latin1;

} // namespace quorvel::wire
