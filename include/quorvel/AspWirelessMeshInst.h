#pragma once

#include <QString>

namespace quorvel
{

/// A mesh link of a radio to another access point.
struct AspWirelessMeshInst {
    QString mac;          ///< the other side's MAC address, spelled as the gateway spells it
    bool enabled = false; ///< switched on
};

} // namespace quorvel
