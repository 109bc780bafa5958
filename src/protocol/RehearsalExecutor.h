#pragma once

#include "protocol/HttpRequestExecutor.h"

#include <functional>

namespace quorvel
{

/// Gives the requests for the web application to a taker in place of the gateway, and takes each
/// for done. Logins are sent.
class RehearsalExecutor : public HttpRequestExecutor
{
public:
    using Taker = std::function<void(const QString& request)>;

    explicit RehearsalExecutor(Taker take);

    int execute(const ParamMap& params, ParamMap& result) override;

private:
    const Taker take;
};

} // namespace quorvel
