#pragma once

#include <QString>

namespace quorvel
{

/// Run-time state of a DSL line, in the words of the gateway. A text that it doesn't report is
/// empty.
struct AspDslStatus {
    QString trainingStatus; ///< how far the modem has come in training
    QString mode;           ///< the standard that it trained to
    QString channel;        ///< fast or interleaved
    QString trellis;        ///< whether trellis coding is on
    QString lineStatus;     ///< state of the line
};

} // namespace quorvel
