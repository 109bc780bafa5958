#pragma once

#include "support/Measuring.h"

#include <QString>

namespace quorvel::bench
{

/// The call of a Python script, in a process that runs beside ours and measures itself. `manner` is
/// "post" for a script that posts as one does at first, "session" for one that keeps its
/// connection.
Contender scriptCall(const QString& address, const char* manner);

} // namespace quorvel::bench
