#include <quorvel/AspCpeFacadeObject.h>

#include "assembly/Cpe.h"
#include "assembly/CpeBuilderDirector.h"
#include "assembly/RehearsalBuilder.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

boost::shared_ptr<AspCpeFacadeObject> AspCpeFacadeObject::rehearse(
    std::function<void(const QString& request)> take)
{
    if (!cpe && !refreshCpe())
        return boost::shared_ptr<AspCpeFacadeObject>();
    RehearsalBuilder builder(std::move(take));
    const auto rehearsed =
        CpeBuilderDirector::assemble(builder, *cpe->getParameters(), authenticationInfo);
    if (!rehearsed)
        return boost::shared_ptr<AspCpeFacadeObject>();
    const auto handle = boost::make_shared<AspCpeFacadeObject>(authenticationInfo);
    handle->cpe = rehearsed;
    return handle;
}

} // namespace quorvel
