#include "QuorvelctlRun.h"

#include <QTemporaryFile>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

namespace
{

const std::string line0 = "VoiceService.VoiceProfile.Line[0].";
const std::string line1 = "VoiceService.VoiceProfile.Line[1].";

} // namespace

class QuorvelctlPhone : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;

    std::string stored(const std::string& key) const
    {
        return simulator.storedValue("voice-0", key);
    }

    Outcome runWith(const std::map<std::string, std::string>& variables,
                    const std::string& arguments) const
    {
        return runQuorvelctl(arguments, {simulator.address(), "admin", {}, variables});
    }
};

TEST_F(QuorvelctlPhone, ShowsTheLinesWithTheirAccountsAndGains)
{
    const Outcome result = run("phone accounts --line-range 0:12 --port-range -10:10");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Telephony is on: yes\n"
                             "\n"
                             "Line:          0\n"
                             "Kind:          line\n"
                             "Enabled:       yes\n"
                             "State:         1\n"
                             "Name:          line-a1903\n"
                             "Number:        5550142\n"
                             "SIP user:      5550142\n"
                             "Domain:        sip.example.net\n"
                             "Proxy server:  proxy.example.net\n"
                             "Login:         line-a1903\n"
                             "SIP password:  ********\n"
                             "Transmit gain: 42\n"
                             "Receive gain:  67\n"
                             "\n"
                             "Line:          1\n"
                             "Kind:          line\n"
                             "Enabled:       no\n"
                             "State:         0\n"
                             "Name:          line-b1903\n"
                             "Number:        5550143\n"
                             "SIP user:      5550143\n"
                             "Domain:\n"
                             "Proxy server:  proxy.example.net\n"
                             "Login:         line-b1903\n"
                             "SIP password:  ********\n"
                             "Transmit gain: 0\n"
                             "Receive gain:  100\n"
                             "\n"
                             "Line:          2\n"
                             "Kind:          analogue port\n"
                             "Transmit gain: 35\n"
                             "Receive gain:  20\n");
}

TEST_F(QuorvelctlPhone, ShowsAccountsAsJsonWithPasswordsOnDemand)
{
    simulator.setStatus("voice-0", "AllLineList.Line1", "9");
    const Outcome result = run("phone accounts --json --show-secrets");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n"
                             "    \"accounts\": [\n"
                             "        {\n"
                             "            \"domain\": \"sip.example.net\",\n"
                             "            \"enabled\": true,\n"
                             "            \"kind\": \"line\",\n"
                             "            \"line\": \"0\",\n"
                             "            \"login\": \"line-a1903\",\n"
                             "            \"name\": \"line-a1903\",\n"
                             "            \"number\": \"5550142\",\n"
                             "            \"proxy\": \"proxy.example.net\",\n"
                             "            \"receiveGain\": \"\",\n"
                             "            \"sipPassword\": \"sip-secret-0\",\n"
                             "            \"sipUser\": \"5550142\",\n"
                             "            \"state\": 1,\n"
                             "            \"transmitGain\": \"\"\n"
                             "        },\n"
                             "        {\n"
                             "            \"kind\": \"analogue port\",\n"
                             "            \"line\": \"2\",\n"
                             "            \"receiveGain\": \"\",\n"
                             "            \"transmitGain\": \"\"\n"
                             "        }\n"
                             "    ],\n"
                             "    \"enabled\": true\n"
                             "}\n");
    EXPECT_THAT(run("phone accounts --json").output, HasSubstr("\"sipPassword\": \"********\""));
}

TEST_F(QuorvelctlPhone, ChangesWhatIsNamedOfAnAccountAndKeepsTheRest)
{
    const Outcome result = run("phone set 0 --login ada");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The account of line 0 is stored.\n");
    EXPECT_EQ(stored(line0 + "SIP.AuthUserName"), "ada");
    EXPECT_EQ(stored(line0 + "SIP.AuthPassword"), "sip-secret-0");
    EXPECT_EQ(stored(line0 + "SIP.URI"), "SIP:5550142@sip.example.net");
    EXPECT_EQ(stored(line0 + "Enable"), "1");
}

