#include "wan/AspWanSettingsImplementorV1.h"

#include "wan/WanKeys.h"

namespace quorvel
{

bool AspWanSettingsImplementorV1::setLinkType(const QString& wan, const QString& linkType,
                                              ParamMap& result)
{
    return writeLinkType(wan, wire::type, linkType, result);
}

} // namespace quorvel
