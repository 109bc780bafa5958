#include "voice/VoiceFixture.h"

namespace quorvel::test
{

namespace
{

#define LINE0 "VoiceService.VoiceProfile.Line[0]."
#define LINE2 "VoiceService.VoiceProfile.Line[2]."

const QString oneLine = reply101({{"voice-0", "line0", "0"}, {"webapp", "error", "0"}});
const QString noGains = reply101({});
const QString noError = reply101({{"webapp", "error", "0"}});

} // namespace

TEST_F(VoiceFacade, ReadsEveryFieldOfALineWithItsGains)
{
    gateway.reply(oneLine)
        .reply(reply101({{"voice-0", "Voip_Status_0", "3"},
                         {"voice-0", "User_Name_0", "Ann"},
                         {"voice-0", "Phone_Number_0", "555123"},
                         {"voice-0", "DslPhoneNumber", "555999"},
                         {"voice-0", LINE0 "SIP.AuthUserName", "ann@auth"},
                         {"voice-0", LINE0 "SIP.AuthPassword", "p<w"},
                         {"voice-0", LINE0 "SIP.URI", "SIP:1234@voip.example"},
                         {"voice-0", LINE0 "SIP.Server[0].ProxyServer", "proxy.example"},
                         {"voice-0", LINE0 "SIP.UserAgentDomain", "voip.example"},
                         {"voice-0", LINE0 "Enable", "1"},
                         {"voice-0", "Enable", "1"},
                         {"webapp", "error", "0"}}))
        .reply(reply101({{"voice-0", LINE0 "VoiceProcessing.TransmitGain", "5"},
                         {"voice-0", LINE0 "VoiceProcessing.ReceiveGain", "12"},
                         {"webapp", "error", "0"}}));
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"true", "0|line|3|Ann|555123|1234|proxy.example|voip.example|ann@auth|p<w|42|"
                             "100|false|false|true"}));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("voice/getVoipAccountsOfTheFacade"), transcript(gateway)));
}

TEST_F(VoiceFacade, ReadsOnlyTheGainsOfTheAnaloguePort)
{
    gateway.reply(reply101({{"voice-0", "fxo0", "2"}}))
        .reply(reply101({{"voice-0", "Voip_Status_2", "3"},
                         {"voice-0", "User_Name_2", "Ann"},
                         {"voice-0", "Phone_Number_2", "555123"},
                         {"voice-0", LINE2 "SIP.AuthUserName", "ann"},
                         {"voice-0", LINE2 "SIP.URI", "SIP:1234@voip.example"},
                         {"voice-0", LINE2 "Enable", "1"}}))
        .reply(reply101({{"voice-0", LINE2 "VoiceProcessing.TransmitGain", "-10"},
                         {"voice-0", LINE2 "VoiceProcessing.ReceiveGain", "1"}}));
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"false", "2|fxo|0||||||||0|55|false|false|false"}));
}

TEST_F(VoiceFacade, ListsAccountsInTheOrderOfTheKeys)
{
    gateway
        .reply(reply101(
            {{"voice-0", "LINE_b", "0"}, {"voice-0", "a_Line", "1"}, {"voice-0", "FXO_c", "2"}}))
        .reply(reply101({{"voice-0", "Voip_Status_0", "7"}, {"voice-0", "Voip_Status_1", "8"}}))
        .reply(noGains);
    EXPECT_EQ(
        shown(facade.getVoipAccounts(error)),
        lines({"false", "2|fxo|0||||||||||false|false|false", "0|line|7||||||||||false|false|false",
               "1|line|8||||||||||false|false|false"}));
}

TEST_F(VoiceFacade, TakesAKeyWithBothWordsForALine)
{
    gateway.reply(reply101({{"voice-0", "AllLineList.fxo", "2"}}))
        .reply(reply101({{"voice-0", "Voip_Status_2", "1"}}))
        .reply(noGains);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"false", "2|line|1||||||||||false|false|false"}));
}

TEST_F(VoiceFacade, LeavesOutPortsOfOtherTypesAndOtherObjects)
{
    gateway
        .reply(reply101({{"voice-0", "fxs0", "0"},
                         {"voice-1", "line1", "1"},
                         {"VOICE-0", "line1", "1"},
                         {"myvoice-0", "line0", "0"}}))
        .reply(reply101({{"voice-0", "Voip_Status_0", "7"}, {"voice-0", "Voip_Status_1", "8"}}))
        .reply(noGains);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"false", "0|line|7||||||||||false|false|false"}));
}

TEST_F(VoiceFacade, LeavesOutALineWhoseStateIsMissingOrNoNumber)
{
    gateway
        .reply(reply101({{"voice-0", "line0", "0"},
                         {"voice-0", "line1", "1"},
                         {"voice-0", "line2", "3"},
                         {"voice-0", "line3", "4"}}))
        .reply(reply101({{"voice-0", "Voip_Status_1", "registered"},
                         {"voice-0", "Voip_Status_3", ""},
                         {"voice-0", "Voip_Status_4", "-1"}}))
        .reply(noGains);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"false", "4|line|-1||||||||||false|false|false"}));
}

