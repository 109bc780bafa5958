#pragma once

#include <cstdint>

namespace quorvel
{

/// What a gateway does with the traffic of its network.
enum TelvoraCpeRouterMode : std::int32_t {
    TelvoraCpeRouterModeRouter = 0, ///< routes between the local network and the internet
    TelvoraCpeRouterModeAp = 1,     ///< is a mere access point of another router's network
    TelvoraCpeRouterModeUnknown = 2 ///< anything else, and the default on failure
};

} // namespace quorvel
