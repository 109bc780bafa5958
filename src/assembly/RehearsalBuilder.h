#pragma once

#include "assembly/TelvoraCpeBuilderAspV1.h"
#include "protocol/RehearsalExecutor.h"

namespace quorvel
{

/// Builds gateways that are like real ones, but whose requests a taker gets.
class RehearsalBuilder : public TelvoraCpeBuilderAspV1
{
public:
    explicit RehearsalBuilder(RehearsalExecutor::Taker take);

    bool buildRequestExecutor() override;
    bool buildAuthenticator(const AuthenticationInfo& info) override;

private:
    const RehearsalExecutor::Taker take;
};

} // namespace quorvel
