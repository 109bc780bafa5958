#pragma once

/// \file
/// What the targets of the fuzzer share.

namespace quorvel::fuzz
{

/// Ends the process if a promise isn't kept, and names it.
void require(bool kept, const char* promise);

/// Whether the targets see a fault that the library doesn't have, which each of them must find: the
/// environment variable QUORVEL_PLANTED_FAULT is set.
bool faultIsPlanted();

} // namespace quorvel::fuzz
