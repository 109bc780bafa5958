#pragma once

#include "access/FacadeCall.h"
#include "usbhost/UsbHostSettingsImplementor.h"

namespace quorvel
{

/// An operation of this family, bound to its inputs.
template <typename Operation, typename... Inputs>
auto usbHostCall(Operation operation, const Inputs&... inputs)
{
    return asking(&Cpe::getUsbHostImplementor, operation, inputs...);
}

} // namespace quorvel
