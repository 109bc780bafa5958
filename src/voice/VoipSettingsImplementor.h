#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

class VoipSettingsImplementor : public CpeSettingsImplementor
{
};

} // namespace quorvel
