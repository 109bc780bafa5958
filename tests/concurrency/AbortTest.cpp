#include "protocol/HttpRequestExecutor.h"

#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Exchanges.h"
#include "support/BuiltGateway.h"
#include "support/DeafPort.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <random>
#include <thread>

namespace quorvel::test
{

namespace
{

using Clock = std::chrono::steady_clock;

std::chrono::milliseconds since(Clock::time_point start)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
}

class AbortTest : public testing::Test
{
protected:
    int execute() { return executor.execute(requestTo(gateway.address()), result); }

    /// Executes while another thread aborts once `ready` holds; gives back the outcome.
    int executeAndAbortWhen(const std::function<bool()>& ready, const ParamMap& request)
    {
        std::thread aborter([&] {
            while (!ready())
                std::this_thread::yield();
            aborted = Clock::now();
            executor.abortPendingRequests();
        });
        const int outcome = executor.execute(request, result);
        wait = since(aborted);
        aborter.join();
        return outcome;
    }

    int executeAndAbortWhen(const std::function<bool()>& ready)
    {
        return executeAndAbortWhen(ready, requestTo(gateway.address()));
    }

    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    ParamMap result;
    Clock::time_point aborted;
    std::chrono::milliseconds wait{0};
};

} // namespace

TEST_F(AbortTest, EndsTheWaitSoon)
{
    std::chrono::milliseconds shortest = std::chrono::hours(1);
    for (int round = 1; round <= 10; ++round) {
        gateway.sendAndHold({});
        EXPECT_EQ(executeAndAbortWhen([&] { return gateway.requests().size() == round; }), 1);
        shortest = std::min(shortest, wait);
    }
    // The best of ten, so that a busy machine doesn't count.
    EXPECT_LT(shortest.count(), 100);
}

TEST_F(AbortTest, EndsAnExchangeThatIsConnecting)
{
    DeafPort port;
    port.fillBacklog();
    const auto start = Clock::now();
    EXPECT_EQ(
        executeAndAbortWhen([&] { return since(start).count() > 100; }, requestTo(port.address())),
        1);
    EXPECT_LT(wait.count(), 10000);
}

TEST_F(AbortTest, EndsAnExchangeThatIsSending)
{
    gateway.holdUnread().sendRaw(httpReply("<r/>"));
    EXPECT_EQ(
        executeAndAbortWhen([&] { return gateway.connections() == 1; },
                            requestTo(gateway.address(), QString(30000000, QLatin1Char('x')))),
        1);
    EXPECT_LT(wait.count(), 10000);
    EXPECT_EQ(execute(), 0);
}

TEST_F(AbortTest, EndsAnExchangeThatIsReading)
{
    std::atomic<bool> sent{false};
    gateway
        .answer([&](const ReceivedRequest&, GatewayConnection& peer) {
            peer.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<r>");
            sent = true;
            peer.waitForPeer();
        })
        .sendRaw(httpReply("<r/>"));
    EXPECT_EQ(executeAndAbortWhen([&] { return sent.load(); }), 1);
    EXPECT_EQ(entries(result), QStringList());
    EXPECT_EQ(execute(), 0);
}

TEST_F(AbortTest, FromFourThreadsAtOnceCountsAsOne)
{
    gateway.sendAndHold({}).sendRaw(httpReply("<r/>"));
    std::vector<std::thread> aborters;
    for (int i = 0; i < 4; ++i)
        aborters.emplace_back([&] {
            EXPECT_TRUE(gateway.waitForRequests(1));
            executor.abortPendingRequests();
            executor.abortPendingRequests();
        });
    EXPECT_EQ(execute(), 1);
    for (std::thread& aborter : aborters)
        aborter.join();
    EXPECT_EQ(execute(), 0);
}

