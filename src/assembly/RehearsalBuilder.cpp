#include "assembly/RehearsalBuilder.h"

#include <quorvel/CpeSettingsImplementor.h>

#include "protocol/RehearsalAuthenticator.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

RehearsalBuilder::RehearsalBuilder(RehearsalExecutor::Taker take) : take(std::move(take)) {}

bool RehearsalBuilder::buildRequestExecutor()
{
    if (!TelvoraCpeBuilderAspV1::buildRequestExecutor())
        return false;
    for (const auto& implementor : settingsImplementors())
        implementor->setRequestExecutor(boost::make_shared<RehearsalExecutor>(take));
    return true;
}

bool RehearsalBuilder::buildAuthenticator(const AuthenticationInfo& info)
{
    if (!TelvoraCpeBuilderAspV1::buildAuthenticator(info))
        return false;
    const auto authenticator = boost::make_shared<RehearsalAuthenticator>();
    authenticator->setAuthenticationInfo(info);
    for (const auto& implementor : settingsImplementors())
        implementor->setAuthenticator(authenticator);
    return true;
}

} // namespace quorvel
