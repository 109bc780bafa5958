#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

std::string inLine(int line, const std::string& name)
{
    return "VoiceService.VoiceProfile.Line[" + std::to_string(line) + "]." + name;
}

std::string entry(const std::string& key, const std::string& value)
{
    return "<voice-0><key>" + key + "</key><value>" + value + "</value></voice-0>\n";
}

std::string reply(const std::string& entries)
{
    return "<response version=\"1.0.1\">\n" + entries +
           "<webapp><error>0</error></webapp>\n</response>\n";
}

} // namespace

class VoiceTest : public SimulatedGateway
{
protected:
    using SimulatedGateway::SimulatedGateway;

    // The account of line 1 and the gains of line 0 and of the analogue port, in one go.
    int changeLines()
    {
        return errorOf({"command cfgmgr-0 begin_transaction voice-0",
                        "set voice-0 VoiceService.VoiceProfile.Line[1].SIP.AuthUserName ada",
                        "set voice-0 VoiceService.VoiceProfile.Line[1].SIP.AuthPassword engine",
                        "set voice-0 VoiceService.VoiceProfile.Line[1].SIP.URI "
                        "SIP:5550177@example.org",
                        "set voice-0 VoiceService.VoiceProfile.Line[1].Enable 1",
                        "set voice-0 "
                        "VoiceService.VoiceProfile.Line[0].VoiceProcessing.TransmitGain 11",
                        "set voice-0 "
                        "VoiceService.VoiceProfile.Line[2].VoiceProcessing.ReceiveGain -2",
                        "command cfgmgr-0 commit voice-0",
                        "command cfgmgr-0 end_transaction voice-0", "command voice-0 apply",
                        "command cfgmgr-0 save"});
    }

    void expectChangedLines()
    {
        EXPECT_EQ(get("voice-0", inLine(1, "SIP.AuthUserName")), "ada");
        EXPECT_EQ(get("voice-0", inLine(1, "SIP.AuthPassword")), "engine");
        EXPECT_EQ(get("voice-0", inLine(1, "SIP.URI")), "SIP:5550177@example.org");
        EXPECT_EQ(get("voice-0", inLine(1, "Enable")), "1");
        EXPECT_EQ(get("voice-0", inLine(0, "VoiceProcessing.TransmitGain")), "11");
        EXPECT_EQ(get("voice-0", inLine(0, "VoiceProcessing.ReceiveGain")), "8");
        EXPECT_EQ(get("voice-0", inLine(2, "VoiceProcessing.ReceiveGain")), "-2");
        EXPECT_THAT(send({"query voice-0 status"}),
                    HasSubstr(entry("Voip_Status_1", "1") + entry("User_Name_1", "ada") +
                              entry("Phone_Number_1", "5550177")));
    }
};

class ClassicVoiceTest : public VoiceTest
{
protected:
    ClassicVoiceTest() : VoiceTest("classic") {}
};

TEST_F(VoiceTest, ListsTwoLinesAndTheAnaloguePortByTheirKinds)
{
    EXPECT_EQ(send({"command cfgmgr-0 begin_transaction voice-0", "get voice-0 AllLineList",
                    "command cfgmgr-0 end_transaction voice-0"}),
              reply(entry("FXO0", "2") + entry("Line0", "0") + entry("Line1", "1")));
}

TEST_F(VoiceTest, TellsTheStateOfTheServiceAndOfEachLine)
{
    EXPECT_EQ(send({"query voice-0 status"}),
              reply(entry("Enable", "1") + entry("Voip_Status_0", "1") +
                    entry("User_Name_0", "line-a1903") + entry("Phone_Number_0", "5550142") +
                    entry("Voip_Status_1", "0") + entry("User_Name_1", "line-b1903") +
                    entry("Phone_Number_1", "5550143")));
}

