#pragma once

#include "access/FacadeCall.h"
#include "internet/AdslSettingsImplementor.h"

namespace quorvel
{

/// An operation of this family, bound to its inputs.
template <typename Operation, typename... Inputs>
auto internet(Operation operation, const Inputs&... inputs)
{
    return asking(&Cpe::getAdslImplementor, operation, inputs...);
}

} // namespace quorvel
