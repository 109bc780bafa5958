#pragma once

namespace quorvel
{

/// Which calls of the gateway's log a host wants: it sets `line` and `callType`.
struct AspVoipCallHistoryFilter {
    int line = 0;       ///< number of the line, from 0
    int callType = 0;   ///< 3 for calls of all kinds, otherwise those of exactly this `callType`
    int pageSize = 0;   ///< set by the library, whatever stands there
    int firstEntry = 0; ///< set by the library, whatever stands there
    int lastEntry = 0;  ///< set by the library, whatever stands there
};

} // namespace quorvel
