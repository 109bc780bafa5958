#pragma once

#include <QString>

namespace quorvel
{

// A line's gain is a percentage for the host and a number between a minimum and a maximum for the
// gateway. Both ways round up, so a value doesn't survive a round trip. Values beyond the range go
// the same way, wrapping at 32 bits. A text that is no number gives an empty one.

/// From the gateway's range to a percentage. Empty also for a range without extent.
QString convertScale(const QString& value, int min, int max);

/// From a percentage to the gateway's range. The minimum for a range without extent.
QString convertGain(const QString& value, int min, int max);

} // namespace quorvel
