#pragma once

#include "wan/AspWanSettingsImplementor.h"

namespace quorvel
{

/// The newer WAN model, whose link type stands under "linktype".
class AspWanSettingsImplementorV2 : public AspWanSettingsImplementor
{
public:
    bool setLinkType(const QString& wan, const QString& linkType, ParamMap& result) override;
};

} // namespace quorvel
