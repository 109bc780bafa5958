#pragma once

#include "ObjectKind.h"

namespace quorvel::simulator
{

/// Whether a WAN object carries a connection: it is in effect as enabled, and its line is up.
bool isConnected(const State& state, const std::string& wan);

} // namespace quorvel::simulator
