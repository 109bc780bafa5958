#pragma once

#include "access/FacadeCall.h"
#include "general/GeneralSettingsImplementor.h"

namespace quorvel
{

/// An operation of this family, bound to its inputs.
template <typename Operation, typename... Inputs>
auto general(Operation operation, const Inputs&... inputs)
{
    return asking(&Cpe::getGeneralImplementor, operation, inputs...);
}

} // namespace quorvel
