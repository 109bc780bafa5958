#pragma once

#include <cstdint>

namespace quorvel
{

/// The annex of the ADSL standards that a DSL line uses, or those that it can use.
enum AspAnnexMode : std::int32_t {
    AspAnnexA = 0,      ///< over analogue telephone lines
    AspAnnexB = 1,      ///< over ISDN lines
    AspAnnexAB = 2,     ///< either, by choice
    AspAnnexUnknown = 3 ///< anything else, and the default on failure
};

} // namespace quorvel
