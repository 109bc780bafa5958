#pragma once

#include "quorvel-simulator/Scenario.h"

#include <optional>
#include <string>

namespace quorvel::simulator
{

/// How many scenarios may stand on one base, one upon the other. One that stands on itself gets
/// there, too.
constexpr int highestStack = 8;

/// @name `Scenario::load` and `Scenario::fromJson` for a base, with `above` others upon it
/// @{
std::optional<Scenario> loadScenario(const std::string& nameOrPath, int above, std::string* error);
std::optional<Scenario> readScenario(const std::string& json, const std::string& origin, int above,
                                     std::string* error);
/// @}

} // namespace quorvel::simulator
