#pragma once

#include "support/Table.h"

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace quorvel::bench
{

/// Collects the processor time of Google Benchmark's runs, in nanoseconds per iteration.
class SampleReporter : public benchmark::BenchmarkReporter
{
public:
    using Samples = std::vector<double>;

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// By name, which ends in the benchmark's arguments: "parsing/260".
    const std::map<std::string, Samples>& samples() const { return collected; }
    /// The names in the order in which they first came.
    const std::vector<std::string>& names() const { return order; }
    bool hasFailed() const { return failed; }

private:
    std::map<std::string, Samples> collected;
    std::vector<std::string> order;
    bool failed = false;
};

/// Runs all registered benchmarks, interleaved at random. `whole` is false for a smoke run.
void runInterleaved(bool whole, SampleReporter& reporter);

/// The names under which the counterparts of a benchmark are registered: the bare QDom work, and
/// with the map that comes of it.
std::string bareOf(const std::string& name);
std::string bareWithMapOf(const std::string& name);

/// Runs all registered benchmarks and prints rows for each that has counterparts; the goal is that
/// beside the bare QDom work. The status for main.
int runPairs(bool whole, const Goal& goal);

} // namespace quorvel::bench
