#include "voice/VoiceFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

const QString voice = text("voice-0");

/// An account in which every text is set.
AspVoipAccount changedAccount()
{
    AspVoipAccount account;
    account.id = text("1");
    account.type = text("line");
    account.userName = text("Ann");
    account.phoneNumber = text("555123");
    account.uri = text("1234");
    account.proxyServer = text("proxy.example");
    account.userAgentDomain = text("voip.example");
    account.authUserName = text("ann@auth");
    account.authPassword = text("p<w");
    account.transmitGain = text("42");
    account.receiveGain = text("43");
    account.changed = true;
    account.enabled = true;
    return account;
}

} // namespace

TEST_F(VoiceFacade, WritesAChangedAccount)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setVoipSettings(voice, changedAccount(), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("voice/setVoipSettingsOfTheFacade"), transcript(gateway)));
}

TEST_F(VoiceFacade, WritesTheProxyIntoTheAddressOfAnAccountWithoutDomain)
{
    AspVoipAccount account = changedAccount();
    account.userAgentDomain.clear();
    account.enabled = false;
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setVoipSettings(text("voice-1"), account, error));
    EXPECT_TRUE(matchesGolden(text("voice/setVoipSettingsWithoutDomain"), transcript(gateway)));
}

TEST_F(VoiceFacade, WritesAnEmptyAccountAsEmptyTexts)
{
    AspVoipAccount account;
    account.id = text("0");
    account.changed = true;
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setVoipSettings(voice, account, error));
    EXPECT_TRUE(matchesGolden(text("voice/setVoipSettingsOfAnEmptyAccount"), transcript(gateway)));
}

TEST_F(VoiceFacade, SendsTheOlderGenerationEmptyTexts)
{
    takeOlderGeneration();
    gateway.reply(reply100({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setVoipSettings(voice, changedAccount(), error));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("voice/older/setVoipSettingsOfTheFacade"), transcript(gateway)));
}

TEST_F(VoiceFacade, SendsNothingOfAnAccountThatIsNotChanged)
{
    AspVoipAccount account = changedAccount();
    account.changed = false;
    EXPECT_FALSE(facade.setVoipSettings(voice, account, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(VoiceFacade, JudgesTheGatewayAlsoForAnAccountThatIsNotChanged)
{
    AspVoipSettingsFacade empty{boost::shared_ptr<Cpe>()};
    EXPECT_FALSE(empty.setVoipSettings(voice, AspVoipAccount(), error));
    EXPECT_EQ(error, 26);
}

TEST_F(VoiceFacade, CountsALostReplyToAWriteAsSuccess)
{
    cpe->setVoipImplementor(boost::make_shared<ProgrammedVoice>());
    EXPECT_TRUE(facade.setVoipSettings(voice, changedAccount(), error));
    EXPECT_EQ(error, 0);
    error = static_cast<AspWebAppErrorCodes>(77);
    EXPECT_TRUE(facade.setGainSettings(voice, {changedAccount()}, error));
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceFacade, ReportsTheGatewaysVerdictOnAWriteThatItAnswered)
{
    gateway.reply(reply101({{"webapp", "error", "7"}}));
    EXPECT_TRUE(facade.setVoipSettings(voice, changedAccount(), error));
    EXPECT_EQ(error, 7);
}

} // namespace quorvel::test
