#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

class WirelessSettingsImplementor : public CpeSettingsImplementor
{
};

} // namespace quorvel
