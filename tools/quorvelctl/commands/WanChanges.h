#pragma once

#include "commandline/CommandLine.h"

namespace quorvelctl
{

class Session;

/// Adds those of the WAN commands that change the gateway.
void addWanChanges(commandline::Command group, Session& session);

} // namespace quorvelctl
