#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/LogCapture.h"

#include <QTimer>

namespace quorvel::test
{

namespace
{

/// Exchanges during which the calling thread does something else.
class ExchangeWithEvents : public testing::Test
{
protected:
    int execute()
    {
        gateway.sendRaw(httpReply("<r/>"));
        return executor.execute(request(), result);
    }

    ParamMap request() const { return requestTo(gateway.address()); }

    /// Runs `event` on the calling thread once the gateway has the request.
    template <typename Event>
    int executeAround(Event event)
    {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            if (gateway.requests().isEmpty())
                return;
            poll.stop();
            event();
        });
        poll.start(1);
        return executor.execute(request(), result);
    }

    LogCapture log;
    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    ParamMap result{{text("old"), text("1")}};
};

} // namespace

TEST_F(ExchangeWithEvents, ServesTheEventsOfTheCallingThread)
{
    gateway.sendAndHold({});
    bool served = false;
    EXPECT_EQ(executeAround([&] {
                  served = true;
                  executor.abortPendingRequests();
              }),
              1);
    EXPECT_TRUE(served);
}

TEST_F(ExchangeWithEvents, IsBusyForAnotherRequestMeanwhile)
{
    gateway.answer([](const ReceivedRequest&, GatewayConnection& peer) {
        peer.waitForRelease();
        peer.send(httpReply("<r/>"));
    });
    ParamMap other{{text("other"), text("1")}};
    EXPECT_EQ(executeAround([&] {
                  EXPECT_EQ(executor.execute(request(), other), 5);
                  EXPECT_EQ(executor.execute(ParamMap(), other), 5);
                  gateway.release();
              }),
              0);
    EXPECT_EQ(entries(other), lines({"other=1"}));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(ExchangeWithEvents, EndsWhenItIsAbortedFromAnEventAndWorksAgain)
{
    gateway.sendAndHold("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n<r/>");
    EXPECT_EQ(executeAround([&] {
                  executor.abortPendingRequests();
                  executor.abortPendingRequests();
              }),
              1);
    EXPECT_EQ(entries(result), lines({"old=1"}));
    EXPECT_EQ(execute(), 0);
}

TEST_F(ExchangeWithEvents, RunsInsideTheExchangeOfAnotherExecutor)
{
    gateway.sendAndHold({}).sendRaw(httpReply("<inner/>"));
    HttpRequestExecutor inner;
    ParamMap innerResult;
    EXPECT_EQ(executeAround([&] {
                  EXPECT_EQ(inner.execute(request(), innerResult), 0);
                  executor.abortPendingRequests();
              }),
              1);
    EXPECT_EQ(bodyOf(innerResult), text("<inner/>"));
}

TEST_F(ExchangeWithEvents, IsNotTouchedByAnAbortBeforeIt)
{
    executor.abortPendingRequests();
    EXPECT_EQ(execute(), 0);
    executor.abortPendingRequests();
    EXPECT_EQ(execute(), 0);
}

} // namespace quorvel::test
