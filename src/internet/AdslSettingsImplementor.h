#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

class AdslSettingsImplementor : public CpeSettingsImplementor
{
};

} // namespace quorvel
