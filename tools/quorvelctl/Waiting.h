#pragma once

#include <QString>

namespace quorvelctl
{

/// Waits until the gateway answers again after a restart that takes about `durationMs`, with a
/// progress bar on a terminal. Fails as not reachable if it isn't back after twice that time and a
/// minute.
void waitUntilBack(const QString& address, int durationMs);

} // namespace quorvelctl
