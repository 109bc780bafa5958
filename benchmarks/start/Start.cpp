// From the start of a process to its first answer. The program starts itself for that.

#include "support/BareExchange.h"
#include "support/FacadeCall.h"
#include "support/FixedReplies.h"
#include "support/FixedServer.h"
#include "support/Run.h"
#include "support/Table.h"

#include <QCoreApplication>
#include <QProcess>
#include <cstdio>
#include <cstring>

namespace quorvel::bench
{

namespace
{

const char firstFlag[] = "--first";

/// What the started process does: answers once, then ends.
int answerOnce(const QString& address, int exchanges)
{
    if (exchanges == 0)
        askFirmware(facadeAt(address));
    for (int i = 0; i < exchanges; ++i)
        bareExchange(address);
    return 0;
}

/// A process that makes a facade call, recognition included, or with a number of exchanges just
/// those.
Contender process(const std::string& name, const QString& address, int exchanges)
{
    const QStringList arguments{QString::fromLatin1(firstFlag), address,
                                QString::number(exchanges)};
    return {name, [arguments](int calls) {
                return measured(calls, [&] {
                    if (QProcess::execute(QCoreApplication::applicationFilePath(), arguments) != 0)
                        std::abort();
                });
            }};
}

void compare(const FixedServer& server, const Effort& effort)
{
    const QString address = server.address(0);
    const Contender cold = process("cold start", address, 0);
    const std::uint64_t before = server.requests();
    cold.run(1);
    const auto exchanges = static_cast<int>(server.requests() - before);
    printRow("5. exchanges to the first answer", exchanges);
    const std::vector<Contender> contenders = {
        cold, process("start with as many bare exchanges", address, exchanges)};
    const Comparison comparison(contenders, effort);
    printRow("5. cold start to a start with as many bare exchanges, wall",
             comparison.wallRatio(0, 1));
    for (std::size_t i = 0; i < contenders.size(); ++i) {
        const Spread wall = comparison.wall(i);
        printRow(contenders[i].name + ", wall in ms",
                 Spread{wall.lower / 1e6, wall.median / 1e6, wall.upper / 1e6});
    }
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    if (argc == 4 && std::strcmp(argv[1], firstFlag) == 0) {
        QCoreApplication application(argc, argv);
        return answerOnce(QString::fromLatin1(argv[2]), std::atoi(argv[3]));
    }
    const FixedServer server({fixedReply(smallReply)});
    QCoreApplication application(argc, argv);
    compare(server, isSmokeRun(argc, argv) ? Effort{2, 1} : Effort{40, 3});
    return 0;
}
