#include "QuorvelctlRun.h"

#include <QTemporaryFile>
#include <gmock/gmock.h>
#include <optional>

namespace quorvelctl::test
{

using namespace quorvel::simulator;
using testing::HasSubstr;
using testing::Not;

class QuorvelctlDump : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;

    /// Runs quorvelctl against a gateway that replays the dump.
    static Outcome runOnReplay(const std::string& dump, const std::string& arguments)
    {
        QTemporaryFile file;
        EXPECT_TRUE(file.open());
        file.write(dump.c_str());
        file.close();
        std::string error;
        const auto scenario = Scenario::fromDump(file.fileName().toStdString(), &error);
        EXPECT_TRUE(scenario) << error;
        GatewaySimulator replay(scenario.value_or(Scenario()));
        EXPECT_TRUE(replay.start(&error)) << error;
        Surroundings surroundings;
        surroundings.address = replay.address();
        return runQuorvelctl(arguments, surroundings);
    }
};

class QuorvelctlDumpOf : public QuorvelctlDump, public testing::WithParamInterface<const char*>
{
protected:
    QuorvelctlDumpOf() : QuorvelctlDump(GetParam()) {}
};

TEST_P(QuorvelctlDumpOf, IsReplayedToTheLastByte)
{
    for (const std::string command : {"dump", "dump --show-secrets"}) {
        const Outcome dump = run(command);
        EXPECT_EQ(dump.errors, "");
        EXPECT_EQ(dump.status, 0);
        EXPECT_THAT(dump.output, HasSubstr("    \"errors\": [\n    ],\n    \"gateway\": {\n"));
        EXPECT_EQ(runOnReplay(dump.output, command).output, dump.output);
    }
}

TEST_P(QuorvelctlDumpOf, AnswersOtherCommandsAsTheGatewayDid)
{
    const Outcome dump = run("dump --show-secrets");
    for (const std::string command :
         {"info", "hints", "clients", "wan list", "wifi show --show-secrets",
          "phone accounts --show-secrets"}) {
        const Outcome there = run(command);
        EXPECT_NE(there.output, "") << command;
        const Outcome replayed = runOnReplay(dump.output, command);
        EXPECT_EQ(replayed.output, there.output) << command;
        EXPECT_EQ(replayed.status, there.status) << command;
    }
}

TEST_P(QuorvelctlDumpOf, HoldsNoSecretUnlessAskedFor)
{
    const char* const secrets[] = {"dsl-secret", "radio-secret", "sip-secret"};
    const std::string dump = run("dump").output;
    for (const char* secret : secrets)
        EXPECT_THAT(dump, Not(HasSubstr(secret)));
    EXPECT_THAT(dump, HasSubstr("\"wpaPassword\": \"********\""));
    EXPECT_THAT(run("dump --show-secrets").output, HasSubstr("radio-secret"));
}

INSTANTIATE_TEST_SUITE_P(EachGateway, QuorvelctlDumpOf,
                         testing::Values("classic", "modern", "dual"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(QuorvelctlDump, HoldsWhatTheCommandsReadAndWhatTheGatewaySaid)
{
    const std::string dump = run("dump").output;
    for (const char* part :
         {"            \"model\": \"QV-4400X Home\",\n", "            \"inUse\": \"wan-1\",\n",
          "            \"rebootDurationMs\": 90000,\n", "        \"warranty\": {\n",
          "            \"wan-2\": {\n", "                \"radio\": \"wireless-0\",\n",
          "        \"description\": \"A gateway that was dumped\",\n"
          "        \"dialect\": \"1.0.1\",\n",
          "<query inst=\\\"sysmgr-0\\\">\\n  <key>fwversion</key>\\n", "<value>3.2.0-r7</value>"})
        EXPECT_THAT(dump, HasSubstr(part));
}

TEST_F(QuorvelctlDump, TellsAFailureAndGoesOn)
{
    spoil("error:7 key=email");
    const Outcome dump = run("dump");
    EXPECT_EQ(dump.status, 1);
    EXPECT_EQ(dump.errors, "quorvelctl: not everything could be read: 1 of the readings failed, "
                           "see \"errors\"\n");
    EXPECT_THAT(
        dump.output,
        HasSubstr("    \"errors\": [\n"
                  "        {\n"
                  "            \"command\": \"warranty show\",\n"
                  "            \"message\": \"can't read the warranty record: the gateway reports "
                  "error 7\"\n"
                  "        }\n"
                  "    ],\n"));
    EXPECT_THAT(dump.output, Not(HasSubstr("        \"warranty\": {\n")));
    EXPECT_THAT(dump.output, HasSubstr("        \"usbSharing\": {\n"));
    EXPECT_EQ(runOnReplay(dump.output, "dump").output, dump.output);
}

TEST_F(QuorvelctlDump, ReplaysARequestWithoutAReply)
{
    spoil("close key=email");
    const Outcome dump = run("dump");
    EXPECT_EQ(dump.status, 4);
    EXPECT_THAT(dump.output, HasSubstr("            \"message\": \"can't read the warranty record: "
                                       "the request failed on the way\"\n"));
    EXPECT_EQ(runOnReplay(dump.output, "dump").output, dump.output);
}

TEST_F(QuorvelctlDump, ReplaysAReplyThatIsNone)
{
    spoil("html key=email");
    const Outcome dump = run("dump");
    EXPECT_EQ(dump.status, 1);
    EXPECT_THAT(dump.output, HasSubstr("<p>Please log in.<br></body>"));
    EXPECT_EQ(runOnReplay(dump.output, "dump").output, dump.output);
}

TEST_F(QuorvelctlDump, LeavesOutThatASessionHadToBeRenewed)
{
    const std::string undisturbed = run("dump").output;
    spoil("session-expired 1 key=fwversion");
    EXPECT_EQ(run("dump").output, undisturbed);
}

TEST_F(QuorvelctlDump, OfAGatewayThatIsNotThereIsNone)
{
    expectComplaint("dump --user eve", 3, simulator.address() + " refused the login of user 'eve'");
    simulator.stop();
    expectComplaint("dump", 4, simulator.address() + " can't be reached");
}

TEST_F(QuorvelctlDump, IsNotWhatAnyFileHolds)
{
    std::string error;
    EXPECT_FALSE(Scenario::fromDump("missing.json", &error));
    EXPECT_EQ(error, "missing.json: No such file or directory");
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(R"({"managers": []})");
    file.close();
    EXPECT_FALSE(Scenario::fromDump(file.fileName().toStdString(), &error));
    EXPECT_EQ(error, file.fileName().toStdString() + ": is no dump of a gateway");
}

} // namespace quorvelctl::test
