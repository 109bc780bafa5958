#pragma once

#include <quorvel/ParamMap.h>

namespace quorvel
{

/// How an exchange ended.
enum RequestStatus {
    RequestSucceeded = 0,
    RequestNetworkFailure = 1,
    RequestTimedOut = 2,
    RequestInvalidParameters = 3,
    RequestUnknownNetworkError = 4,
    RequestBusy = 5
};

/// The transport: sends a request that a map describes and gives back the reply in a map.
class RequestExecutor
{
public:
    RequestExecutor() = default;
    virtual ~RequestExecutor() = default;

    /// A RequestStatus. `result` is replaced as a whole on success and else left alone.
    virtual int execute(const ParamMap& params, ParamMap& result) = 0;

    /// Ends the exchange that is under way, if any. Callable from any thread.
    virtual void abortPendingRequests() = 0;

private:
    Q_DISABLE_COPY(RequestExecutor)
};

} // namespace quorvel
