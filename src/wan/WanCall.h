#pragma once

#include "access/FacadeCall.h"
#include "wan/WanSettingsImplementor.h"

namespace quorvel
{

/// An operation of this family, bound to its inputs.
template <typename Operation, typename... Inputs>
auto wanCall(Operation operation, const Inputs&... inputs)
{
    return asking(&Cpe::getWanImplementor, operation, inputs...);
}

} // namespace quorvel
