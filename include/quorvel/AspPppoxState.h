#pragma once

#include <QString>

namespace quorvel
{

/// Run-time state of a PPP entity. A text that the gateway doesn't report is empty.
struct AspPppoxState {
    QString status;       ///< the gateway's word for the state of the link
    QString interface;    ///< name of the gateway's network interface for the link
    QString localIP;      ///< the gateway's address on the link
    QString remoteIP;     ///< the provider's address on the link
    QString primaryDNS;   ///< name server that the provider gave
    QString secondaryDNS; ///< the second one
    QString sessionId;    ///< number of the PPPoE session
    QString nasDevice;    ///< name of the device that the link runs over
};

} // namespace quorvel
