#pragma once

#include <QString>

namespace quorvelctl
{

/// What the shell is told.
enum ExitStatus {
    Success = 0,
    GatewayFailed = 1, ///< the gateway reported an error, or did not do what was asked
    WrongUsage = 2,
    LoginRefused = 3,
    NotReachable = 4 ///< or timed out
};

/// Thrown by whatever ends a command early; main prints it.
struct Failure {
    ExitStatus status;
    QString message;
};

} // namespace quorvelctl
