#pragma once

#include <QString>

namespace quorvel
{

/// Settings of a WAN VLAN entity. A text that the gateway doesn't report is empty.
struct AspWanVlanSettings {
    QString name;   ///< name of the VLAN; read only
    QString vlanid; ///< its number, 1 to 4094
    QString port;   ///< the Ethernet port that it is on; read only
};

} // namespace quorvel
