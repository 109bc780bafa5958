#pragma once

#include "protocol/AuthenticationSettingsImplementor.h"

#include <quorvel/CpeLoginResult.h>

namespace quorvel
{

/// Takes each login for done and leaves the session alone, which is that of the real gateway.
class RehearsalAuthenticator : public AuthenticationSettingsImplementor
{
public:
    int login(boost::shared_ptr<RequestExecutor>) override { return CpeLoginSuccess; }
    bool logout(boost::shared_ptr<RequestExecutor>) override { return true; }
    void forgetSession() override {}
};

} // namespace quorvel
