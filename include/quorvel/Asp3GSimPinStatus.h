#pragma once

#include <cstdint>

namespace quorvel
{

/// What the modem says of its SIM card's PIN, each by the gateway's word.
enum Asp3GSimPinStatus : std::int32_t {
    Asp3GSimPinStatusUnknown = 0, ///< any other word or none, and the default on failure
    Asp3GSimPinInit = 1,          ///< "pin_init"
    Asp3GSimPinRequired = 2,      ///< "pin_required"
    Asp3GSimPukRequired = 3,      ///< "puk_required"
    Asp3GSimPinOk = 4,            ///< "pin_ok"
    Asp3GSimPinFailed = 5,        ///< "pin_failed"
    Asp3GSimPukOk = 6,            ///< "puk_ok"
    Asp3GSimPukFailed = 7,        ///< "puk_failed"
    Asp3GSimPinNull = 8           ///< "pin_null"
};

} // namespace quorvel