TEST_F(QuorvelctlPhone, ChangesAWholeAccount)
{
    const Outcome result = run("phone set 1 --json --enable --login ada --sip-user 5550177 "
                               "--domain example.org --sip-password-stdin",
                               "engine & more\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n    \"done\": \"The account of line 1 is stored.\"\n}\n");
    EXPECT_EQ(stored(line1 + "SIP.AuthUserName"), "ada");
    EXPECT_EQ(stored(line1 + "SIP.AuthPassword"), "engine & more");
    EXPECT_EQ(stored(line1 + "SIP.URI"), "SIP:5550177@example.org");
    EXPECT_EQ(stored(line1 + "Enable"), "1");
}

TEST_F(QuorvelctlPhone, SwitchesALineOff)
{
    EXPECT_EQ(run("phone set 0 --disable").status, 0);
    EXPECT_EQ(stored(line0 + "Enable"), "0");
    EXPECT_EQ(stored(line0 + "SIP.AuthUserName"), "line-a1903");
}

TEST_F(QuorvelctlPhone, TakesTheSipPasswordFromAFileOrTheEnvironment)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("from-a-file\n");
    file.flush();
    EXPECT_EQ(run("phone set 0 --sip-password-file " + file.fileName().toStdString()).status, 0);
    EXPECT_EQ(stored(line0 + "SIP.AuthPassword"), "from-a-file");
    EXPECT_EQ(runWith({{"QUORVELCTL_SIP_PASSWORD", "from-the-environment"}}, "phone set 0").status,
              0);
    EXPECT_EQ(stored(line0 + "SIP.AuthPassword"), "from-the-environment");
}

// An empty one that is written back would end a password that the gateway keeps to itself.
TEST_F(QuorvelctlPhone, AsksForASipPasswordThatTheGatewayDoesNotTell)
{
    simulator.setValue("voice-0", line0 + "SIP.AuthPassword", "");
    const Outcome result = run("phone set 0 --login ada");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "quorvelctl: the gateway doesn't tell the SIP password of line 0: "
                             "give it anew, or an empty one\n");
    EXPECT_EQ(stored(line0 + "SIP.AuthUserName"), "line-a1903");
    EXPECT_EQ(run("phone set 0 --login ada --sip-password-stdin", "\n").status, 0);
    EXPECT_EQ(stored(line0 + "SIP.AuthUserName"), "ada");
    EXPECT_EQ(stored(line0 + "SIP.AuthPassword"), "");
}

TEST_F(QuorvelctlPhone, NeverWritesAnAddressWithoutADomain)
{
    simulator.setValue("voice-0", line1 + "SIP.Server[0].ProxyServer", "");
    const Outcome result = run("phone set 1 --enable");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "quorvelctl: line 1 has neither domain nor proxy server: give --domain\n");
    EXPECT_EQ(stored(line1 + "Enable"), "0");
    EXPECT_EQ(run("phone set 1 --enable --domain example.org").status, 0);
    EXPECT_EQ(stored(line1 + "SIP.URI"), "SIP:5550143@example.org");
}

TEST_F(QuorvelctlPhone, NeverWritesAnAddressWithoutAUser)
{
    simulator.setValue("voice-0", line0 + "SIP.URI", "");
    const Outcome result = run("phone set 0 --login ada");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "quorvelctl: line 0 has no SIP user: give --sip-user\n");
    EXPECT_EQ(stored(line0 + "SIP.AuthUserName"), "line-a1903");
    EXPECT_EQ(run("phone set 0 --login ada --sip-user 5550177").status, 0);
    EXPECT_EQ(stored(line0 + "SIP.URI"), "SIP:5550177@sip.example.net");
}

TEST_F(QuorvelctlPhone, ShowsTheGains)
{
    const Outcome result = runWith(
        {{"QUORVELCTL_LINE_RANGE", "0:12"}, {"QUORVELCTL_PORT_RANGE", "-10:10"}}, "phone gains");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "LINE  KIND           TRANSMIT  RECEIVE\n"
                             "0     line           42        67\n"
                             "1     line           0         100\n"
                             "2     analogue port  35        20\n");
}

