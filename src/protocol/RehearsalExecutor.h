#pragma once

#include "protocol/RequestExecutor.h"

#include <QString>

#include <functional>

namespace quorvel
{

/// Gives requests to a taker in place of the gateway, and takes each for done.
class RehearsalExecutor : public RequestExecutor
{
public:
    using Taker = std::function<void(const QString& request)>;

    explicit RehearsalExecutor(Taker take);

    int execute(const ParamMap& params, ParamMap& result) override;
    /// Nothing is ever under way.
    void abortPendingRequests() override {}

private:
    const Taker take;
};

} // namespace quorvel
