#pragma once

#include "support/RequestCases.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <vector>

namespace quorvel::test
{

using WirelessCase = RequestCase<WirelessSettingsImplementor>;

/// Settings of the newer generation as they are written, with something under every key that could
/// be.
ParamMap newerSettings(const char* mode);

/// The operations that send something, each with whatever inputs change what it sends. Instances
/// have names that no radio of the older generation has, to show where they are left aside.
std::vector<WirelessCase> olderRequests();

/// The same of the newer generation, but for the one operation that takes no lock.
std::vector<WirelessCase> newerLockedRequests();
WirelessCase newerUnlockedRequest();

} // namespace quorvel::test
