#pragma once

#include <cstdint>

namespace quorvel
{

/// Whether a radio is on. The numbering runs against the gateway's own words.
enum AspWirelessStatus : std::int32_t {
    AspWirelessEnabled = 0,      ///< the gateway says "1"
    AspWirelessDisabled = 1,     ///< the gateway says "0"
    AspWirelessStatusUnknown = 2 ///< anything else, and the default on failure
};

} // namespace quorvel