TEST_F(QuorvelctlPhone, ShowsTheGainsOfOneLineAsJson)
{
    EXPECT_EQ(run("phone gains 0 --line-range 0:12 --json").output,
              "[\n"
              "    {\n"
              "        \"kind\": \"line\",\n"
              "        \"line\": \"0\",\n"
              "        \"receiveGain\": \"67\",\n"
              "        \"transmitGain\": \"42\"\n"
              "    }\n"
              "]\n");
}

TEST_F(QuorvelctlPhone, TakesGainRangesFromTheConfigurationFileToo)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("OSTRA_CONFIG_DEFAULT_FXS_MINGAIN=0\nOSTRA_CONFIG_DEFAULT_FXS_MAXGAIN=24\n");
    file.flush();
    const std::map<std::string, std::string> variables{
        {"OSTRA_CONFIG_FILE", file.fileName().toStdString()}};
    EXPECT_EQ(runWith(variables, "phone gains").output, "LINE  KIND           TRANSMIT  RECEIVE\n"
                                                        "0     line           21        34\n"
                                                        "1     line           0         50\n"
                                                        "2     analogue port\n");
    EXPECT_THAT(runWith(variables, "phone gains --line-range 0:12").output,
                HasSubstr("\n0     line           42        67\n"));
}

TEST_F(QuorvelctlPhone, ChangesTheGainsThatAreNamed)
{
    const Outcome result = run("phone gains 1 --transmit 50 --line-range -12:12");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The gains of line 1 are stored.\n");
    EXPECT_EQ(stored(line1 + "VoiceProcessing.TransmitGain"), "0");
    EXPECT_EQ(stored(line1 + "VoiceProcessing.ReceiveGain"), "12");
    EXPECT_EQ(run("phone gains 1 --transmit 100 --receive 1 --line-range -12:12").status, 0);
    EXPECT_EQ(stored(line1 + "VoiceProcessing.TransmitGain"), "12");
    EXPECT_EQ(stored(line1 + "VoiceProcessing.ReceiveGain"), "-11");
    EXPECT_EQ(stored(line0 + "VoiceProcessing.TransmitGain"), "5");
}

TEST_F(QuorvelctlPhone, TellsThatTelephonyIsOff)
{
    simulator.setValue("voice-0", "Enable", "0");
    EXPECT_THAT(run("phone accounts").output, HasSubstr("Telephony is on: no\n"));
}

TEST_F(QuorvelctlPhone, NeverLetsControlCharactersReachTheTerminal)
{
    simulator.setValue("voice-0", line0 + "SIP.AuthUserName",
                       "a\xc2\x9b"
                       "2Jz");
    EXPECT_THAT(run("phone accounts").output, HasSubstr("Login:         a\xef\xbf\xbd"
                                                        "2Jz\n"));
}

class QuorvelctlPhoneOfTheOlderKind : public QuorvelctlPhone
{
protected:
    QuorvelctlPhoneOfTheOlderKind() : QuorvelctlPhone("classic") {}
};

TEST_F(QuorvelctlPhoneOfTheOlderKind, TellsOnlyWhetherItIsOn)
{
    const Outcome result = run("phone accounts");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Telephony is on: yes\nThis gateway doesn't tell of its accounts.\n");
    EXPECT_EQ(run("phone accounts --json").output,
              "{\n    \"accounts\": [\n    ],\n    \"enabled\": true\n}\n");
}

// What the library sends it of an account is empty, and of gains nothing.
TEST_F(QuorvelctlPhoneOfTheOlderKind, IsNotWrittenTo)
{
    const std::string refusal = "quorvelctl: the telephony of " + simulator.address() +
                                " is of the older kind: its accounts, gains and calls are out of "
                                "reach\n";
    for (const char* command :
         {"phone set 0 --login ada", "phone gains --line-range 0:12",
          "phone gains 0 --transmit 5 --line-range 0:12", "phone history --line 0"}) {
        const Outcome result = run(command);
        EXPECT_EQ(result.status, 1) << command;
        EXPECT_EQ(result.output, "") << command;
        EXPECT_EQ(result.errors, refusal) << command;
    }
    EXPECT_EQ(stored(line0 + "SIP.AuthUserName"), "line-a0417");
}

} // namespace quorvelctl::test
