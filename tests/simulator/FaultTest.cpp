#include "SimulatedGateway.h"

#include <algorithm>

namespace quorvel::simulator::tests
{

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::HasSubstr;
using testing::StartsWith;

class FaultTest : public SimulatedGateway
{
protected:
    static constexpr const char* write =
        "<xmlrequest version=\"1.0.1\">"
        "<command inst=\"cfgmgr-0\"><key>begin_transaction</key><value>conn-0</value></command>"
        "<set inst=\"conn-0\"><key>hostname</key><value>attic</value></set>"
        "<command inst=\"cfgmgr-0\"><key>commit</key><value>conn-0</value></command>"
        "<command inst=\"cfgmgr-0\"><key>end_transaction</key><value>conn-0</value></command>"
        "<command inst=\"cfgmgr-0\"><key>save</key><value></value></command>"
        "<command inst=\"conn-0\"><key>apply</key><value></value></command>"
        "</xmlrequest>";

    void inject(const std::string& text)
    {
        std::string error;
        const auto fault = Fault::fromText(text, &error);
        ASSERT_TRUE(fault) << error;
        gateway.setFault(*fault);
    }

    // The write under a fault; what came back, to the end of the connection or of the reply.
    std::unique_ptr<RawClient> writeUnder(const std::string& fault)
    {
        inject(fault);
        auto client = std::make_unique<RawClient>(gateway.port());
        client->send(post("/cgi-bin/webapp", write, cookie));
        client->readReply();
        return client;
    }

    void expectHealthy()
    {
        gateway.clearFaults();
        EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    }

    bool isWritten() const { return gateway.storedValue("conn-0", "hostname") == "attic"; }
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

TEST_F(FaultTest, AHangingConnectionOutlivesARestart)
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

TEST_F(FaultTest, AFailingCommandTakesTheWholeRequestWithIt)
{
    const Objects before = gateway.storedObjects();
    for (int command = 1; command <= 6; ++command) {
        const auto client = writeUnder("command-fails:" + std::to_string(command));
        EXPECT_EQ(errorIn(client->body()), 11);
        EXPECT_EQ(gateway.storedObjects(), before);
        EXPECT_EQ(gateway.value("conn-0", "hostname"), "gateway");
    }
    EXPECT_EQ(errorIn(writeUnder("command-fails:7")->body()), 0);
    EXPECT_TRUE(isWritten());
}

TEST_F(FaultTest, APowerCutTakesTheWholeRequestWithIt)
{
    const Objects before = gateway.storedObjects();
    for (int command = 1; command <= 6; ++command) {
        const auto client = writeUnder("power-cut:" + std::to_string(command) + " 1");
        EXPECT_EQ(client->received(), "");
        EXPECT_EQ(client->ending(), Ending::Reset);
        EXPECT_EQ(gateway.storedObjects(), before);
        EXPECT_EQ(gateway.sessionNumber(), 0U);
        ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
        cookie = logIn();
    }
    EXPECT_EQ(errorIn(writeUnder("power-cut:7")->body()), 0);
    EXPECT_TRUE(isWritten());
}

TEST_F(FaultTest, ASpoiltReplyCanMeanThatNothingWasDone)
{
    const Objects before = gateway.storedObjects();
    for (const char* fault : {"close effect=no", "reset effect=no", "truncate effect=no",
                              "garbage effect=no", "html effect=no", "http:500 effect=no"}) {
        writeUnder(fault);
        EXPECT_EQ(gateway.storedObjects(), before) << fault;
        EXPECT_EQ(gateway.value("conn-0", "hostname"), "gateway") << fault;
    }
    expectHealthy();
}

TEST_F(FaultTest, ALoginWithoutEffectOpensNoSession)
{
    inject("close effect=no on=login");
    logIn();
    EXPECT_EQ(gateway.sessionNumber(), 1U);
    inject("close on=login");
    logIn();
    EXPECT_EQ(gateway.sessionNumber(), 2U);
}

TEST_F(FaultTest, AFaultLastsForItsNumberOfRequests)
{
    inject("error:5 2");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultTest, AFaultLetsRequestsPassFirst)
{
    inject("error:5 1 after=2");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultTest, AFaultHitsItsTargetOnly)
{
    const auto probe = [this] {
        RawClient client(gateway.port());
        client.send("GET / HTTP/1.1\r\nHost: gateway\r\n\r\n");
        client.readReply();
        return client.status();
    };
    inject("http:500 on=login");
    EXPECT_EQ(probe(), 200);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    inject("empty on=login");
    EXPECT_EQ(logIn(), "");
    inject("empty on=webapp");
    EXPECT_NE(logIn(), "");
    EXPECT_EQ(send({"get conn-0 hostname"}), "");
    inject("http:500 on=probe");
    EXPECT_EQ(probe(), 500);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultTest, AFaultHitsRequestsWithItsKeyOnly)
{
    inject("error:5 key=apply");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    EXPECT_EQ(errorOf({"command conn-0 apply"}), 5);
}

TEST_F(FaultTest, SeveralFaultsAreInForceAtOnce)
{
    gateway.setFault(*Fault::fromText("error:5 1"));
    gateway.addFault(*Fault::fromText("error:6 1"));
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 6);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultTest, ANewFaultEndsTheOthers)
{
    inject("refuse");
    inject("error:5");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
}

} // namespace quorvel::simulator::tests
