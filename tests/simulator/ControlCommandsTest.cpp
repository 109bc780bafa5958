#include "Program.h"
#include "SimulatedGateway.h"

#include <memory>

namespace quorvel::simulator::tests
{

using testing::HasSubstr;
using testing::StartsWith;

class ControlCommandsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const std::string line = program.line();
        const std::string http = "http://127.0.0.1:";
        const std::string port = ", control port ";
        gateway = std::stoi(line.substr(line.find(http) + http.size()));
        control =
            std::make_unique<RawClient>(std::stoi(line.substr(line.find(port) + port.size())));
    }

    std::string say(const std::string& line)
    {
        control->forget();
        control->send(line + "\n");
        control->readUntil("\n");
        return control->received();
    }

    std::string logIn() const
    {
        RawClient client(gateway);
        client.send(post("/cgi-bin/login", "user=admin&password=admin"));
        client.readReply();
        const std::string header = client.header("Set-Cookie");
        return header.substr(0, header.find(';'));
    }

    int errorWith(const std::string& cookie) const
    {
        RawClient client(gateway);
        client.send(post("/cgi-bin/webapp", xml("1.0.1", {"get conn-0 hostname"}), cookie));
        client.readReply();
        return errorIn(client.body());
    }

    Program program{{"--control", "0"}};
    int gateway = 0;
    std::unique_ptr<RawClient> control;
};

TEST_F(ControlCommandsTest, ValuesAreReadAndWritten)
{
    EXPECT_EQ(say("get conn-0 hostname"), "ok gateway\n");
    EXPECT_EQ(say("set conn-0 hostname  two  blanks"), "ok\n");
    EXPECT_EQ(say("get conn-0 hostname"), "ok two  blanks\n");
    EXPECT_EQ(say("configured conn-0 hostname"), "ok two  blanks\n");
    EXPECT_EQ(say("stored conn-0 hostname"), "ok two  blanks\n");
    EXPECT_EQ(say("set conn-0 hostname"), "ok\n");
    EXPECT_EQ(say("get conn-0 hostname"), "ok\n");
    EXPECT_EQ(say("status eth-0 linkstate 0"), "ok\n");
    EXPECT_EQ(say("get eth-0 linkstate"), "ok 0\n");
}

TEST_F(ControlCommandsTest, ARadioRestartIsAFault)
{
    EXPECT_EQ(say("fault radio-restart 1"), "ok\n");
    const std::string cookie = logIn();
    RawClient client(gateway);
    client.send(post("/cgi-bin/webapp", xml("1.0.1", {"command wireless-0 apply"}), cookie));
    client.readReply();
    EXPECT_EQ(client.received(), "");
    EXPECT_EQ(client.ending(), Ending::Closed);
    EXPECT_EQ(errorWith(cookie), 0);
}

TEST_F(ControlCommandsTest, FaultsComeAndGo)
{
    EXPECT_EQ(say("reachable"), "ok 1\n");
    EXPECT_EQ(say("fault refuse"), "ok\n");
    EXPECT_EQ(say("reachable"), "ok 0\n");
    EXPECT_EQ(RawClient(gateway).ending(), Ending::Refused);
    EXPECT_EQ(say("clear"), "ok\n");
    EXPECT_EQ(say("reachable"), "ok 1\n");
    const std::string cookie = logIn();
    EXPECT_EQ(say("fault error:5 1"), "ok\n");
    EXPECT_EQ(say("add-fault error:6 1"), "ok\n");
    EXPECT_EQ(errorWith(cookie), 5);
    EXPECT_EQ(errorWith(cookie), 6);
    EXPECT_EQ(errorWith(cookie), 0);
}

TEST_F(ControlCommandsTest, SessionsAreLimited)
{
    std::string cookie = logIn();
    EXPECT_EQ(say("expire-sessions"), "ok\n");
    EXPECT_EQ(errorWith(cookie), 1);
    EXPECT_EQ(say("session-lifetime 1"), "ok\n");
    cookie = logIn();
    EXPECT_EQ(errorWith(cookie), 0);
    EXPECT_EQ(errorWith(cookie), 1);
    EXPECT_EQ(say("sessions 1"), "ok\n");
    cookie = logIn();
    logIn();
    EXPECT_EQ(errorWith(cookie), 1);
    EXPECT_EQ(say("session-idle 3600000"), "ok\n");
    EXPECT_EQ(errorWith(logIn()), 0);
}

TEST_F(ControlCommandsTest, TheGatewayRestarts)
{
    EXPECT_EQ(say("reboot-time 3600000"), "ok\n");
    EXPECT_EQ(say("restart"), "ok\n");
    EXPECT_EQ(say("reachable"), "ok 0\n");
    EXPECT_EQ(RawClient(gateway).ending(), Ending::Refused);
}

TEST_F(ControlCommandsTest, WhatHappenedIsToldAndForgotten)
{
    logIn();
    EXPECT_EQ(say("requests"), "ok 1\n");
    EXPECT_EQ(say("connections"), "ok 1\n");
    const std::string text = say("transcript");
    EXPECT_THAT(text, StartsWith("ok "));
    control->readUntil("You are logged in.");
    EXPECT_THAT(control->received(), HasSubstr("\n==== 1: POST /cgi-bin/login\n"));
    EXPECT_THAT(control->received(), HasSubstr("user=admin&password=********\n"));
    control->readUntil("</html>\n\n");
    const std::string whole = control->received();
    EXPECT_EQ(std::count(whole.begin(), whole.end(), '\n') - 1, std::stoi(whole.substr(3)));
    EXPECT_EQ(say("forget"), "ok\n");
    EXPECT_EQ(say("transcript"), "ok 0\n");
}

TEST_F(ControlCommandsTest, WhatIsNoCommandIsAnError)
{
    EXPECT_EQ(say("explode"), "error no such command; try help\n");
    EXPECT_EQ(say(""), "error no such command; try help\n");
    EXPECT_EQ(say("get conn-0"), "error usage: get INSTANCE KEY\n");
    EXPECT_EQ(say("set conn-0"), "error usage: set INSTANCE KEY VALUE\n");
    EXPECT_EQ(say("clear all"), "error usage: clear\n");
    EXPECT_EQ(say("fault"), "error usage: fault FAULT\n");
    EXPECT_EQ(say("fault explode"), "error no fault is called 'explode'\n");
    EXPECT_EQ(say("sessions many"), "error 'many' is no number from 0\n");
    EXPECT_EQ(say("sessions -1"), "error '-1' is no number from 0\n");
    EXPECT_THAT(say("help"), HasSubstr("; expire-sessions; fault FAULT; "));
    EXPECT_EQ(say("reachable\r"), "ok 1\n");
}

TEST_F(ControlCommandsTest, AClientThatGoesLeavesTheOthers)
{
    control->send("get conn-0");
    control->endSending();
    control->readToEnd();
    EXPECT_EQ(control->ending(), Ending::Closed);
    EXPECT_EQ(program.end(15), 0);
}

} // namespace quorvel::simulator::tests
