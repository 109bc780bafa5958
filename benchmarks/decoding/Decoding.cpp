// How the time of each decoder grows with the reply.

#include "decoding/Decoders.h"
#include "support/PairReporter.h"
#include "support/Run.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace quorvel::bench
{

namespace
{

const std::vector<int>& sizes()
{
    static const std::vector<int> all = {100, 1000, 10000};
    return all;
}

void decode(benchmark::State& state, const Decoder& decoder)
{
    const int entries = static_cast<int>(state.range(0));
    const auto gateway = readyGateway(decoder.replies(entries), decoder.requests);
    for (auto _ : state) {
        const int found = decoder.decode(gateway);
        const bool isRecord = decoder.entriesPerItem == 0;
        if (isRecord ? found < 1 : found != entries / decoder.entriesPerItem)
            state.SkipWithError("not everything was decoded");
    }
}

std::string nameAt(const Decoder& decoder, int entries)
{
    return decoder.name + '/' + std::to_string(entries);
}

/// The slope of the line through the logarithms of sizes and times: 1 where each entry takes the
/// same time, whatever the reply's size.
double exponent(const std::vector<double>& times)
{
    double sumX = 0;
    double sumY = 0;
    double sumXX = 0;
    double sumXY = 0;
    const double count = static_cast<double>(times.size());
    for (std::size_t i = 0; i < times.size(); ++i) {
        const double x = std::log(sizes()[i]);
        const double y = std::log(times[i]);
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

void print(const Decoder& decoder, const SampleReporter& reporter)
{
    std::vector<SampleReporter::Samples> samples;
    std::size_t repetitions = 1000;
    std::string perEntry;
    for (const int entries : sizes()) {
        samples.push_back(reporter.samples().at(nameAt(decoder, entries)));
        repetitions = std::min(repetitions, samples.back().size());
        char text[32];
        std::snprintf(text, sizeof text, "%s%.0f", perEntry.empty() ? "" : ", ",
                      spreadOf(samples.back()).median / entries);
        perEntry += text;
    }
    std::vector<double> exponents;
    for (std::size_t i = 0; i < repetitions; ++i) {
        std::vector<double> times;
        for (const auto& ofSize : samples)
            times.push_back(ofSize[i]);
        exponents.push_back(exponent(times));
    }
    printRow("4. " + decoder.name + ", exponent (ns an entry: " + perEntry + ")",
             spreadOf(exponents), atMost(1.05));
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    for (const Decoder& decoder : decoders()) {
        for (const int entries : sizes())
            benchmark::RegisterBenchmark(decoder.name.c_str(), [&decoder](auto& state) {
                decode(state, decoder);
            })->Arg(entries);
    }
    SampleReporter reporter;
    runInterleaved(!isSmokeRun(argc, argv), reporter);
    if (reporter.hasFailed())
        return 1;
    for (const Decoder& decoder : decoders())
        print(decoder, reporter);
    return 0;
}
