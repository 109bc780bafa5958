#pragma once

#include <cstdint>

namespace quorvel
{

/// How a login ended.
enum CpeLoginResult : std::int32_t {
    CpeLoginSuccess = 0,      ///< a valid session exists, stored or new
    CpeLoginFailed = 1,       ///< the gateway gave no session, or there is no usable gateway
    CpeLoginTimedOut = 2,     ///< the login request wasn't answered within 20 seconds
    CpeLoginRequestFailed = 3 ///< the login request failed in another way
};

} // namespace quorvel
