#pragma once

#include "manual/Description.h"

namespace quorvel::manual
{

/// A page of section 1, for man. `version` is the program's name and number.
std::string manPage(const Command& program, const std::string& version);

} // namespace quorvel::manual
