#pragma once

#include <cstdint>

namespace quorvel
{

/// How an operation of a settings facade ended.
///
/// A gateway's own codes pass through unchanged, so a variable of this type may hold any 32-bit
/// number, negative ones included, and not only those that are named here: 2 to 18 and 20 to 24
/// are codes of the gateway's web application that the library doesn't interpret.
enum AspWebAppErrorCodes : std::int32_t {
    /// The gateway answered and reported no error. Also the outcome when a login that the request
    /// needed timed out or failed in transport: then only the default result tells the failure.
    AspWebAppNoError = 0,
    /// The gateway no longer knows the session. The library logs in again and repeats the request
    /// by itself, so a host sees this only from a gateway that spells the code unusually ("01").
    AspWebAppSessionExpired = 1,
    /// A code that gateways send in replies that are no failures. Never reaches a host: it is
    /// reported as AspWebAppNoError.
    AspWebAppDeviceStatus19 = 19,
    /// The gateway refused the credentials, or its reply could not be read.
    AspWebAppLoginFailed = 25,
    /// The facade was made without a gateway.
    AspWebAppCpeNull = 26,
    /// The gateway has no general settings, so nothing can be asked of it.
    AspWebAppCpeNotBuilt = 27,
    /// The gateway didn't answer within 20 seconds.
    AspWebAppRequestTimedOut = 28,
    /// The request didn't reach the gateway, was aborted, or its reply broke off.
    AspWebAppRequestFailed = 29
};

} // namespace quorvel