TEST_F(VoiceTest, HasAnAccountForEachSipLine)
{
    EXPECT_EQ(get("voice-0", "DslPhoneNumber"), "5550100");
    EXPECT_EQ(get("voice-0", inLine(0, "SIP.AuthUserName")), "line-a1903");
    EXPECT_EQ(get("voice-0", inLine(0, "SIP.AuthPassword")), "sip-secret-0");
    EXPECT_EQ(get("voice-0", inLine(0, "SIP.URI")), "SIP:5550142@sip.example.net");
    EXPECT_EQ(get("voice-0", inLine(0, "SIP.Server[0].ProxyServer")), "proxy.example.net");
    EXPECT_EQ(get("voice-0", inLine(0, "SIP.UserAgentDomain")), "sip.example.net");
    EXPECT_EQ(get("voice-0", inLine(0, "Enable")), "1");
    EXPECT_EQ(get("voice-0", inLine(1, "SIP.AuthUserName")), "line-b1903");
    EXPECT_EQ(get("voice-0", inLine(1, "Enable")), "0");
    EXPECT_THAT(send({"get voice-0 VoiceService.VoiceProfile.Line[2].SIP"}),
                Not(HasSubstr("<key>")));
}

TEST_F(VoiceTest, HasGainsForEachPort)
{
    const char* const gains[][2] = {{"5", "8"}, {"0", "12"}, {"-3", "-6"}};
    for (int line = 0; line < 3; ++line) {
        EXPECT_EQ(get("voice-0", inLine(line, "VoiceProcessing.TransmitGain")), gains[line][0]);
        EXPECT_EQ(get("voice-0", inLine(line, "VoiceProcessing.ReceiveGain")), gains[line][1]);
    }
}

TEST_F(VoiceTest, KeepsAccountsAndGainsAlsoOverARestart)
{
    ASSERT_EQ(changeLines(), 0);
    expectChangedLines();
    gateway.restart();
    ASSERT_TRUE(gateway.waitUntilReachable(true, std::chrono::seconds(10)));
    cookie = logIn();
    expectChangedLines();
}

TEST_F(VoiceTest, TheStateOfALineFollowsWhatIsApplied)
{
    ASSERT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction voice-0",
                 "set voice-0 VoiceService.VoiceProfile.Line[0].Enable 0",
                 "set voice-0 VoiceService.VoiceProfile.Line[0].SIP.URI 5550178@example.org",
                 "command cfgmgr-0 commit voice-0", "command cfgmgr-0 end_transaction voice-0"}),
        0);
    EXPECT_THAT(send({"query voice-0 status"}),
                AllOf(HasSubstr(entry("Voip_Status_0", "1")),
                      HasSubstr(entry("Phone_Number_0", "5550142"))));
    ASSERT_EQ(errorOf({"command voice-0 apply"}), 0);
    EXPECT_THAT(send({"query voice-0 status"}),
                AllOf(HasSubstr(entry("Voip_Status_0", "0")),
                      HasSubstr(entry("Phone_Number_0", "5550178"))));
}

TEST_F(VoiceTest, NoLineIsInServiceWithoutTheService)
{
    gateway.setValue("voice-0", "Enable", "0");
    EXPECT_THAT(send({"query voice-0 status"}),
                AllOf(HasSubstr(entry("Enable", "0")), HasSubstr(entry("Voip_Status_0", "0"))));
}

TEST_F(VoiceTest, CountsTheCallsOfALine)
{
    EXPECT_EQ(send({"query voice-0 loglength:0"}), reply(entry("numcallentries:", "45")));
    EXPECT_EQ(send({"query voice-0 loglength:1"}), reply(entry("numcallentries:", "3")));
    EXPECT_EQ(send({"query voice-0 loglength:2"}), reply(entry("numcallentries:", "0")));
}

TEST_F(VoiceTest, ACallHasSevenValues)
{
    EXPECT_EQ(send({"query voice-0 callhistory:2:2:0"}),
              reply(entry("time0", "20240101 182003") + entry("destination0", "5550142") +
                    entry("callerid0", "5550119") + entry("duration0", "0") +
                    entry("direction0", "1") + entry("callType0", "2") + entry("status0", "1")));
}

TEST_F(VoiceTest, EachPageNumbersItsCallsFromZero)
{
    const std::string first = send({"query voice-0 callhistory:0:19:0"});
    EXPECT_THAT(first, AllOf(HasSubstr(entry("time0", "20231231 183042")),
                             HasSubstr("<key>time19<"), Not(HasSubstr("<key>time20<"))));
    const std::string second = send({"query voice-0 callhistory:20:39:0"});
    EXPECT_THAT(second, AllOf(HasSubstr("<key>time0<"), HasSubstr("<key>time19<"),
                              Not(HasSubstr("<key>time20<"))));
    EXPECT_NE(first, second);
    EXPECT_THAT(send({"query voice-0 callhistory:40:45:0"}),
                AllOf(HasSubstr("<key>time0<"), HasSubstr(entry("time4", "20240303 224926")),
                      Not(HasSubstr("<key>time5<"))));
}

