#pragma once

#include <QLatin1String>

/// The names that the gateway's web application gives its objects and commands. Keys that only one
/// family uses stand in that family's folder.
namespace quorvel::wire
{

// Instances with fixed names.
inline constexpr QLatin1String cfgmgr0("cfgmgr-0");
inline constexpr QLatin1String devmgr0("devmgr-0");
inline constexpr QLatin1String sysmgr0("sysmgr-0");
inline constexpr QLatin1String webui0("webui-0");
inline constexpr QLatin1String product0("product-0");
inline constexpr QLatin1String route0("route-0");
inline constexpr QLatin1String dsl0("dsl-0");
inline constexpr QLatin1String eth0("eth-0");
inline constexpr QLatin1String rfc26840("rfc2684-0");
inline constexpr QLatin1String dhcps0("dhcps-0");
inline constexpr QLatin1String wirelessCore0("wireless_core-0");
inline constexpr QLatin1String wirelessAp0("wireless_ap-0");
inline constexpr QLatin1String voice0("voice-0");
inline constexpr QLatin1String usbhostMngr0("usbhost_mngr-0");
inline constexpr QLatin1String warranty0("warranty-0");
/// The default WAN of a gateway that doesn't name one.
inline constexpr QLatin1String wan0("wan-0");

// Instances that gateways have and no operation acts on.
inline constexpr QLatin1String sntp0("sntp-0");
inline constexpr QLatin1String serial0("serial-0");
inline constexpr QLatin1String failover0("failover-0");
inline constexpr QLatin1String wanVlan0("wan_vlan-0");
inline constexpr QLatin1String bridgeVlan0("bridge_vlan-0");

// Managers that recognition looks for, or whose instances are listed.
inline constexpr QLatin1String devmgr("devmgr");
inline constexpr QLatin1String voice("voice");
inline constexpr QLatin1String wireless("wireless");
inline constexpr QLatin1String wirelessCore("wireless_core");
inline constexpr QLatin1String wirelessWds("wireless_wds");
inline constexpr QLatin1String dsl("dsl");
inline constexpr QLatin1String wanVlan("wan_vlan");
inline constexpr QLatin1String usbhostMngr("usbhost_mngr");
inline constexpr QLatin1String serial("serial");
inline constexpr QLatin1String vpn("vpn");
inline constexpr QLatin1String l2tp("l2tp");
inline constexpr QLatin1String warranty("warranty");
inline constexpr QLatin1String wan("wan");
inline constexpr QLatin1String conn("conn");
inline constexpr QLatin1String sambaMngr("samba_mngr");

// Managers that gateways list and no operation acts on.
inline constexpr QLatin1String logger("logger");
inline constexpr QLatin1String msgmgr("msgmgr");
inline constexpr QLatin1String tmrmgr("tmrmgr");
inline constexpr QLatin1String sysmgr("sysmgr");
inline constexpr QLatin1String cfgmgr("cfgmgr");
inline constexpr QLatin1String webui("webui");
inline constexpr QLatin1String security("security");
inline constexpr QLatin1String product("product");
inline constexpr QLatin1String route("route");
inline constexpr QLatin1String routed("routed");
inline constexpr QLatin1String resolver("resolver");
inline constexpr QLatin1String dhcps("dhcps");
inline constexpr QLatin1String dhcprelay("dhcprelay");
inline constexpr QLatin1String tr069("tr069");
inline constexpr QLatin1String snmp("snmp");
inline constexpr QLatin1String upnp("upnp");
inline constexpr QLatin1String ddns("ddns");
inline constexpr QLatin1String qos("qos");
inline constexpr QLatin1String sntp("sntp");
inline constexpr QLatin1String adslcounter("adslcounter");
inline constexpr QLatin1String failover("failover");
inline constexpr QLatin1String printerMngr("printer_mngr");
inline constexpr QLatin1String wirelessAp("wireless_ap");

// Commands and queries of general use.
inline constexpr QLatin1String beginTransaction("begin_transaction");
inline constexpr QLatin1String commitTransaction("commit");
inline constexpr QLatin1String endTransaction("end_transaction");
inline constexpr QLatin1String saveConfiguration("save");
inline constexpr QLatin1String applySettings("apply");
inline constexpr QLatin1String applyDefaultGw("apply_default_gw");
inline constexpr QLatin1String mngrList("mngr_list");
inline constexpr QLatin1String instList("inst_list");

// Keys that several families use.
inline constexpr QLatin1String enabled("enabled");
inline constexpr QLatin1String defaultGw("default_gw");
inline constexpr QLatin1String entities("entities");
inline constexpr QLatin1String linktype("linktype");
inline constexpr QLatin1String localip("localip");
inline constexpr QLatin1String password("password");
inline constexpr QLatin1String settings("settings");
inline constexpr QLatin1String type("type");

} // namespace quorvel::wire
