#pragma once

#include <cstdint>

namespace quorvel
{

/// Whether devices can join a radio's network by WPS. The numbering runs against the gateway's own
/// words.
enum AspWpsEnabledStatus : std::int32_t {
    AspWpsEnabled = 0,      ///< the gateway says "1"
    AspWpsDisabled = 1,     ///< the gateway says "0"
    AspWpsStatusUnknown = 2 ///< anything else, and the default on failure
};

} // namespace quorvel
