#include "FaultyGateway.h"

#include <algorithm>

namespace quorvel::simulator::tests
{

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::HasSubstr;
using testing::StartsWith;

class FaultTest : public FaultyGateway
{
};

TEST_F(FaultTest, RefuseClosesThePort)
{
    inject("refuse");
    EXPECT_FALSE(gateway.isReachable());
    EXPECT_EQ(RawClient(gateway.port()).ending(), Ending::Refused);
    gateway.clearFaults();
    EXPECT_TRUE(gateway.isReachable());
    expectHealthy();
}

TEST_F(FaultTest, RefuseForSomeConnectionsResetsThem)
{
    inject("refuse 2");
    for (int i = 0; i < 2; ++i) {
        RawClient client(gateway.port());
        client.readToEnd();
        EXPECT_EQ(client.ending(), Ending::Reset);
    }
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultTest, CloseEndsTheConnectionWithoutAByte)
{
    const auto client = writeUnder("close");
    EXPECT_EQ(client->received(), "");
    EXPECT_EQ(client->ending(), Ending::Closed);
    EXPECT_TRUE(isWritten());
    expectHealthy();
}

TEST_F(FaultTest, ResetCutsTheReply)
{
    const auto client = writeUnder("reset");
    client->readToEnd();
    EXPECT_EQ(client->ending(), Ending::Reset);
    EXPECT_TRUE(isWritten());
    expectHealthy();
}

TEST_F(FaultTest, ResetCutsWhereItIsTold)
{
    const auto client = writeUnder("reset:7");
    client->readToEnd();
    EXPECT_EQ(client->received(), "HTTP/1.");
    EXPECT_EQ(client->ending(), Ending::Reset);
}

TEST_F(FaultTest, HangNeverAnswers)
{
    inject("hang");
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/webapp", write, cookie));
    ASSERT_TRUE(gateway.waitForRequests(2, seconds(10)));
    client.readReply(milliseconds(100));
    EXPECT_EQ(client.received(), "");
    EXPECT_EQ(client.ending(), Ending::Open);
    EXPECT_TRUE(isWritten());
    expectHealthy();
}

TEST_F(FaultTest, ARestartEndsAHangingConnection)
{
    inject("hang");
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/webapp", write, cookie));
    ASSERT_TRUE(gateway.waitForRequests(2, seconds(10)));
    gateway.restart();
    client.readToEnd();
    EXPECT_EQ(client.received(), "");
    EXPECT_EQ(client.ending(), Ending::Closed);
}

TEST_F(FaultTest, AHangingConnectionOutlivesTheRestartThatItOrdered)
{
    inject("hang");
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/webapp", xml("1.0.1", {"command sysmgr-0 reboot"}), cookie));
    ASSERT_TRUE(gateway.waitForRequests(2, seconds(10)));
    ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
    client.readReply(milliseconds(100));
    EXPECT_EQ(client.received(), "");
    EXPECT_EQ(client.ending(), Ending::Open);
}

TEST_F(FaultTest, DelayAnswersLate)
{
    inject("delay:1");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    inject("delay:3600000");
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/webapp", write, cookie));
    ASSERT_TRUE(gateway.waitForRequests(3, seconds(10)));
    client.readReply(milliseconds(100));
    EXPECT_EQ(client.received(), "");
    EXPECT_EQ(client.ending(), Ending::Open);
    expectHealthy();
}

TEST_F(FaultTest, DripSendsByteByByte)
{
    inject("drip:1");
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/webapp", write, cookie));
    client.readReply();
    EXPECT_EQ(errorIn(client.body()), 0);
    inject("drip:60000");
    RawClient slow(gateway.port());
    slow.send(post("/cgi-bin/webapp", write, cookie));
    ASSERT_TRUE(slow.readUntil("H"));
    slow.readReply(milliseconds(100));
    EXPECT_EQ(slow.received(), "H");
    expectHealthy();
}

TEST_F(FaultTest, TruncateBreaksItsPromiseOfALength)
{
    const auto client = writeUnder("truncate");
    const std::size_t promised = std::stoul(client->header("Content-Length"));
    EXPECT_EQ(client->body().size(), promised / 2);
    EXPECT_EQ(client->ending(), Ending::Closed);
    EXPECT_TRUE(isWritten());
}

TEST_F(FaultTest, WrongLengthAnnouncesMoreOrLess)
{
    const char* const whole = "<response version=\"1.0.1\">\n"
                              "<webapp><error>0</error></webapp>\n</response>\n";
    const auto more = writeUnder("wrong-length");
    EXPECT_EQ(more->body(), whole);
    EXPECT_EQ(more->header("Content-Length"), "173");
    EXPECT_EQ(more->ending(), Ending::Closed);
    const auto less = writeUnder("wrong-length:-10");
    less->readToEnd();
    EXPECT_EQ(less->header("Content-Length"), "63");
    EXPECT_EQ(less->body(), whole);
}

TEST_F(FaultTest, GarbageIsNoHttp)
{
    const auto client = writeUnder("garbage:3000");
    EXPECT_EQ(client->received().size(), 3000U);
    EXPECT_EQ(client->received().find("HTTP"), std::string::npos);
    EXPECT_EQ(client->ending(), Ending::Closed);
}

TEST_F(FaultTest, HtmlIsAPage)
{
    const auto client = writeUnder("html");
    EXPECT_EQ(client->status(), 200);
    EXPECT_EQ(client->header("Content-Type"), "text/html");
    EXPECT_THAT(client->body(), StartsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(isWritten());
}

TEST_F(FaultTest, EmptyHasNoBody)
{
    const auto client = writeUnder("empty");
    EXPECT_EQ(client->status(), 200);
    EXPECT_EQ(client->header("Content-Length"), "0");
    EXPECT_EQ(client->body(), "");
}

TEST_F(FaultTest, HttpStatusKeepsTheBody)
{
    for (const int status : {404, 500, 503}) {
        const auto client = writeUnder("http:" + std::to_string(status));
        EXPECT_EQ(client->status(), status);
        EXPECT_EQ(errorIn(client->body()), 0);
        EXPECT_EQ(client->header("Location"), "");
    }
    const auto client = writeUnder("http:302");
    EXPECT_EQ(client->status(), 302);
    EXPECT_EQ(client->header("Location"), "/");
}

TEST_F(FaultTest, InvalidUtf8StandsInAnEntry)
{
    EXPECT_THAT(writeUnder("bad-utf8")->body(),
                HasSubstr("<webui-0><note>\xC3\x28 \xFF\xFE</note></webui-0>"));
}

TEST_F(FaultTest, ErrorCodeMeansThatNothingIsDone)
{
    EXPECT_EQ(writeUnder("error:23")->body(),
              "<response version=\"1.0.1\">\n<webapp><error>23</error></webapp>\n</response>\n");
    EXPECT_EQ(writeUnder("error:-3")->body(),
              "<response version=\"1.0.1\">\n<webapp><error>-3</error></webapp>\n</response>\n");
    EXPECT_FALSE(isWritten());
}

TEST_F(FaultTest, SessionExpiresEachTimeAfterItsRequests)
{
    inject("session-expired:2");
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
        EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
        EXPECT_EQ(errorOf({"get conn-0 hostname"}), 1);
        cookie = logIn();
    }
}

TEST_F(FaultTest, SessionExpiresOnce)
{
    inject("session-expired 1");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 1);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 1);
    cookie = logIn();
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultTest, OversizedIsWellFormedAndLong)
{
    const std::string body = writeUnder("oversized:100000")->body();
    EXPECT_THAT(body, StartsWith("<response version=\"1.0.1\"><webui-0><note>xxx"));
    EXPECT_EQ(std::count(body.begin(), body.end(), 'x'), 100000);
    EXPECT_EQ(errorIn(body), 0);
    EXPECT_GT(writeUnder("oversized")->body().size(), 5242880U);
}

TEST_F(FaultTest, TooDeepIsNested)
{
    EXPECT_EQ(writeUnder("too-deep:4")->body(), "<response version=\"1.0.1\"><a><a><a></a></a></a>"
                                                "<webapp><error>0</error></webapp></response>\n");
    const std::string body = writeUnder("too-deep")->body();
    EXPECT_EQ(std::count(body.begin(), body.end(), 'a') - 2, 2 * 256);
}

} // namespace quorvel::simulator::tests
