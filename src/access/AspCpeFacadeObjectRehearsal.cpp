#include <quorvel/AspCpeFacadeObject.h>

#include "assembly/Cpe.h"
#include "assembly/CpeBuilderDirector.h"
#include "assembly/RehearsalBuilder.h"
#include "general/GeneralSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

namespace
{

/// Those that the gateway's requests log in with: a changed password is known to them alone.
AuthenticationInfo credentialsInUse(const Cpe& cpe, const AuthenticationInfo& given)
{
    const auto general = cpe.getGeneralImplementor();
    if (!general)
        return given;
    const auto authenticator = general->getAuthenticator();
    return {authenticator->getUser(), authenticator->getPassword(), authenticator->getCpeAddress()};
}

} // namespace

boost::shared_ptr<AspCpeFacadeObject> AspCpeFacadeObject::rehearse(
    std::function<void(const QString& request)> take)
{
    if (!cpe && !refreshCpe())
        return boost::shared_ptr<AspCpeFacadeObject>();
    // Credentials of its own: a rehearsed change of the password must not become a real one.
    const AuthenticationInfo info = credentialsInUse(*cpe, authenticationInfo);
    RehearsalBuilder builder(std::move(take));
    const auto rehearsed = CpeBuilderDirector::assemble(builder, *cpe->getParameters(), info);
    if (!rehearsed)
        return boost::shared_ptr<AspCpeFacadeObject>();
    const auto handle = boost::make_shared<AspCpeFacadeObject>(info);
    handle->cpe = rehearsed;
    return handle;
}

} // namespace quorvel
