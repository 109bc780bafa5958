#pragma once

#include <CLI/App.hpp>

namespace quorvelctl
{

class Session;

/// Adds those of the WAN commands that change the gateway.
void addWanChanges(CLI::App& group, Session& session);

} // namespace quorvelctl
