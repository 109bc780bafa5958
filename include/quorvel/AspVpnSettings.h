#pragma once

#include <QString>

namespace quorvel
{

/// Settings of a PPTP or L2TP tunnel. A text that the gateway doesn't report is empty.
struct AspVpnSettings {
    QString server;   ///< name or address of the tunnel server
    QString username; ///< user at the tunnel server
    QString password; ///< in clear
    QString type;     ///< "pptp" or "l2tp"; the writes over Ethernet choose it by the link type
    bool reservedFlag = false; ///< neither read nor written
    /// Whether a write sends the static addresses too. The getter leaves it false.
    bool useStatic = false;
};

} // namespace quorvel
