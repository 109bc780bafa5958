#include "FaultyGateway.h"

namespace quorvel::simulator::tests
{

using std::chrono::seconds;

class FaultPlanTest : public FaultyGateway
{
};

TEST_F(FaultPlanTest, AFailingCommandTakesTheWholeRequestWithIt)
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

TEST_F(FaultPlanTest, APowerCutTakesTheWholeRequestWithIt)
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

TEST_F(FaultPlanTest, ARadioRestartLosesTheReplyToWritesOfRadiosOnly)
{
    inject("radio-restart 1");
    EXPECT_EQ(errorOf({"get wireless-0 ap0_ssid", "set - apply", "query wireless-0 apply"}), 0);
    EXPECT_EQ(errorIn(writeUnder("radio-restart 1")->body()), 0);
    EXPECT_TRUE(isWritten());
    const Lines rename{"command cfgmgr-0 begin_transaction wireless-0",
                       "set wireless-0 ap0_ssid Attic",
                       "command cfgmgr-0 commit wireless-0",
                       "command cfgmgr-0 end_transaction wireless-0",
                       "command wireless-0 apply",
                       "command cfgmgr-0 save"};
    EXPECT_EQ(send(rename), "");
    EXPECT_EQ(gateway.storedValue("wireless-0", "ap0_ssid"), "Attic");
    EXPECT_EQ(errorOf(rename), 0);
}

TEST_F(FaultPlanTest, SessionsOutlastARadioRestart)
{
    inject("radio-restart:50 1");
    EXPECT_EQ(send({"command wireless-0 apply"}), "");
    ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    inject("radio-restart:3600000 1");
    EXPECT_EQ(send({"command wireless-0 apply"}), "");
    EXPECT_FALSE(gateway.isReachable());
    EXPECT_EQ(RawClient(gateway.port()).ending(), Ending::Refused);
    EXPECT_EQ(gateway.sessionNumber(), 1U);
}

TEST_F(FaultPlanTest, ASpoiltReplyCanMeanThatNothingWasDone)
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

TEST_F(FaultPlanTest, ALoginWithoutEffectOpensNoSession)
{
    inject("close effect=no on=login");
    logIn();
    EXPECT_EQ(gateway.sessionNumber(), 1U);
    inject("close on=login");
    logIn();
    EXPECT_EQ(gateway.sessionNumber(), 2U);
}

TEST_F(FaultPlanTest, AFaultLastsForItsNumberOfRequests)
{
    inject("error:5 2");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultPlanTest, AFaultLetsRequestsPassFirst)
{
    inject("error:5 1 after=2");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultPlanTest, AFaultHitsItsTargetOnly)
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

TEST_F(FaultPlanTest, AFaultHitsRequestsWithItsKeyOnly)
{
    inject("error:5 key=apply");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    EXPECT_EQ(errorOf({"command conn-0 apply"}), 5);
}

TEST_F(FaultPlanTest, SeveralFaultsAreInForceAtOnce)
{
    gateway.setFault(*Fault::fromText("error:5 1"));
    gateway.addFault(*Fault::fromText("error:6 1"));
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 6);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(FaultPlanTest, ANewFaultEndsTheOthers)
{
    inject("refuse");
    inject("error:5");
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 5);
}

} // namespace quorvel::simulator::tests
