#include "wan/AspWanSettingsImplementorV2.h"

#include "wan/WanKeys.h"

namespace quorvel
{

bool AspWanSettingsImplementorV2::setLinkType(const QString& wan, const QString& linkType,
                                              ParamMap& result)
{
    return writeLinkType(wan, wire::linktype, linkType, result);
}

} // namespace quorvel
