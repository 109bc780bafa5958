#pragma once

#include "access/FacadeCall.h"
#include "voice/VoipSettingsImplementor.h"

namespace quorvel
{

/// An operation of this family, bound to its inputs.
template <typename Operation, typename... Inputs>
auto voiceCall(Operation operation, const Inputs&... inputs)
{
    return asking(&Cpe::getVoipImplementor, operation, inputs...);
}

} // namespace quorvel
