#pragma once

#include <CLI/App.hpp>

namespace quorvel::manual
{

/// Lets a program tell of itself what --help tells, in other forms: `--manual man` prints its
/// manual page, `--manual bash` and `--manual zsh` its completion. The option is for the build and
/// not listed.
void addManual(CLI::App& app);

} // namespace quorvel::manual
