#include "support/Measuring.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <numeric>
#include <random>

namespace quorvel::bench
{

namespace
{

double processorTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

double wallTime()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<double>(std::chrono::nanoseconds(now).count());
}

/// The value below which this part of a sorted sample lies.
double quantile(const std::vector<double>& sorted, double part)
{
    const double position = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(position);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    const double weight = position - static_cast<double>(below);
    return sorted[below] * (1 - weight) + sorted[above] * weight;
}

} // namespace

Spread spreadOf(std::vector<double> sample)
{
    std::sort(sample.begin(), sample.end());
    return {quantile(sample, 0.25), quantile(sample, 0.5), quantile(sample, 0.75)};
}

Cost measured(int calls, const std::function<void()>& call)
{
    const double startCpu = processorTime();
    const double start = wallTime();
    for (int i = 0; i < calls; ++i)
        call();
    return {(wallTime() - start) / calls, (processorTime() - startCpu) / calls};
}

Comparison::Comparison(const std::vector<Contender>& contenders, const Effort& effort)
{
    for (const Contender& contender : contenders)
        contender.run(1); // what is done once only
    std::vector<std::size_t> order(contenders.size());
    std::iota(order.begin(), order.end(), 0);
    std::mt19937 shuffler; // the same orders in each run
    for (int round = 0; round < effort.rounds; ++round) {
        std::shuffle(order.begin(), order.end(), shuffler);
        std::vector<Cost> costs(contenders.size());
        for (const std::size_t turn : order)
            costs[turn] = contenders[turn].run(effort.calls);
        rounds.push_back(costs);
    }
}

Spread Comparison::wall(std::size_t contender) const
{
    return cost(contender, &Cost::wall);
}

Spread Comparison::cpu(std::size_t contender) const
{
    return cost(contender, &Cost::cpu);
}

Spread Comparison::ratio(std::size_t one, std::size_t other, double Cost::*part) const
{
    std::vector<double> ratios;
    for (const std::vector<Cost>& costs : rounds)
        ratios.push_back(costs[one].*part / costs[other].*part);
    return spreadOf(ratios);
}

Spread Comparison::cost(std::size_t contender, double Cost::*part) const
{
    std::vector<double> costs;
    for (const std::vector<Cost>& round : rounds)
        costs.push_back(round[contender].*part);
    return spreadOf(costs);
}

} // namespace quorvel::bench
