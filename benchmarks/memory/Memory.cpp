// What the library keeps, and how far it rises while a large reply is read.

#include "support/BareExchange.h"
#include "support/FacadeCall.h"
#include "support/FixedReplies.h"
#include "support/FixedServer.h"
#include "support/ReadyGateway.h"
#include "support/Run.h"
#include "support/Table.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <boost/make_shared.hpp>
#include <cstdio>
#include <cstring>
#include <malloc.h>

namespace quorvel::bench
{

namespace
{

const char peakFlag[] = "--peak";

double bytesInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// A figure of the process's state, in kB.
double statusFigure(const char* name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    file.open(QIODevice::ReadOnly);
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.mid(static_cast<int>(std::strlen(name)))
                .trimmed()
                .split(' ')
                .at(0)
                .toDouble();
    }
    return 0;
}

/// Bytes of the heap that one of many objects of a kind takes.
template <typename Make>
double bytesOf(Make make)
{
    const int count = 1000;
    std::vector<decltype(make(0))> kept;
    kept.reserve(count);
    make(0); // what is made once only
    const double before = bytesInUse();
    for (int i = 0; i < count; ++i)
        kept.push_back(make(i));
    return (bytesInUse() - before) / count;
}

void measureObjects()
{
    const double cpe = bytesOf(
        [](int number) { return builtGateway(QStringLiteral("192.0.2.1:%1").arg(number)); });
    printRow("7. an idle Cpe with all families, its session included, in kB", cpe / 1024,
             atMost(24));
    const double object = bytesOf([](int number) {
        return boost::make_shared<AspCpeFacadeObject>(
            AuthenticationInfo{QStringLiteral("admin"), QStringLiteral("admin"),
                               QStringLiteral("192.0.2.1:%1").arg(number)});
    });
    printRow("7. an AspCpeFacadeObject before it asks, in bytes", object);
    const auto gateway = builtGateway(QStringLiteral("192.0.2.1"));
    const double facade =
        bytesOf([&](int) { return boost::make_shared<AspGeneralSettingsFacade>(gateway); });
    printRow("7. a facade, in bytes", facade);
}

void measureGrowth(const FixedServer& server, int exchanges)
{
    const General facade = facadeAt(server.address(0));
    for (int i = 0; i < exchanges / 10; ++i)
        askFirmware(facade);
    const double before = statusFigure("VmRSS:");
    for (int i = 0; i < exchanges; ++i)
        askFirmware(facade);
    printRow("7. resident growth over " + std::to_string(exchanges) + " exchanges, in kB",
             statusFigure("VmRSS:") - before);
}

/// What the started process does: a small call, so that everything is there, then a large one, and
/// prints by how many kB it rose.
int printPeak(const QString& kind, const QString& small, const QString& large)
{
    const bool isFacade = kind == QLatin1String("facade");
    const General facade = isFacade ? facadeAt(large) : General();
    const General warm = isFacade ? facadeAt(small) : General();
    const auto call = [&](const General& own, const QString& address) {
        if (own)
            askFirmware(own);
        else
            bareCallWithDocuments(address);
    };
    call(warm, small);
    const double before = statusFigure("VmRSS:");
    call(facade, large);
    std::printf("%.0f\n", statusFigure("VmHWM:") - before);
    return 0;
}

double peakOf(const char* kind, const FixedServer& server)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::fromLatin1(peakFlag), QString::fromLatin1(kind), server.address(0),
                   server.address(1)});
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().toDouble();
}

void measurePeak(const FixedServer& server, int rounds)
{
    std::vector<double> ratios;
    std::vector<double> own;
    for (int round = 0; round < rounds; ++round) {
        own.push_back(peakOf("facade", server));
        ratios.push_back(own.back() / peakOf("bare", server));
    }
    printRow("7. peak while 1 MB is read to that of the bare exchange and QDom work",
             spreadOf(ratios), atMost(1.2));
    printRow("peak while 1 MB is read, in kB", spreadOf(own));
}

} // namespace

} // namespace quorvel::bench

int main(int argc, char** argv)
{
    using namespace quorvel::bench;
    if (argc == 5 && std::strcmp(argv[1], peakFlag) == 0) {
        QCoreApplication application(argc, argv);
        return printPeak(QString::fromLatin1(argv[2]), QString::fromLatin1(argv[3]),
                         QString::fromLatin1(argv[4]));
    }
    const bool whole = !isSmokeRun(argc, argv);
    const FixedServer server({fixedReply(smallReply), fixedReply(largeReply)});
    QCoreApplication application(argc, argv);
    measureObjects();
    measureGrowth(server, whole ? 10000 : 20);
    measurePeak(server, whole ? 15 : 1);
    return 0;
}
