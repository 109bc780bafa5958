#include "faults/FaultRow.h"

#include <quorvel/AspGeneralSettingsFacade.h>

#include "general/GeneralSettingsImplementor.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/MemoryWatch.h"
#include "support/Resources.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <boost/make_shared.hpp>
#include <gmock/gmock.h>
#include <memory>
#include <ostream>

namespace quorvel::test
{

namespace
{

struct Answer {
    int error = -1;
    QString version;
    int milliseconds = 0;
};

/// The library's side of a row.
class Asker
{
public:
    Asker(const Fault& fault, const QString& address)
        : fault(fault), cpe(builtCpe(address, {{"XML_VERSION", "1.0.1"}}))
    {
    }

    /// With the row's own limit if it has one. A good exchange on a busy machine may take longer.
    Answer askUnderFault() const
    {
        const auto general = cpe->getGeneralImplementor();
        const auto usual = general->getRequestExecutor();
        if (fault.limitMs != HttpRequestExecutor::defaultLimitMs)
            general->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(fault.limitMs));
        const Answer answer = ask();
        general->setRequestExecutor(usual);
        return answer;
    }

    Answer ask() const
    {
        if (!fault.onSmallStack)
            return askHere();
        Answer answer;
        const std::unique_ptr<QThread> thread(QThread::create([&] { answer = askHere(); }));
        thread->setStackSize(256 * 1024);
        thread->start();
        thread->wait();
        return answer;
    }

private:
    Answer askHere() const
    {
        QElapsedTimer clock;
        clock.start();
        AspWebAppErrorCodes error = AspWebAppNoError;
        const QString version = AspGeneralSettingsFacade(cpe).getFirmwareVersion(error);
        return {error, version, static_cast<int>(clock.elapsed())};
    }

    const Fault& fault;
    const boost::shared_ptr<Cpe> cpe;
};

int repetitionsOf(const Fault& fault)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return std::min(fault.repetitions, 3); // slow, and for finding what once is enough for
#else
    return fault.repetitions;
#endif
}

void expectGoodExchange(Opponent& opponent, const Asker& asker)
{
    opponent.behave();
    const Answer answer = asker.ask();
    EXPECT_EQ(answer.error, 0);
    EXPECT_EQ(answer.version, text("1.2"));
}

/// How long it took.
int expectFaultyExchange(const Fault& fault, Opponent& opponent, const Asker& asker)
{
    const int requests = opponent.requests();
    const int connections = opponent.connections();
    opponent.misbehave();
    const Answer answer = asker.askUnderFault();
    EXPECT_THAT(fault.errors, testing::Contains(answer.error));
    EXPECT_EQ(answer.version, answer.error == 0 ? text("1.2") : QString());
    EXPECT_GE(opponent.requests() - requests, fault.fewestRequests);
    EXPECT_LE(opponent.requests() - requests, 1);
    EXPECT_LE(opponent.connections() - connections, fault.mostConnections);
    return answer.milliseconds;
}

} // namespace

Fault Fault::withoutRequest(int connections) const
{
    Fault changed = *this;
    changed.fewestRequests = 0;
    changed.mostConnections = connections;
    return changed;
}

Fault Fault::times(int number) const
{
    Fault changed = *this;
    changed.repetitions = number;
    return changed;
}

Fault Fault::within(int milliseconds) const
{
    Fault changed = *this;
    changed.limitMs = milliseconds;
    return changed;
}

Fault Fault::soonerThan(int milliseconds) const
{
    Fault changed = *this;
    changed.soonMs = milliseconds;
    return changed;
}

Fault Fault::growingAtMost(int newMegabytes) const
{
    Fault changed = *this;
    changed.megabytes = newMegabytes;
    return changed;
}

Fault Fault::onStackOf256Kilobytes() const
{
    Fault changed = *this;
    changed.onSmallStack = true;
    return changed;
}

void PrintTo(const Fault& fault, std::ostream* out)
{
    *out << fault.name;
}

void FaultRow::expectOutcome(const Fault& fault)
{
    Opponent opponent(fault.way);
    const Asker asker(fault, opponent.address());
    // What is opened once and for all is open behind this.
    expectGoodExchange(opponent, asker);
    const Resources before;
    const MemoryWatch memory;
    int quickest = fault.limitMs + 1000000;
    for (int round = 1; round <= repetitionsOf(fault); ++round) {
        SCOPED_TRACE(round);
        quickest = std::min(quickest, expectFaultyExchange(fault, opponent, asker));
        expectGoodExchange(opponent, asker);
    }
    EXPECT_TRUE(before.areBack());
    EXPECT_LE(memory.grownMegabytes(), fault.megabytes);
    EXPECT_TRUE(fault.soonMs == 0 || quickest < fault.soonMs) << quickest << " ms";
}

} // namespace quorvel::test
