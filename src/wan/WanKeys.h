#pragma once

#include "protocol/Latin1.h"

/// The WAN objects' own commands and keys.
namespace quorvel::wire
{

inline constexpr QLatin1String l2type = "l2type"_latin1;
inline constexpr QLatin1String linkstate = "linkstate"_latin1;
inline constexpr QLatin1String dslLinkStatus = "dslLinkStatus"_latin1;
inline constexpr QLatin1String aliasDefaultGw = "alias_default_gw"_latin1;
inline constexpr QLatin1String defGwStatus = "def_gw_status"_latin1;
inline constexpr QLatin1String internetConnection = "internet_connection"_latin1;
inline constexpr QLatin1String supportedLinkTypes = "SupportedLinkTypes"_latin1;
inline constexpr QLatin1String isconnected = "isconnected"_latin1;
inline constexpr QLatin1String createInst = "create_inst"_latin1;
inline constexpr QLatin1String startInst = "start_inst"_latin1;
inline constexpr QLatin1String stopInst = "stop_inst"_latin1;
inline constexpr QLatin1String deleteInst = "delete_inst"_latin1;
inline constexpr QLatin1String addEntity = "add_entity"_latin1;
inline constexpr QLatin1String deleteEntity = "delete_entity"_latin1;
inline constexpr QLatin1String addIface = "addIface"_latin1;
inline constexpr QLatin1String delIface = "delIface"_latin1;
inline constexpr QLatin1String simpinStatus = "simpin_status"_latin1;
inline constexpr QLatin1String active = "active"_latin1;
inline constexpr QLatin1String apn = "apn"_latin1;
inline constexpr QLatin1String pin = "pin"_latin1;
inline constexpr QLatin1String puk = "puk"_latin1;
inline constexpr QLatin1String imei = "imei"_latin1;
inline constexpr QLatin1String roaming = "roaming"_latin1;
inline constexpr QLatin1String mobileOperator = "operator"_latin1;
inline constexpr QLatin1String connectionMode = "connection_mode"_latin1;
inline constexpr QLatin1String signalStrength = "signal_strength"_latin1;
inline constexpr QLatin1String prefmode = "prefmode"_latin1;
inline constexpr QLatin1String prefmodelist = "prefmodelist"_latin1;
inline constexpr QLatin1String force3g = "force3g"_latin1;

} // namespace quorvel::wire