TEST_F(AbortTest, OfOneExecutorLeavesAnotherAlone)
{
    HttpRequestExecutor other;
    gateway.sendAndHold({}).answer([](const ReceivedRequest&, GatewayConnection& peer) {
        peer.waitForRelease();
        peer.send(httpReply("<other/>"));
    });
    ParamMap otherResult;
    std::thread second;
    EXPECT_EQ(executeAndAbortWhen([&] {
                  if (gateway.requests().size() == 1 && !second.joinable())
                      second = std::thread([&] {
                          EXPECT_EQ(other.execute(requestTo(gateway.address()), otherResult), 0);
                      });
                  return gateway.requests().size() == 2;
              }),
              1);
    gateway.release();
    second.join();
    EXPECT_EQ(bodyOf(otherResult), text("<other/>"));
}

TEST_F(AbortTest, AtRandomMomentsEndsInSuccessOrFailureAndNothingElse)
{
    // Outlives this function: requests that were aborted may still arrive behind it.
    struct Course {
        std::atomic<int> number{0};
        std::atomic<bool> calm{false};
    };
    const auto course = std::make_shared<Course>();
    gateway.answerAllOthers([course](const ReceivedRequest&, GatewayConnection& peer) {
        const int kind = ++course->number % 4;
        if (course->calm)
            peer.send(httpReply("<last/>"));
        else if (kind == 0)
            peer.waitForPeer();
        else if (kind == 1)
            peer.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<r>");
        else
            peer.send(httpReply("<r/>"));
    });
    std::atomic<bool> done{false};
    // As many yields as let some exchanges succeed and others not, however fast the machine is.
    std::atomic<unsigned> patience{200};
    std::thread aborter([&] {
        std::minstd_rand random(1);
        while (!done) {
            for (unsigned pause = random() % patience; pause > 0 && !done; --pause)
                std::this_thread::yield();
            executor.abortPendingRequests();
        }
    });
    int outcomes[2] = {0, 0};
    for (int exchange = 0; exchange < 2000; ++exchange) {
        const int outcome = execute();
        ASSERT_TRUE(outcome == 0 || outcome == 1) << outcome;
        ++outcomes[outcome];
        patience = outcome == 0 ? std::max(2u, patience / 4 * 3)
                                : std::min(100000u, patience + patience / 10 + 1);
    }
    done = true;
    aborter.join();
    EXPECT_GT(outcomes[0], 0);
    EXPECT_GT(outcomes[1], 0);
    course->calm = true;
    EXPECT_EQ(execute(), 0);
    EXPECT_EQ(bodyOf(result), text("<last/>"));
}

namespace
{

/// An abort of a whole gateway, during a request of its general settings.
class CpeAbort : public BuiltGateway
{
protected:
    QStringList askAndAbortWhen(int requests)
    {
        std::thread aborter([&] {
            EXPECT_TRUE(gateway.waitForRequests(requests));
            cpe->abortPendingRequests();
        });
        ParamMap result;
        EXPECT_FALSE(cpe->getGeneralImplementor()->getFirmwareVersion(result));
        aborter.join();
        return entries(result);
    }
};

} // namespace

TEST_F(CpeAbort, MakesARequestFail)
{
    build({{"XML_VERSION", "1.0.1"}});
    gateway.sendAndHold({});
    EXPECT_EQ(askAndAbortWhen(1), lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"}));
}

TEST_F(CpeAbort, MakesALoginFailWithoutAnErrorOfTheGateway)
{
    build({{"XML_VERSION", "1.0.1"}});
    AspCpeSessionStorage::getInstance()->removeSession(gateway.address());
    gateway.sendAndHold({});
    EXPECT_EQ(askAndAbortWhen(1), lines({"AUTH_PARAM_LOGINRESULT=3"}));
}

TEST_F(CpeAbort, MakesTheLoginAfterAnExpiredSessionFail)
{
    build({{"XML_VERSION", "1.0.1"}});
    gateway.reply(reply101({{"webapp", "error", "1"}})).sendAndHold({});
    EXPECT_EQ(askAndAbortWhen(2), lines({"AUTH_PARAM_LOGINRESULT=3"}));
}

} // namespace quorvel::test
