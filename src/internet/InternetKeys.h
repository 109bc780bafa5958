#pragma once

#include <QLatin1String>

/// The connection objects' own queries and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String usernameExtension("username_extension");
inline constexpr QLatin1String pppState("state");
inline constexpr QLatin1String dslStatus("status");
inline constexpr QLatin1String annexes("annexes");
inline constexpr QLatin1String annex("annex");
inline constexpr QLatin1String encaps("encaps");
inline constexpr QLatin1String vdslSupport("vdsl_support");

inline constexpr QLatin1String username("username");
inline constexpr QLatin1String mtu("mtu");
inline constexpr QLatin1String vpi("vpi");
inline constexpr QLatin1String vci("vci");
inline constexpr QLatin1String vlanid("vlanid");
inline constexpr QLatin1String trafficClass("traffic_class");
inline constexpr QLatin1String pcr("pcr");
inline constexpr QLatin1String scr("scr");
inline constexpr QLatin1String mbs("mbs");
inline constexpr QLatin1String tunnelServer("server");
inline constexpr QLatin1String tunnelUsername("username-0");
inline constexpr QLatin1String tunnelPassword("password-0");
inline constexpr QLatin1String defaultroute("defaultroute");
inline constexpr QLatin1String netmask("netmask");
inline constexpr QLatin1String vlanName("name");
inline constexpr QLatin1String vlanPort("port");
inline constexpr QLatin1String staticIp("ip");
inline constexpr QLatin1String staticMask("mask");
inline constexpr QLatin1String staticGateway("gateway");
inline constexpr QLatin1String staticDns1("dns1");
inline constexpr QLatin1String staticDns2("dns2");

// Entities of a WAN that are no link type of their own.
inline constexpr QLatin1String pppox("pppox");
inline constexpr QLatin1String rfc2684("rfc2684");
inline constexpr QLatin1String pvc("pvc");
inline constexpr QLatin1String dhcpc("dhcpc");

// Link types. Some are called like the entity that they need; "vpn" and "l2tp" are managers too.
inline constexpr QLatin1String pppoe("pppoe");
inline constexpr QLatin1String pppoa("pppoa");
inline constexpr QLatin1String russianPppoe("russian_pppoe");
inline constexpr QLatin1String dhcp("dhcp");
inline constexpr QLatin1String bridge("bridge");
inline constexpr QLatin1String staticAddress("static");

} // namespace quorvel::wire
