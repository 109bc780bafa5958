#pragma once

#include <QString>

namespace quorvel
{

/// A call in the gateway's log. A text that the gateway doesn't report is empty, a number 0.
struct AspVoipCallHistory {
    QString time;        ///< gateway's local time, "YYYY-MM-DD hh:mm:ss"; "--::" if not reported
    QString destination; ///< the called party
    QString callerId;    ///< the calling party
    QString duration;    ///< as the gateway gives it
    int direction = 0;   ///< in the gateway's own numbering
    int callType = 0;    ///< kind of the call, in the gateway's own numbering
    int status = 0;      ///< in the gateway's own numbering
};

} // namespace quorvel
