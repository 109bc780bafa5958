#pragma once

#include "commandline/CommandLine.h"

#include <string>

namespace quorvelctl
{

/// Between which numbers a gateway stores its gains, which it doesn't tell itself: from options,
/// the environment, or the library's configuration file. The library turns them into percentages.
class GainRanges
{
public:
    void addTo(commandline::Command command);

    /// Hands what was given to the library.
    void apply() const;

    /// @name Fail as wrong usage if the library knows no such range
    /// @{
    void expectThatOfLines() const;
    void expectAny() const;
    /// @}

private:
    std::string lines;
    std::string analoguePort;
};

} // namespace quorvelctl
