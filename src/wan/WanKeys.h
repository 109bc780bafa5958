#pragma once

#include <QLatin1String>

/// The WAN objects' own commands and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String l2type("l2type");
inline constexpr QLatin1String linkstate("linkstate");
inline constexpr QLatin1String dslLinkStatus("dslLinkStatus");
inline constexpr QLatin1String aliasDefaultGw("alias_default_gw");
inline constexpr QLatin1String defGwStatus("def_gw_status");
inline constexpr QLatin1String internetConnection("internet_connection");
inline constexpr QLatin1String supportedLinkTypes("SupportedLinkTypes");
inline constexpr QLatin1String isconnected("isconnected");
inline constexpr QLatin1String createInst("create_inst");
inline constexpr QLatin1String startInst("start_inst");
inline constexpr QLatin1String stopInst("stop_inst");
inline constexpr QLatin1String deleteInst("delete_inst");
inline constexpr QLatin1String addEntity("add_entity");
inline constexpr QLatin1String deleteEntity("delete_entity");
inline constexpr QLatin1String addIface("addIface");
inline constexpr QLatin1String delIface("delIface");
inline constexpr QLatin1String simpinStatus("simpin_status");
inline constexpr QLatin1String active("active");
inline constexpr QLatin1String apn("apn");
inline constexpr QLatin1String pin("pin");
inline constexpr QLatin1String puk("puk");
inline constexpr QLatin1String imei("imei");
inline constexpr QLatin1String roaming("roaming");
inline constexpr QLatin1String mobileOperator("operator");
inline constexpr QLatin1String connectionMode("connection_mode");
inline constexpr QLatin1String signalStrength("signal_strength");
inline constexpr QLatin1String prefmode("prefmode");
inline constexpr QLatin1String prefmodelist("prefmodelist");
inline constexpr QLatin1String force3g("force3g");

} // namespace quorvel::wire
