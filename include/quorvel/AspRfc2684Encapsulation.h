#pragma once

#include <cstdint>

namespace quorvel
{

/// How packets are put into the cells of an ATM circuit.
enum AspRfc2684Encapsulation : std::int32_t {
    AspRfc2684Llc = 0,    ///< with a header that names the protocol
    AspRfc2684VcMux = 1,  ///< one protocol per circuit, with no header
    AspRfc2684Unknown = 2 ///< anything else, and the default on failure
};

} // namespace quorvel
