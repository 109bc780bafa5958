#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quorvel::bench
{

/// What one call took, in nanoseconds: on the clock, and of processor time in all threads.
struct Cost {
    double wall = 0;
    double cpu = 0;
};

/// One of the ways to do a job that are compared. `run` does it a number of times.
struct Contender {
    std::string name;
    std::function<Cost(int calls)> run;
};

/// The middle of a sample and the quartiles around it.
struct Spread {
    double lower;
    double median;
    double upper;
};

Spread spreadOf(std::vector<double> sample);

/// Does something a number of times in this process and says what one time took.
Cost measured(int calls, const std::function<void()>& call);

/// How often a comparison is made.
struct Effort {
    int rounds;
    int calls; ///< per round and contender
};

/// What contenders took, round by round. In each round all of them run one after the other, each
/// time in an order of chance, so that what else the machine does meanwhile, and what a contender
/// leaves behind for the next, meets all alike.
class Comparison
{
public:
    Comparison(const std::vector<Contender>& contenders, const Effort& effort);

    /// The cost of the contender at `one` divided by that of the one at `other`, round by round.
    Spread wallRatio(std::size_t one, std::size_t other) const
    {
        return ratio(one, other, &Cost::wall);
    }
    Spread cpuRatio(std::size_t one, std::size_t other) const
    {
        return ratio(one, other, &Cost::cpu);
    }
    /// What a call of a contender took.
    Spread wall(std::size_t contender) const;
    Spread cpu(std::size_t contender) const;

private:
    Spread ratio(std::size_t one, std::size_t other, double Cost::*part) const;
    Spread cost(std::size_t contender, double Cost::*part) const;

    std::vector<std::vector<Cost>> rounds; // by round, then by contender
};

} // namespace quorvel::bench
