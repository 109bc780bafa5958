#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using std::chrono::milliseconds;
using std::chrono::seconds;

class RestartTest : public SimulatedGateway
{
protected:
    int write(const char* save)
    {
        return errorOf({"command cfgmgr-0 begin_transaction conn-0", "set conn-0 hostname attic",
                        "command cfgmgr-0 commit conn-0", "command cfgmgr-0 end_transaction conn-0",
                        "command conn-0 apply", save});
    }

    // Sends the command on a connection that stays open and returns it with its reply.
    std::unique_ptr<RawClient> order(const char* line)
    {
        auto client = std::make_unique<RawClient>(gateway.port());
        client->send(post("/cgi-bin/webapp", xml("1.0.1", {line}), cookie));
        client->readReply();
        return client;
    }
};

TEST_F(RestartTest, ARebootAnswersAndIsThenUnreachableForATime)
{
    gateway.setRebootTime(std::chrono::hours(1));
    const auto client = order("command sysmgr-0 reboot");
    EXPECT_EQ(errorIn(client->body()), 0);
    EXPECT_FALSE(gateway.isReachable());
    EXPECT_EQ(RawClient(gateway.port()).ending(), Ending::Refused);
    client->readToEnd();
    EXPECT_EQ(client->ending(), Ending::Closed);
}

TEST_F(RestartTest, TheGatewayComesBackOnItsPort)
{
    const std::string address = gateway.address();
    order("command sysmgr-0 reboot");
    ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
    EXPECT_EQ(gateway.address(), address);
    EXPECT_TRUE(RawClient(gateway.port()).isConnected());
}

TEST_F(RestartTest, ARebootLosesSessionsAndWhatIsNotSaved)
{
    ASSERT_EQ(write("get conn-0"), 0);
    ASSERT_EQ(gateway.value("conn-0", "hostname"), "attic");
    order("command sysmgr-0 reboot");
    ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 1);
    cookie = logIn();
    EXPECT_EQ(get("conn-0", "hostname"), "gateway");
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "gateway");
}

TEST_F(RestartTest, ARebootKeepsWhatIsSaved)
{
    ASSERT_EQ(write("command cfgmgr-0 save"), 0);
    order("command sysmgr-0 reboot");
    ASSERT_TRUE(gateway.waitUntilReachable(true, seconds(10)));
    cookie = logIn();
    EXPECT_EQ(get("conn-0", "hostname"), "attic");
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "attic");
}

TEST_F(RestartTest, SavedButNotAppliedIsInEffectAfterARestart)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction conn-0", "set conn-0 hostname attic",
                       "command cfgmgr-0 commit conn-0", "command cfgmgr-0 save"}),
              0);
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "gateway");
    gateway.restart();
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "attic");
}

TEST_F(RestartTest, AFactoryResetRestoresTheScenario)
{
    ASSERT_EQ(write("command cfgmgr-0 save"), 0);
    gateway.setRebootTime(std::chrono::hours(1));
    EXPECT_EQ(errorIn(order("command cfgmgr-0 factory_default")->body()), 0);
    EXPECT_FALSE(gateway.isReachable());
    EXPECT_EQ(gateway.sessionNumber(), 0U);
    EXPECT_EQ(gateway.storedValue("conn-0", "hostname"), "gateway");
    EXPECT_EQ(gateway.configuredValue("conn-0", "hostname"), "gateway");
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "gateway");
}

TEST_F(RestartTest, ARestartEndsOtherConnections)
{
    RawClient idle(gateway.port());
    idle.send("GET / HTTP/1.1\r\nHost: gateway\r\n\r\n");
    idle.readReply();
    ASSERT_EQ(idle.ending(), Ending::Open);
    gateway.restart();
    idle.readToEnd();
    EXPECT_EQ(idle.ending(), Ending::Closed);
}

TEST_F(RestartTest, ARestartOfNoTimeStaysReachable)
{
    gateway.setRebootTime(milliseconds(0));
    gateway.restart();
    EXPECT_TRUE(gateway.isReachable());
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 1);
}

TEST_F(RestartTest, RunTimeValuesAreTheScenariosAgain)
{
    gateway.setStatus("eth-0", "linkstate", "0");
    EXPECT_EQ(gateway.value("eth-0", "linkstate"), "0");
    gateway.restart();
    EXPECT_EQ(gateway.value("eth-0", "linkstate"), "1");
}

TEST_F(RestartTest, AStoppedGatewayStartsAgainAsItWas)
{
    const int port = gateway.port();
    gateway.stop();
    EXPECT_FALSE(gateway.isReachable());
    EXPECT_EQ(RawClient(port).ending(), Ending::Refused);
    ASSERT_TRUE(gateway.start());
    EXPECT_EQ(gateway.port(), port);
    EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
}

TEST_F(RestartTest, APortThatIsTakenIsAnError)
{
    GatewaySimulator second(*Scenario::load("modern"));
    second.listenOn("127.0.0.1", gateway.port());
    std::string error;
    EXPECT_FALSE(second.start(&error));
    EXPECT_EQ(error, "cannot listen on " + gateway.address() + ": Address already in use");
    second.listenOn("gateway", 80);
    EXPECT_FALSE(second.start(&error));
    EXPECT_EQ(error, "'gateway' and 80 are no address and port");
}

} // namespace quorvel::simulator::tests
