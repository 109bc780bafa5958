#pragma once

#include <cstdint>

namespace quorvel
{

/// Whether a gateway reaches the internet. The numbering runs against the gateway's own words.
enum AspGwInternetConnection : std::int32_t {
    AspGwInternetConnected = 0,    ///< the gateway says "1"
    AspGwInternetDisconnected = 1, ///< the gateway says "0"
    AspGwInternetUnknown = 2       ///< anything else, and the default on failure
};

} // namespace quorvel
