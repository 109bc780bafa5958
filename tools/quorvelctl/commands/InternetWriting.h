#pragma once

#include "commandline/CommandLine.h"

namespace quorvelctl
{

class Session;

/// Adds set-dsl and set-eth.
void addInternetWriting(commandline::Command group, Session& session);

} // namespace quorvelctl
