#pragma once

#include <QString>

namespace quorvel
{

/// What a DHCP client entity got. A text that the gateway doesn't report is empty.
struct AspDhcpSettings {
    QString localIp;     ///< the gateway's address
    QString networkMask; ///< mask of its network, as "255.255.255.0"
};

} // namespace quorvel
