// Many gateways at once, a thread for each.

#include "support/BareExchange.h"
#include "support/FacadeCall.h"
#include "support/FixedReplies.h"
#include "support/FixedServer.h"
#include "support/Run.h"
#include "support/Table.h"

#include <QCoreApplication>
#include <thread>

namespace quorvel::bench
{

namespace
{

/// Does something `calls` times on each of so many threads, which get their numbers.
template <typename Call>
Cost onThreads(int threads, int calls, Call call)
{
    const Cost all = measured(1, [&] {
        std::vector<std::thread> running;
        for (int number = 0; number < threads; ++number)
            running.emplace_back([=] {
                for (int i = 0; i < calls; ++i)
                    call(static_cast<std::size_t>(number));
            });
        for (std::thread& thread : running)
            thread.join();
    });
    return {all.wall / threads / calls, all.cpu / threads / calls};
}

void compareAt(const FixedServer& server, int width, const Effort& effort)
{
    std::vector<General> facades;
    for (int i = 0; i < width; ++i)
        facades.push_back(facadeAt(server.address(static_cast<std::size_t>(i))));
    const auto contender = [&](const std::string& name, const auto& call) {
        return Contender{name + ", " + std::to_string(width) + " at once",
                         [=](int calls) { return onThreads(width, calls, call); }};
    };
    enum { Bare, BareAndDocuments, BareAndMaps, Facade };
    const std::vector<Contender> contenders = {
        contender("bare exchanges", [&](std::size_t at) { bareExchange(server.address(at)); }),
        contender("bare exchanges and QDom work",
                  [&](std::size_t at) { bareCallWithDocuments(server.address(at)); }),
        contender("bare exchanges, QDom work and maps",
                  [&](std::size_t at) { bareCallWithMaps(server.address(at)); }),
        contender("facade calls", [&](std::size_t at) { askFirmware(facades[at]); })};
    const Comparison comparison(contenders, effort);
    const std::string what = "6. " + std::to_string(width) + " gateways at once, ";
    // The others' time through the call's is the calls per second through theirs.
    printRow(what + "calls per second to bare exchanges", comparison.wallRatio(Bare, Facade),
             atLeast(0.95));
    printRow(what + "bare exchanges and QDom work per second to bare exchanges",
             comparison.wallRatio(Bare, BareAndDocuments));
    printRow(what + "bare exchanges, QDom work and maps per second to bare exchanges",
             comparison.wallRatio(Bare, BareAndMaps));
    printRow(what + "calls per second to bare exchanges and QDom work",
             comparison.wallRatio(BareAndDocuments, Facade));
    printRow(what + "calls per second to bare exchanges, QDom work and maps",
             comparison.wallRatio(BareAndMaps, Facade));
    printRow(what + "CPU per call to a bare exchange's", comparison.cpuRatio(Facade, Bare));
    printRow(what + "CPU per call to a bare exchange's and QDom work's",
             comparison.cpuRatio(Facade, BareAndDocuments));
    printCosts(contenders, comparison);
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    const bool whole = !isSmokeRun(argc, argv);
    const std::vector<QByteArray> bodies(128, fixedReply(smallReply));
    const FixedServer server(bodies);
    QCoreApplication application(argc, argv);
    for (const int width : {1, 8, 32, 128}) {
        if (whole || width <= 8)
            compareAt(server, width,
                      whole ? Effort{40, width == 1 ? 100 : 256 / width} : Effort{2, 1});
    }
    return 0;
}
