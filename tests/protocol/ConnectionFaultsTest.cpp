#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/DeafPort.h"

#include <QElapsedTimer>

namespace quorvel::test
{

TEST(ConnectionFault, NobodyListensAndItFailsAtOnce)
{
    const DeafPort port;
    HttpRequestExecutor executor;
    ParamMap result;
    for (int round = 0; round < 20; ++round)
        EXPECT_EQ(executor.execute(requestTo(port.address()), result), 1);
    EXPECT_EQ(entries(result), QStringList());
}

TEST(ConnectionFault, NobodyAcceptsAndItTimesOut)
{
    DeafPort port;
    port.fillBacklog();
    HttpRequestExecutor executor(500);
    ParamMap result;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(executor.execute(requestTo(port.address()), result), 2);
    EXPECT_GE(clock.elapsed(), 490);
}

TEST(ConnectionFault, ClosedAndResetConnectionsFailAndAreNotAsked)
{
    for (const bool reset : {false, true}) {
        ScriptedGateway gateway;
        HttpRequestExecutor executor;
        ParamMap result;
        for (int round = 0; round < 20; ++round) {
            // Qt may try a second connection; a request that goes out on it would be recorded.
            if (reset)
                gateway.resetOnAccept();
            else
                gateway.closeOnAccept();
            const int before = gateway.requests().size();
            gateway.answerAllOthers(
                [](const ReceivedRequest&, GatewayConnection& peer) { peer.reset(); });
            EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 1);
            EXPECT_LE(gateway.requests().size() - before, 1);
        }
        gateway.answerAllOthers(
            [](const ReceivedRequest&, GatewayConnection& peer) { peer.send(httpReply("<r/>")); });
        EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 0);
    }
}

TEST(ConnectionFault, ChallengesGetNoCredentials)
{
    for (const char* challenge :
         {"Basic realm=\"x\"", "Digest realm=\"x\", nonce=\"1\", qop=\"auth\"", "NTLM",
          "Negotiate"}) {
        for (const QByteArray status : {"401 Unauthorized\r\nWWW", "407 Proxy\r\nProxy"}) {
            ScriptedGateway gateway;
            gateway.sendRaw("HTTP/1.1 " + status + "-Authenticate: " + challenge +
                            "\r\nContent-Length: 4\r\n\r\n<r/>");
            ParamMap result;
            EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 1);
            EXPECT_EQ(gateway.requests().size(), 1);
            EXPECT_FALSE(gateway.request(0).raw.contains("Authorization"));
        }
    }
}

} // namespace quorvel::test