TEST_F(VoiceTest, TheLogHoldsCallsOfThreeKindsAndOfEachLine)
{
    const std::string calls = send({"query voice-0 callhistory:0:44:0"});
    for (const char* kind : {"<value>0<", "<value>1<", "<value>2<"})
        EXPECT_THAT(calls, testing::ContainsRegex(std::string("callType[0-9]+</key>") + kind));
    EXPECT_THAT(send({"query voice-0 callhistory:0:19:1"}),
                AllOf(HasSubstr(entry("time0", "20240105 093749")), HasSubstr("<key>time2<"),
                      Not(HasSubstr("<key>time3<"))));
}

TEST_F(VoiceTest, CallsThatThereAreNotHaveNoEntry)
{
    EXPECT_EQ(send({"query voice-0 callhistory:0:0:2", "query voice-0 callhistory:45:64:0",
                    "query voice-0 callhistory:9:3:0", "query voice-0 callhistory:x:19:0",
                    "query voice-0 callhistory:0::0", "query voice-0 callhistory:0:19",
                    "query voice-0 callhistory:0:99999999999:0", "query voice-0 loglength"}),
              reply(""));
}

TEST_F(VoiceTest, TranscriptsHideSipPasswords)
{
    ASSERT_EQ(changeLines(), 0);
    send({"get voice-0 VoiceService.VoiceProfile.Line[0].SIP"});
    const std::string transcript = gateway.transcript();
    EXPECT_THAT(transcript, AllOf(HasSubstr("SIP.AuthPassword</key><value>********<"),
                                  Not(HasSubstr("engine")), Not(HasSubstr("sip-secret-0"))));
}

TEST_F(ClassicVoiceTest, TellsTheStateOfTheServiceAndOfEachLine)
{
    EXPECT_EQ(send({"query voice-0 status"}),
              "<response version=\"1.0.0\">\n<voice-0><Enable>1</Enable>"
              "<Voip_Status_0>1</Voip_Status_0><User_Name_0>line-a0417</User_Name_0>"
              "<Phone_Number_0>5550142</Phone_Number_0>"
              "<Voip_Status_1>0</Voip_Status_1><User_Name_1>line-b0417</User_Name_1>"
              "<Phone_Number_1>5550143</Phone_Number_1></voice-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ClassicVoiceTest, AWrittenAccountShowsInTheStatus)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction voice-0",
                       "set voice-0 VoiceService.VoiceProfile.Line[0].SIP.AuthUserName ada",
                       "set voice-0 VoiceService.VoiceProfile.Line[0].SIP.AuthPassword engine",
                       "set voice-0 VoiceService.VoiceProfile.Line[0].SIP.URI "
                       "SIP:5550177@example.org",
                       "set voice-0 VoiceService.VoiceProfile.Line[0].SIP.Enable 0",
                       "set voice-0 DslPhoneNumber 5550101", "command cfgmgr-0 commit voice-0",
                       "command cfgmgr-0 end_transaction voice-0", "command voice-0 apply",
                       "command cfgmgr-0 save"}),
              0);
    EXPECT_THAT(send({"query voice-0 status"}),
                HasSubstr("<Voip_Status_0>0</Voip_Status_0><User_Name_0>ada</User_Name_0>"
                          "<Phone_Number_0>5550177</Phone_Number_0>"));
    EXPECT_THAT(send({"get voice-0 DslPhoneNumber"}),
                HasSubstr("<voice-0><DslPhoneNumber>5550101</DslPhoneNumber></voice-0>"));
    EXPECT_EQ(gateway.storedValue("voice-0", inLine(0, "SIP.AuthPassword")), "engine");
}

TEST_F(ClassicVoiceTest, HasNoCallsAndCantSayWhatNeedsBracketsOrColons)
{
    EXPECT_EQ(
        send({"query voice-0 loglength:0", "query voice-0 callhistory:0:19:0",
              "get voice-0 VoiceService.VoiceProfile.Line[0].SIP.URI", "get voice-0 AllLineList"}),
        "<response version=\"1.0.0\">\n<webapp><error>0</error></webapp>\n</response>\n");
}

} // namespace quorvel::simulator::tests
