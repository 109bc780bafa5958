#pragma once

#include "protocol/Latin1.h"

/// The names that the gateway's web application gives its objects and commands. Keys that only one
/// family uses stand in that family's folder.
namespace quorvel::wire
{

// Instances with fixed names.
inline constexpr QLatin1String cfgmgr0 = "cfgmgr-0"_latin1;
inline constexpr QLatin1String devmgr0 = "devmgr-0"_latin1;
inline constexpr QLatin1String sysmgr0 = "sysmgr-0"_latin1;
inline constexpr QLatin1String webui0 = "webui-0"_latin1;
inline constexpr QLatin1String product0 = "product-0"_latin1;
inline constexpr QLatin1String route0 = "route-0"_latin1;
inline constexpr QLatin1String dsl0 = "dsl-0"_latin1;
inline constexpr QLatin1String eth0 = "eth-0"_latin1;
inline constexpr QLatin1String rfc26840 = "rfc2684-0"_latin1;
inline constexpr QLatin1String dhcps0 = "dhcps-0"_latin1;
inline constexpr QLatin1String wirelessCore0 = "wireless_core-0"_latin1;
inline constexpr QLatin1String wirelessAp0 = "wireless_ap-0"_latin1;
inline constexpr QLatin1String voice0 = "voice-0"_latin1;
inline constexpr QLatin1String usbhostMngr0 = "usbhost_mngr-0"_latin1;
inline constexpr QLatin1String warranty0 = "warranty-0"_latin1;
/// The default WAN of a gateway that doesn't name one.
inline constexpr QLatin1String wan0 = "wan-0"_latin1;

// Instances that gateways have and no operation acts on.
inline constexpr QLatin1String sntp0 = "sntp-0"_latin1;
inline constexpr QLatin1String serial0 = "serial-0"_latin1;
inline constexpr QLatin1String failover0 = "failover-0"_latin1;
inline constexpr QLatin1String wanVlan0 = "wan_vlan-0"_latin1;
inline constexpr QLatin1String bridgeVlan0 = "bridge_vlan-0"_latin1;

// Managers that recognition looks for, or whose instances are listed.
inline constexpr QLatin1String devmgr = "devmgr"_latin1;
inline constexpr QLatin1String voice = "voice"_latin1;
inline constexpr QLatin1String wireless = "wireless"_latin1;
inline constexpr QLatin1String wirelessCore = "wireless_core"_latin1;
inline constexpr QLatin1String wirelessWds = "wireless_wds"_latin1;
inline constexpr QLatin1String dsl = "dsl"_latin1;
inline constexpr QLatin1String wanVlan = "wan_vlan"_latin1;
inline constexpr QLatin1String usbhostMngr = "usbhost_mngr"_latin1;
inline constexpr QLatin1String serial = "serial"_latin1;
inline constexpr QLatin1String vpn = "vpn"_latin1;
inline constexpr QLatin1String l2tp = "l2tp"_latin1;
inline constexpr QLatin1String warranty = "warranty"_latin1;
inline constexpr QLatin1String wan = "wan"_latin1;
inline constexpr QLatin1String conn = "conn"_latin1;
inline constexpr QLatin1String sambaMngr = "samba_mngr"_latin1;

// Managers that gateways list and no operation acts on.
inline constexpr QLatin1String logger = "logger"_latin1;
inline constexpr QLatin1String msgmgr = "msgmgr"_latin1;
inline constexpr QLatin1String tmrmgr = "tmrmgr"_latin1;
inline constexpr QLatin1String sysmgr = "sysmgr"_latin1;
inline constexpr QLatin1String cfgmgr = "cfgmgr"_latin1;
inline constexpr QLatin1String webui = "webui"_latin1;
inline constexpr QLatin1String security = "security"_latin1;
inline constexpr QLatin1String product = "product"_latin1;
inline constexpr QLatin1String route = "route"_latin1;
inline constexpr QLatin1String routed = "routed"_latin1;
inline constexpr QLatin1String resolver = "resolver"_latin1;
inline constexpr QLatin1String dhcps = "dhcps"_latin1;
inline constexpr QLatin1String dhcprelay = "dhcprelay"_latin1;
inline constexpr QLatin1String tr069 = "tr069"_latin1;
inline constexpr QLatin1String snmp = "snmp"_latin1;
inline constexpr QLatin1String upnp = "upnp"_latin1;
inline constexpr QLatin1String ddns = "ddns"_latin1;
inline constexpr QLatin1String qos = "qos"_latin1;
inline constexpr QLatin1String sntp = "sntp"_latin1;
inline constexpr QLatin1String adslcounter = "adslcounter"_latin1;
inline constexpr QLatin1String failover = "failover"_latin1;
inline constexpr QLatin1String printerMngr = "printer_mngr"_latin1;
inline constexpr QLatin1String wirelessAp = "wireless_ap"_latin1;

// Commands and queries of general use.
inline constexpr QLatin1String beginTransaction = "begin_transaction"_latin1;
inline constexpr QLatin1String commitTransaction = "commit"_latin1;
inline constexpr QLatin1String endTransaction = "end_transaction"_latin1;
inline constexpr QLatin1String saveConfiguration = "save"_latin1;
inline constexpr QLatin1String applySettings = "apply"_latin1;
inline constexpr QLatin1String applyDefaultGw = "apply_default_gw"_latin1;
inline constexpr QLatin1String mngrList = "mngr_list"_latin1;
inline constexpr QLatin1String instList = "inst_list"_latin1;

// Keys that several families use.
inline constexpr QLatin1String enabled = "enabled"_latin1;
inline constexpr QLatin1String defaultGw = "default_gw"_latin1;
inline constexpr QLatin1String entities = "entities"_latin1;
inline constexpr QLatin1String linktype = "linktype"_latin1;
inline constexpr QLatin1String localip = "localip"_latin1;
inline constexpr QLatin1String password = "password"_latin1;
inline constexpr QLatin1String settings = "settings"_latin1;
inline constexpr QLatin1String type = "type"_latin1;

} // namespace quorvel::wire
