#pragma once

#include "protocol/AuthenticationSettingsImplementor.h"

namespace quorvel
{

/// Logs in with the form of the gateway's web application. Two logins may run at the same time, on
/// two executors.
class AspCpeAuthenticatorV1 : public AuthenticationSettingsImplementor
{
public:
    int login(boost::shared_ptr<RequestExecutor> executor) override;
    bool logout(boost::shared_ptr<RequestExecutor> executor) override;
};

} // namespace quorvel
