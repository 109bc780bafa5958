#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

namespace
{

struct Case {
    const char* name;
    const char* arguments;
    int status;
    const char* output;
    const char* errors;
};

class QuorvelctlCommand : public QuorvelctlTest, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(QuorvelctlCommand, PrintsAndExitsAsExpected)
{
    const Outcome result = run(GetParam().arguments);
    EXPECT_EQ(result.output, GetParam().output);
    EXPECT_THAT(result.errors, HasSubstr(GetParam().errors));
    EXPECT_EQ(result.status, GetParam().status) << result.errors;
}

const Case cases[] = {
    {"InfoOfTheNewerGateway", "info", 0,
     "Model:           QV-4400X Home\n"
     "Serial number:   QV44X1720001903\n"
     "Firmware:        3.2.0-r7\n"
     "Ethernet MAC:    02:00:5E:10:01:01\n"
     "DSL MAC:         02:00:5E:10:01:02\n"
     "Wireless MAC:    02:00:5E:10:01:03\n"
     "Router mode:     router\n"
     "Default gateway: wan-1\n"
     "Functions:       general, adsl, ethernet, wan, wireless, voip, 3g, usbhost, pptp, l2tp, "
     "warranty\n",
     ""},
    {"Features", "features", 0,
     "Dialect:          1.0.1\n"
     "General settings: 1\n"
     "DSL:              1\n"
     "Ethernet WAN:     1\n"
     "WAN objects:      2\n"
     "Wireless:         1\n"
     "Telephony:        2\n"
     "3G modem:         1\n"
     "USB host:         1\n"
     "PPTP tunnels:     1\n"
     "L2TP tunnels:     1\n"
     "Warranty record:  1\n",
     ""},
    {"Clients", "clients", 0,
     "MAC                IP          NAME     ADDRESS IS\n"
     "02:00:5E:20:01:11  192.0.2.20  printer  reserved\n"
     "02-00-5e-20-01-12  192.0.2.21  nas      reserved\n"
     "02:00:5E:20:01:21  192.0.2.33  laptop   leased\n"
     "02:00:5E:20:01:22  192.0.2.34  phone    leased\n"
     "02:00:5E:20:01:23  192.0.2.35           leased\n",
     ""},
    {"SessionHidesTheCookie", "session", 0,
     "Session: ********\n"
     "Valid:   yes\n",
     ""},
    {"WarrantyAsJson", "warranty show --json", 0,
     "{\n"
     "    \"email\": \"\",\n"
     "    \"name\": \"\",\n"
     "    \"phone\": \"\",\n"
     "    \"timestamp\": \"\",\n"
     "    \"token\": \"\",\n"
     "    \"usertoken\": \"\"\n"
     "}\n",
     ""},
    {"OptionsMayStandInFront", "--json warranty set --name Ada", 0,
     "{\n"
     "    \"done\": \"The warranty record is stored.\"\n"
     "}\n",
     ""},
    {"NoCommandIsWrongUsage", "", 2, "",
     "quorvelctl: what to do? quorvelctl --help lists the commands\n"},
    {"AnUnknownCommandIsWrongUsage", "dance", 2, "", "dance"},
    {"AnUnknownOptionIsWrongUsage", "info --loud", 2, "", "--loud"},
    {"AGroupAloneIsWrongUsage", "password", 2, "", "A subcommand is required"},
    {"AnUnknownLogLevelIsWrongUsage", "info --log-level loud", 2, "", "loud"},
    {"AWarrantyWriteWithoutTextIsWrongUsage", "warranty set", 2, "",
     "quorvelctl: name at least one text of the record\n"},
    {"APasswordFileThatIsNoneIsWrongUsage", "info --password-file /nonexistent", 2, "",
     "quorvelctl: can't read /nonexistent: No such file or directory\n"},
    {"ACandidateIsNeeded", "password check", 2, "",
     "quorvelctl: no password to check: give --candidate-file, --candidate-stdin or the "
     "environment variable QUORVELCTL_CANDIDATE\n"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlCommand, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

class Quorvelctl : public QuorvelctlTest
{
};

TEST_F(Quorvelctl, ListsTheManagers)
{
    const Outcome result = run("managers");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.substr(0, 8), "MANAGER\n");
    EXPECT_THAT(result.output, HasSubstr("\nusbhost_mngr\n"));
}

TEST_F(Quorvelctl, ProbesWithoutALogin)
{
    EXPECT_EQ(run("probe").output, "Address: " + simulator.address() + "\nAnswers: yes\n");
    EXPECT_EQ(simulator.sessionNumber(), 0u);
}

TEST_F(Quorvelctl, WritesTheWarrantyTextsThatAreNamedAndKeepsTheOthers)
{
    simulator.setValue("warranty-0", "phone", "555-0100");
    EXPECT_EQ(run("warranty set --name Ada --email ada@example.net").status, 0);
    EXPECT_EQ(run("warranty show").output, "Name:       Ada\n"
                                           "Mail:       ada@example.net\n"
                                           "Phone:      555-0100\n"
                                           "Token:\n"
                                           "User token:\n"
                                           "Time stamp:\n");
    EXPECT_EQ(simulator.storedValue("warranty-0", "name"), "Ada");
    EXPECT_EQ(simulator.storedValue("warranty-0", "phone"), "555-0100");
}

TEST_F(Quorvelctl, TellsARefusedLogin)
{
    const Outcome result =
        runQuorvelctl("info --user guest", {simulator.address(), "admin", {}, {}});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "quorvelctl: " + simulator.address() + " refused the login of user 'guest'\n");
}

TEST_F(Quorvelctl, TellsAGatewayThatIsNotThere)
{
    simulator.stop();
    const Outcome result = run("info");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors, "quorvelctl: " + simulator.address() + " can't be reached\n");
    EXPECT_EQ(run("probe").status, 4);
}

TEST_F(Quorvelctl, TellsAnAnswerThatIsNoGatewaysAnswer)
{
    simulator.setFault(*quorvel::simulator::Fault::fromText("html on=webapp"));
    const Outcome result = run("info");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "quorvelctl: " + simulator.address() + " answers, but not as a gateway does\n");
}

TEST_F(Quorvelctl, TellsTheGatewaysErrorCode)
{
    simulator.setFault(*quorvel::simulator::Fault::fromText("error:7 key=name"));
    const Outcome result = run("warranty show");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "quorvelctl: can't read the warranty record: the gateway reports error 7\n");
}

TEST_F(Quorvelctl, TellsARequestThatGotLost)
{
    simulator.setFault(*quorvel::simulator::Fault::fromText("close key=name"));
    const Outcome result = run("warranty show");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors,
              "quorvelctl: can't read the warranty record: the request failed on the way\n");
}

TEST_F(Quorvelctl, ShowsHelpAndVersionWithoutAGateway)
{
    EXPECT_EQ(runQuorvelctl("--version", {}).output, "1.0.0\n");
    const Outcome help = runQuorvelctl("--help", {});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("factory-reset"));
}

TEST_F(Quorvelctl, NeverLetsControlCharactersReachTheTerminal)
{
    simulator.setValue("warranty-0", "name", "a\x1b[2Jb");
    EXPECT_THAT(run("warranty show").output, testing::Not(HasSubstr("\x1b")));
}

} // namespace quorvelctl::test
