// Formatting and parsing against the QDom work that they can't do without.

#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV2.h"
#include "support/BareDocuments.h"
#include "support/FixedReplies.h"
#include "support/PairReporter.h"
#include "support/Run.h"

#include <algorithm>

namespace quorvel::bench
{

namespace
{

void format(benchmark::State& state)
{
    const auto commands = someCommands(static_cast<int>(state.range(0)));
    AspRequestFormatterV2 formatter;
    for (auto _ : state) {
        formatter.clearCommands();
        for (const CommandTexts& command : commands)
            formatter.addSet(command.inst, command.key, command.value);
        benchmark::DoNotOptimize(formatter.formatRequest());
    }
}

void formatBare(benchmark::State& state)
{
    const auto commands = someCommands(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(bareWrite(commands));
}

using MakeReply = QByteArray (*)(int entries);

void parse(benchmark::State& state, MakeReply makeReply)
{
    const QString reply = QString::fromUtf8(makeReply(static_cast<int>(state.range(0))));
    AspResponseParserV2 parser;
    for (auto _ : state) {
        ParamMap entries;
        if (!parser.parse(reply, entries))
            state.SkipWithError("the reply can't be read");
        benchmark::DoNotOptimize(entries);
    }
}

template <typename Bare>
void parseBare(benchmark::State& state, MakeReply makeReply, Bare bare)
{
    const QString reply = QString::fromUtf8(makeReply(static_cast<int>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(bare(reply));
}

/// As many as take some 20 ms for documents with so many commands or entries: the same number for
/// either side of a pair, and one that a moment's unrest of the machine can't make too small.
benchmark::IterationCount iterationsFor(int count)
{
    return std::max(3, 20000 / (count + 10));
}

void addFormatting()
{
    for (const int count : {1, 40, 1000}) {
        benchmark::RegisterBenchmark("3. formatting commands", format)
            ->Arg(count)
            ->Iterations(iterationsFor(count));
        benchmark::RegisterBenchmark(bareOf("3. formatting commands").c_str(), formatBare)
            ->Arg(count)
            ->Iterations(iterationsFor(count));
    }
}

void addParsing(const std::string& name, MakeReply makeReply, bool whole)
{
    for (const int count : {10, middleReply, whole ? largeReply : 1000}) {
        benchmark::RegisterBenchmark(name.c_str(), parse, makeReply)
            ->Arg(count)
            ->Iterations(iterationsFor(count));
        benchmark::RegisterBenchmark(bareOf(name).c_str(), parseBare<decltype(&bareRead)>,
                                     makeReply, &bareRead)
            ->Arg(count)
            ->Iterations(iterationsFor(count));
        benchmark::RegisterBenchmark(bareWithMapOf(name).c_str(), parseBare<decltype(&bareFlatten)>,
                                     makeReply, &bareFlatten)
            ->Arg(count)
            ->Iterations(iterationsFor(count));
    }
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    const bool whole = !isSmokeRun(argc, argv);
    addFormatting();
    addParsing("3. parsing entries", &fixedReply, whole);
    addParsing("3. parsing pairs", &fixedReplyOfPairs, whole);
    return runPairs(whole, atMost(1.10));
}
