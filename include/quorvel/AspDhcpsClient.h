#pragma once

#include <QString>

namespace quorvel
{

/// A client of the gateway's DHCP server. A text that the gateway doesn't report is empty.
struct AspDhcpsClient {
    QString mac;      ///< MAC address, spelled as the gateway spells it
    QString ip;       ///< IP address
    QString hostname; ///< host name
};

} // namespace quorvel
