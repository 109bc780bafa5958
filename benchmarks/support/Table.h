#pragma once

#include "support/Measuring.h"

#include <string>

namespace quorvel::bench
{

/// What a figure is to be. Missing it is reported and nothing more: on a busy machine every figure
/// is off now and then.
struct Goal {
    enum Kind { None, AtMost, AtLeast };
    Kind kind = None;
    double limit = 0;
};

inline Goal atMost(double limit)
{
    return {Goal::AtMost, limit};
}

inline Goal atLeast(double limit)
{
    return {Goal::AtLeast, limit};
}

/// Writes a row of a Markdown table to standard output: what was compared, the figure, its
/// quartiles, the goal and whether it is met.
void printRow(const std::string& what, const Spread& figure, const Goal& goal = {});

/// The same for a figure that was found once.
void printRow(const std::string& what, double figure, const Goal& goal = {});

/// Rows for what a call of each contender took, in microseconds.
void printCosts(const std::vector<Contender>& contenders, const Comparison& comparison);

} // namespace quorvel::bench
