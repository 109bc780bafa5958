#pragma once

#include <QString>

namespace quorvelctl
{

/// Waits until the gateway answers again after a restart that takes about `durationMs`, with a
/// progress bar on a terminal. Fails as not reachable if it isn't back after twice that time and
/// `graceMs`. No gateway is believed that it needs more than a quarter of an hour.
void waitUntilBack(const QString& address, int durationMs, int graceMs = 60000);

} // namespace quorvelctl
