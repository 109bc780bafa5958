#include <ostra/OstraLogger.h>

#include "load/Caller.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>
#include <chrono>
#include <gtest/gtest.h>
#include <iostream>
#include <thread>

namespace quorvel::test
{

namespace
{

const int callerNumber = 32;
const int gatewayNumber = 200;
/// Of each caller, until its work is compared with what the gateways received.
const int operationsPerRound = 100;
/// At the end every caller reads its account on every gateway.
const long readsAtTheEnd = callerNumber * gatewayNumber;

/// Under a sanitizer all takes three times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
const int shortForm = 10000;
#else
const int shortForm = 20000;
#endif

/// How many exchanges are wanted.
long wantedExchanges()
{
    const int wanted = qEnvironmentVariableIntValue("QUORVEL_LOAD_EXCHANGES");
    return wanted > 0 ? wanted : shortForm;
}

/// Of this process: what must not grow with the work.
struct Holdings {
    int files;
    int threads;
    long kilobytes;
};

int entriesOf(const char* folder)
{
    return QDir(QLatin1String(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
}

Holdings holdings()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    const long pages = status.readAll().split(' ').value(1).toLong();
    return {entriesOf("/proc/self/fd"), entriesOf("/proc/self/task"), pages * 4};
}

/// Many callers on many gateways, in rounds: all work, all stop, and what the gateways received is
/// compared with what the callers did.
class Load : public testing::Test
{
protected:
    void SetUp() override
    {
        OstraLogger::getInstance()->setSink([](const QString&, int, const QString&) {});
        for (int number = 0; number < gatewayNumber; ++number)
            gateways.push_back(std::make_unique<LoadedGateway>(number, callerNumber));
        for (int number = 0; number < callerNumber; ++number)
            callers.push_back(std::make_unique<Caller>(number, gateways, complaints));
    }

    void TearDown() override { OstraLogger::getInstance()->setSink({}); }

    template <typename Work>
    void onAllCallers(Work work)
    {
        std::vector<std::thread> threads;
        for (const auto& caller : callers)
            threads.emplace_back([&work, &caller] { work(*caller); });
        for (std::thread& thread : threads)
            thread.join();
        for (std::size_t place = 0; place < gateways.size(); ++place) {
            Books books;
            for (std::size_t number = 0; number < callers.size(); ++number)
                books[static_cast<int>(number)] = callers[number]->books()[place];
            gateways[place]->audit(books, audited, complaints);
        }
    }

    /// Everybody finds what it left.
    void endInPeace()
    {
        for (const auto& gateway : gateways)
            gateway->simulator.clearFaults();
        onAllCallers([](Caller& caller) { caller.readAll(); });
    }

    void print(double seconds, const Holdings& before, const Holdings& after) const
    {
        Figures all = audited;
        for (const auto& caller : callers)
            all += caller->figures();
        std::cout << all.exchanges << " exchanges of " << callerNumber << " callers with "
                  << gatewayNumber << " gateways in " << seconds << " s, "
                  << static_cast<long>(static_cast<double>(all.exchanges) / seconds)
                  << " a second\n"
                  << all.text() << "files             " << before.files << " before, "
                  << after.files << " after\n"
                  << "threads           " << before.threads << " before, " << after.threads
                  << " after\n"
                  << "resident          " << before.kilobytes << " kB before, " << after.kilobytes
                  << " kB after" << std::endl;
    }

    LoadedGateways gateways;
    std::vector<std::unique_ptr<Caller>> callers;
    Complaints complaints;
    Figures audited;
};

} // namespace

TEST_F(Load, KeepsCallersAndGatewaysApart)
{
    const long wanted = wantedExchanges();
    const Holdings before = holdings();
    const auto start = std::chrono::steady_clock::now();
    do
        onAllCallers([](Caller& caller) { caller.work(operationsPerRound); });
    while (audited.exchanges + readsAtTheEnd < wanted);
    endInPeace();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    const Holdings after = holdings();
    print(time.count(), before, after);
    EXPECT_EQ(complaints.all(), std::vector<std::string>());
    EXPECT_EQ(after.files, before.files);
    EXPECT_EQ(after.threads, before.threads);
    EXPECT_GE(audited.exchanges, wanted);
}

} // namespace quorvel::test
