#pragma once

#include <cstdint>

namespace quorvel
{

/// A radio's part in WPS.
enum AspWpsRole : std::int32_t {
    AspWpsEnrollee = 0,   ///< it joins: the gateway says "enrollee"
    AspWpsRegistrar = 1,  ///< it admits: the gateway says "registrar"
    AspWpsRoleUnknown = 2 ///< anything else, and the default on failure
};

} // namespace quorvel