TEST_F(VoiceFacade, ReadsALineUnderItsNumberAndKeepsItsId)
{
    gateway.reply(reply101({{"voice-0", "line0", "01"}, {"voice-0", "line1", "first"}}))
        .reply(reply101({{"voice-0", "Voip_Status_1", "8"},
                         {"voice-0", "Voip_Status_01", "9"},
                         {"voice-0", "Voip_Status_0", "7"},
                         {"voice-0", LINE0 "Enable", "1"}}))
        .reply(noGains);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"false", "01|line|8||||||||||false|false|false",
                     "first|line|7||||||||||false|false|true"}));
}

TEST_F(VoiceFacade, ReadsOnlyOneAsSwitchedOn)
{
    for (const char* flag : {"0", "", "01", "true", "2"}) {
        gateway.reply(oneLine)
            .reply(reply101({{"voice-0", "Voip_Status_0", "0"},
                             {"voice-0", LINE0 "Enable", flag},
                             {"voice-0", "Enable", flag}}))
            .reply(noGains);
        EXPECT_EQ(shown(facade.getVoipAccounts(error)),
                  lines({"false", "0|line|0||||||||||false|false|false"}))
            << flag;
    }
}

TEST_F(VoiceFacade, CutsASipAddressDownToItsUser)
{
    const struct {
        const char* address;
        const char* user;
    } cases[] = {{"SIP:1234@voip.example", "1234"},
                 {"1234@voip.example", "1234"},
                 {"SIP:1234", "1234"},
                 {"1234", "1234"},
                 {"", ""},
                 {"SIP:@voip.example", ""},
                 {"sip:1234@voip.example", "sip:1234"},
                 {"<SIP:1234@voip.example>", "1234"},
                 {"SIP:a@b@c", "a"},
                 {"a@SIP:b", "b"}};
    for (const auto& [address, user] : cases) {
        gateway.reply(oneLine)
            .reply(reply101(
                {{"voice-0", "Voip_Status_0", "0"}, {"voice-0", LINE0 "SIP.URI", address}}))
            .reply(noGains);
        const AspVoipSettings settings = facade.getVoipAccounts(error);
        ASSERT_EQ(settings.accounts.size(), 1);
        EXPECT_EQ(settings.accounts.first().uri, text(user)) << address;
    }
}

TEST_F(VoiceFacade, ReportsTheAccountsAndNotTheLinesThatFailedBefore)
{
    gateway.sendRaw(failedReply)
        .reply(reply101({{"voice-0", "Enable", "1"}, {"webapp", "error", "0"}}))
        .reply(noError);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)), lines({"true"}));
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceFacade, AsksForNoGainsIfTheAccountsFail)
{
    gateway.reply(oneLine).sendRaw(failedReply);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)), lines({"false"}));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(gateway.connections(), 2);
}

TEST_F(VoiceFacade, LeavesGainsEmptyThatFailAndReportsNothing)
{
    gateway.reply(oneLine)
        .reply(reply101({{"voice-0", "Voip_Status_0", "7"}, {"webapp", "error", "0"}}))
        .sendRaw(failedReply);
    EXPECT_EQ(shown(facade.getVoipAccounts(error)),
              lines({"false", "0|line|7||||||||||false|false|false"}));
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceFacade, ReportsWhatTheGainsReplySaysInPlaceOfTheAccounts)
{
    gateway.reply(oneLine)
        .reply(reply101({{"voice-0", "Enable", "1"}, {"webapp", "error", "5"}}))
        .reply(reply101({{"voice-0", "Enable", "0"}, {"webapp", "error", "7"}}));
    EXPECT_EQ(shown(facade.getVoipAccounts(error)), lines({"false"}));
    EXPECT_EQ(error, 7);
}

TEST_F(VoiceFacade, ReportsTheAccountsIfTheGainsReplyHasNoVerdict)
{
    gateway.reply(oneLine).reply(reply101({{"webapp", "error", "5"}})).reply(noGains);
    facade.getVoipAccounts(error);
    EXPECT_EQ(error, 5);
}

TEST_F(VoiceFacade, FindsNoLinesOnTheOlderGenerationAndAsksForItsStatusOnly)
{
    takeOlderGeneration();
    gateway.reply(reply100({{"voice-0", "Voip_Status_0", "3"}, {"voice-0", "Enable", "1"}}));
    EXPECT_EQ(shown(facade.getVoipAccounts(error)), lines({"true"}));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("voice/older/getVoipAccountsOfTheFacade"), transcript(gateway)));
}

} // namespace quorvel::test
