#pragma once

#include "manual/Description.h"

namespace quorvel::manual
{

/// A script that bash reads to complete the program's command lines.
std::string bashCompletion(const Command& program);

/// The same for zsh.
std::string zshCompletion(const Command& program);

} // namespace quorvel::manual
