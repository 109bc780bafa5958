#pragma once

#include "protocol/AbortSignal.h"
#include "protocol/RequestExecutor.h"

#include <atomic>

namespace quorvel
{

/// Sends a request as a blocking HTTP POST, one exchange at a time.
class HttpRequestExecutor : public RequestExecutor
{
public:
    /// How long an exchange may take, connecting, sending and receiving together.
    static constexpr int defaultLimitMs = 20000;

    explicit HttpRequestExecutor(int limitMs = defaultLimitMs);
    ~HttpRequestExecutor() override;

    int execute(const ParamMap& params, ParamMap& result) override;
    void abortPendingRequests() override;

private:
    int exchange(const ParamMap& params, ParamMap& result);

    const int limitMs;
    std::atomic<bool> busy{false};
    AbortSignal abortSignal;
};

} // namespace quorvel
