#pragma once

#include "commandline/CommandLine.h"

namespace quorvel::manual
{

/// Lets a program tell of itself what --help tells, in other forms: `--manual man` prints its
/// manual page, `--manual bash` and `--manual zsh` its completion. The option is for the build and
/// not listed.
void addManual(commandline::CommandLine& line);

} // namespace quorvel::manual
