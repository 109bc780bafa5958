#include "SimulatedGateway.h"

#include <thread>

namespace quorvel::simulator::tests
{

class SessionTest : public SimulatedGateway
{
protected:
    static constexpr const char* anything = "query sysmgr-0 fwversion";
};

TEST_F(SessionTest, ALoginHandsOutACookieThatCannotBeGuessed)
{
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/login", "user=admin&password=admin"));
    client.readReply();
    EXPECT_EQ(client.status(), 200);
    EXPECT_THAT(client.header("Set-Cookie"), testing::MatchesRegex("SID=[0-9a-f]{32}; path=/"));
    EXPECT_NE(client.header("Set-Cookie"), cookie + "; path=/");
}

TEST_F(SessionTest, ARefusedLoginIsAnsweredWithoutACookie)
{
    for (const char* form : {"user=admin&password=wrong", "user=root&password=admin",
                             "user=admin&password=", "user=admin", "", "password=admin"}) {
        RawClient client(gateway.port());
        client.send(post("/cgi-bin/login", form));
        client.readReply();
        EXPECT_EQ(client.status(), 200) << form;
        EXPECT_EQ(client.received().find("Set-Cookie"), std::string::npos) << form;
    }
}

TEST_F(SessionTest, TheLoginFormIsPercentDecoded)
{
    gateway.setValue("webui-0", "password", "a&b=c %\xC3\xBC");
    EXPECT_NE(logIn("user=%61dmin&password=a%26b%3Dc%20%25%C3%BC"), "");
    EXPECT_NE(logIn("user=admin&password=a%26b%3dc+%25%c3%bc"), "");
    EXPECT_EQ(logIn("user=admin&password=a&b=c"), "");
}

TEST_F(SessionTest, AnUnknownOrMissingSessionIsError1)
{
    cookie = "SID=00000000000000000000000000000000";
    EXPECT_EQ(send({anything}),
              "<response version=\"1.0.1\">\n<webapp><error>1</error></webapp>\n</response>\n");
    cookie.clear();
    EXPECT_EQ(errorOf({anything}), 1);
    cookie = "SID=";
    EXPECT_EQ(errorOf({anything}), 1);
}

TEST_F(SessionTest, TheCookieIsFoundAmongOthers)
{
    cookie = "theme=dark; " + cookie + " ; lang=en";
    EXPECT_EQ(errorOf({anything}), 0);
}

TEST_F(SessionTest, ExpiredSessionsAreUnknown)
{
    gateway.expireSessions();
    EXPECT_EQ(gateway.sessionNumber(), 0U);
    EXPECT_EQ(errorOf({anything}), 1);
    cookie = logIn();
    EXPECT_EQ(errorOf({anything}), 0);
}

TEST_F(SessionTest, ASessionExpiresAfterItsRequests)
{
    gateway.setSessionRequests(2);
    EXPECT_EQ(errorOf({anything}), 0);
    EXPECT_EQ(errorOf({anything}), 0);
    EXPECT_EQ(errorOf({anything}), 1);
}

TEST_F(SessionTest, ASessionExpiresWhenItIsIdle)
{
    gateway.setSessionIdleTime(std::chrono::hours(1));
    EXPECT_EQ(errorOf({anything}), 0);
    gateway.setSessionIdleTime(std::chrono::milliseconds(1));
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (gateway.sessionNumber() > 0 && std::chrono::steady_clock::now() < deadline)
        std::this_thread::yield();
    EXPECT_EQ(errorOf({anything}), 1);
}

TEST_F(SessionTest, TheOldestSessionMakesRoom)
{
    gateway.setSessionNumber(2);
    const std::string first = cookie;
    const std::string second = logIn();
    const std::string third = logIn();
    EXPECT_EQ(gateway.sessionNumber(), 2U);
    cookie = first;
    EXPECT_EQ(errorOf({anything}), 1);
    cookie = second;
    EXPECT_EQ(errorOf({anything}), 0);
    cookie = third;
    EXPECT_EQ(errorOf({anything}), 0);
}

TEST_F(SessionTest, ASessionCanBeChecked)
{
    const std::string check = "command webui-0 check_session ";
    const char* const good = "<response version=\"1.0.1\">\n"
                             "<webui-0><key>session_ok</key><value>1</value></webui-0>\n"
                             "<webapp><error>0</error></webapp>\n</response>\n";
    EXPECT_EQ(send({(check + cookie).c_str()}), good);
    EXPECT_EQ(send({(check + cookie.substr(4)).c_str()}), good);
    EXPECT_EQ(send({(check + "SID=1234").c_str()}),
              "<response version=\"1.0.1\">\n"
              "<webui-0><key>session_err</key><value>1</value></webui-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(SessionTest, ASessionCanBeEnded)
{
    const std::string other = logIn();
    EXPECT_EQ(errorOf({("command webui-0 delete_session " + other).c_str()}), 0);
    EXPECT_EQ(errorOf({"command webui-0 delete_session"}), 0);
    EXPECT_EQ(errorOf({anything}), 1);
    cookie = other;
    EXPECT_EQ(errorOf({anything}), 1);
}

TEST_F(SessionTest, ANewPasswordCountsOnceItIsApplied)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction webui-0", "set webui-0 password new",
                       "command cfgmgr-0 commit webui-0", "command cfgmgr-0 save",
                       "command cfgmgr-0 end_transaction webui-0"}),
              0);
    EXPECT_NE(logIn("user=admin&password=admin"), "");
    ASSERT_EQ(errorOf({"command sysmgr-0 apply_user_info"}), 0);
    EXPECT_EQ(logIn("user=admin&password=admin"), "");
    EXPECT_NE(logIn("user=admin&password=new"), "");
    EXPECT_EQ(errorOf({anything}), 0);
}

} // namespace quorvel::simulator::tests
