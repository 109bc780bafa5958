#pragma once

#include <cstdint>

namespace quorvel
{

/// Over which radio technology the modem is connected, each by the gateway's word. Unlike with the
/// SIM card's status, the unknown value stands last and zero means something.
enum Asp3GConnectionMode : std::int32_t {
    Asp3GConnectionModeNoService = 0,     ///< "no service"
    Asp3GConnectionModeGsm = 1,           ///< "gsm mode"
    Asp3GConnectionModeGprs = 2,          ///< "gprs mode"
    Asp3GConnectionModeEdge = 3,          ///< "edge mode"
    Asp3GConnectionModeWcdma = 4,         ///< "wcdma mode"
    Asp3GConnectionModeHsdpa = 5,         ///< "hsdpa mode"
    Asp3GConnectionModeHsupa = 6,         ///< "hsupa mode"
    Asp3GConnectionModeHsdpaAndHsupa = 7, ///< "hsdpa and hsupa mode"
    Asp3GConnectionModeUnknown = 8        ///< any other word or none, and the default on failure
};

} // namespace quorvel
