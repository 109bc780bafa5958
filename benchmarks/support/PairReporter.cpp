#include "support/PairReporter.h"

#include <algorithm>
#include <cstdio>

namespace quorvel::bench
{

namespace
{

/// Function and arguments, without how often it is run.
std::string nameOf(const benchmark::BenchmarkName& name)
{
    return name.args.empty() ? name.function_name : name.function_name + '/' + name.args;
}

void printPair(const SampleReporter& reporter, const std::string& name,
               const std::string& counterpart, const std::string& what, const Goal& goal)
{
    const auto bare = reporter.samples().find(counterpart);
    if (bare == reporter.samples().end())
        return;
    const SampleReporter::Samples& own = reporter.samples().at(name);
    std::vector<double> ratios;
    for (std::size_t i = 0; i < own.size() && i < bare->second.size(); ++i)
        ratios.push_back(own[i] / bare->second[i]);
    printRow(name + " to " + what + ", CPU", spreadOf(ratios), goal);
}

} // namespace

void SampleReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred) {
            failed = true;
            std::fprintf(stderr, "%s: %s\n", nameOf(run.run_name).c_str(),
                         run.error_message.c_str());
        }
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const std::string name = nameOf(run.run_name);
        Samples& samples = collected[name];
        if (samples.empty())
            order.push_back(name);
        samples.push_back(run.cpu_accumulated_time * 1e9 / static_cast<double>(run.iterations));
    }
}

void runInterleaved(bool whole, SampleReporter& reporter)
{
    std::string flags[] = {"benchmarks", "--benchmark_enable_random_interleaving=true",
                           whole ? "--benchmark_repetitions=25" : "--benchmark_repetitions=2",
                           whole ? "--benchmark_min_time=0.02" : "--benchmark_min_time=0.0001"};
    std::vector<char*> arguments;
    for (std::string& flag : flags)
        arguments.push_back(flag.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks(&reporter);
}

std::string bareOf(const std::string& name)
{
    return "bare " + name;
}

std::string bareWithMapOf(const std::string& name)
{
    return "bare with map " + name;
}

int runPairs(bool whole, const Goal& goal)
{
    SampleReporter reporter;
    runInterleaved(whole, reporter);
    std::vector<std::string> names = reporter.names();
    std::sort(names.begin(), names.end()); // they come in the order of the dice
    for (const std::string& name : names) {
        printPair(reporter, name, bareOf(name), "the bare QDom work", goal);
        printPair(reporter, name, bareWithMapOf(name), "the bare QDom work and a map", {});
    }
    return reporter.hasFailed() || reporter.names().empty() ? 1 : 0;
}

} // namespace quorvel::bench
