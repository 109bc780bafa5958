#include "support/Table.h"

#include <cstdio>

namespace quorvel::bench
{

namespace
{

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, value < 20 ? "%.2f" : "%.0f", value);
    return text;
}

std::string verdict(double figure, const Goal& goal)
{
    if (goal.kind == Goal::None)
        return "| ";
    const bool isMet = goal.kind == Goal::AtMost ? figure <= goal.limit : figure >= goal.limit;
    return std::string(goal.kind == Goal::AtMost ? "at most " : "at least ") + number(goal.limit) +
           (isMet ? " | met" : " | missed");
}

void print(const std::string& what, const std::string& figure, const std::string& quartiles,
           const std::string& verdict)
{
    std::printf("| %s | %s | %s | %s |\n", what.c_str(), figure.c_str(), quartiles.c_str(),
                verdict.c_str());
    std::fflush(stdout);
}

} // namespace

void printRow(const std::string& what, const Spread& figure, const Goal& goal)
{
    print(what, number(figure.median), number(figure.lower) + " to " + number(figure.upper),
          verdict(figure.median, goal));
}

void printRow(const std::string& what, double figure, const Goal& goal)
{
    print(what, number(figure), "", verdict(figure, goal));
}

void printCosts(const std::vector<Contender>& contenders, const Comparison& comparison)
{
    const auto microseconds = [](const Spread& cost) {
        return Spread{cost.lower / 1e3, cost.median / 1e3, cost.upper / 1e3};
    };
    for (std::size_t i = 0; i < contenders.size(); ++i) {
        printRow(contenders[i].name + ", wall in µs", microseconds(comparison.wall(i)));
        printRow(contenders[i].name + ", CPU in µs", microseconds(comparison.cpu(i)));
    }
}

} // namespace quorvel::bench
