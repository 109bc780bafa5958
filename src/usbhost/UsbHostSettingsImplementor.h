#pragma once

#include "protocol/CpeSettingsImplementor.h"

namespace quorvel
{

class UsbHostSettingsImplementor : public CpeSettingsImplementor
{
};

} // namespace quorvel
