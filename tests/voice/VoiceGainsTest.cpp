#include "voice/VoiceFixture.h"

namespace quorvel::test
{

namespace
{

/// A facade whose gateway has line 0 and the analogue port, with these gains for sending.
class VoiceGains : public VoiceFacade
{
protected:
    /// The percentages that the facade makes of them: "line port".
    QString percentages(const char* lineGain, const char* portGain)
    {
        gateway.reply(reply101({{"voice-0", "line0", "0"}, {"voice-0", "portfxo", "2"}}))
            .reply(reply101({{"voice-0", "Voip_Status_0", "1"}}))
            .reply(reply101(
                {{"voice-0", "VoiceService.VoiceProfile.Line[0].VoiceProcessing.TransmitGain",
                  lineGain},
                 {"voice-0", "VoiceService.VoiceProfile.Line[2].VoiceProcessing.TransmitGain",
                  portGain}}));
        QStringList gains;
        for (const AspVoipAccount& account : facade.getVoipAccounts(error).accounts)
            gains.append(account.transmitGain);
        return gains.join(QLatin1Char(' '));
    }
};

AspVoipAccount withGains(const char* id, const char* transmit, const char* receive)
{
    AspVoipAccount account;
    account.id = text(id);
    account.transmitGain = text(transmit);
    account.receiveGain = text(receive);
    return account;
}

} // namespace

TEST_F(VoiceGains, ScaleWithTheRangeOfTheirKindOfPort)
{
    EXPECT_EQ(percentages("6", "6"), text("50 80"));
    EXPECT_EQ(percentages("0", "-10"), text("0 0"));
    EXPECT_EQ(percentages("12", "10"), text("100 100"));
}

TEST_F(VoiceGains, AreReadAnewFromTheConfigurationAtEachUse)
{
    EXPECT_EQ(percentages("6", "6"), text("50 80"));
    configureGains("-20", "20", "5", "8");
    EXPECT_EQ(percentages("6", "6"), text("65 34"));
}

TEST_F(VoiceGains, KeepEndsOfTheirRangeThatTheConfigurationNoLongerGives)
{
    EXPECT_EQ(percentages("6", "6"), text("50 80"));
    configureGains("", "loud", "-10 dB", "1.5");
    EXPECT_EQ(percentages("6", "6"), text("50 80"));
    configureGains("", "24", "", "");
    EXPECT_EQ(percentages("6", "6"), text("25 80"));
}

TEST_F(VoiceGains, AreEmptyWithoutAnyRange)
{
    configureGains("", "", "", "");
    EXPECT_EQ(percentages("6", "6"), text(" "));
}

TEST_F(VoiceGains, AreEmptyInARangeWithoutExtent)
{
    configureGains("6", "6", "-3", "-3");
    EXPECT_EQ(percentages("6", "6"), text(" "));
}

TEST_F(VoiceGains, AreEmptyIfTheGatewayReportsNoNumber)
{
    EXPECT_EQ(percentages("", "soft"), text(" "));
}

TEST_F(VoiceGains, GoOutInTheGatewaysRangeForTheTwoLinesOnly)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setGainSettings(
        text("voice-0"),
        {withGains("0", "42", "100"), withGains("1", "0", "1"), withGains("2", "50", "60")},
        error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("voice/setGainSettingsOfTheFacade"), transcript(gateway)));
}

TEST_F(VoiceGains, GoOutInANegativeRange)
{
    configureGains("-30", "-10", "", "");
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setGainSettings(text("voice-0"), {withGains("1", "33", "100")}, error));
    EXPECT_TRUE(matchesGolden(text("voice/setNegativeGainSettings"), transcript(gateway)));
}

TEST_F(VoiceGains, GoOutAsTheMinimumOfARangeWithoutExtent)
{
    configureGains("7", "7", "", "");
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setGainSettings(text("voice-0"), {withGains("0", "50", "0")}, error));
    EXPECT_TRUE(matchesGolden(text("voice/setGainSettingsWithoutExtent"), transcript(gateway)));
}

TEST_F(VoiceGains, GoOutAsZeroWithoutAnyRange)
{
    configureGains("", "", "", "");
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setGainSettings(text("voice-0"), {withGains("0", "50", "100")}, error));
    EXPECT_TRUE(matchesGolden(text("voice/setGainSettingsWithoutRange"), transcript(gateway)));
}

TEST_F(VoiceGains, StayAsTheyAreIfUnsetOrNoNumber)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setGainSettings(
        text("voice-0"), {withGains("0", "", "loud"), withGains("1", "", "50")}, error));
    EXPECT_TRUE(matchesGolden(text("voice/setUnsetGainSettings"), transcript(gateway)));
}

TEST_F(VoiceGains, AreWrittenToTheObjectThatIsGiven)
{
    gateway.reply(reply101({{"webapp", "error", "6"}}));
    EXPECT_TRUE(facade.setGainSettings(text("voice-1"), {withGains("0", "50", "50")}, error));
    EXPECT_EQ(error, 6);
    EXPECT_TRUE(matchesGolden(text("voice/setGainSettingsOfAnotherObject"), transcript(gateway)));
}

TEST_F(VoiceGains, AreAskedForWithoutBeingRead)
{
    gateway.reply(reply101(
        {{"voice-0", "VoiceService.VoiceProfile.Line[0].VoiceProcessing.TransmitGain", "6"},
         {"webapp", "error", "7"}}));
    EXPECT_EQ(shown(facade.getGainSettings(error)), text("||0||||||||||false|false|false"));
    EXPECT_EQ(error, 7);
    EXPECT_TRUE(matchesGolden(text("voice/getGainSettingsOfTheFacade"), transcript(gateway)));
}

TEST_F(VoiceGains, AreNeitherReadNorWrittenOnTheOlderGeneration)
{
    takeOlderGeneration();
    EXPECT_TRUE(facade.setGainSettings(text("voice-0"), {withGains("0", "50", "50")}, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(shown(facade.getGainSettings(error)), text("||0||||||||||false|false|false"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

} // namespace quorvel::test
