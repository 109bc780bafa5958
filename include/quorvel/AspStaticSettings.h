#pragma once

#include <QString>

namespace quorvel
{

/// Addresses of a static entity. A text that the gateway doesn't report is empty; a write sends an
/// empty text as it is.
struct AspStaticSettings {
    QString ip;      ///< the gateway's own address
    QString mask;    ///< mask of its network, as "255.255.255.0"
    QString gateway; ///< the next router
    QString dns1;    ///< name server
    QString dns2;    ///< the second one
};

} // namespace quorvel
