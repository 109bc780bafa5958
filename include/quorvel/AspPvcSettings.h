#pragma once

#include <QString>

namespace quorvel
{

/// Settings of a PVC entity, an ATM circuit of a DSL line. A text that the gateway doesn't report
/// is empty.
struct AspPvcSettings {
    QString vpi;          ///< path number; a write sends "8" for an empty text
    QString vci;          ///< channel number; a write sends "35" for an empty text
    QString trafficClass; ///< the gateway's word for the service category; read only
    QString pcr;          ///< peak cell rate; read only
    QString scr;          ///< sustained cell rate; read only
    QString mbs;          ///< maximum burst size; read only
    QString vlanid;       ///< VLAN number; a write sends "35" for an empty text
};

} // namespace quorvel
