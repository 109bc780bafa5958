#pragma once

#include "wan/AspWanSettingsImplementor.h"

namespace quorvel
{

/// The older WAN model, whose link type stands under "type".
class AspWanSettingsImplementorV1 : public AspWanSettingsImplementor
{
public:
    bool setLinkType(const QString& wan, const QString& linkType, ParamMap& result) override;
};

} // namespace quorvel
