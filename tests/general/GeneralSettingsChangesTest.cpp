#include "general/GeneralSettings.h"
#include "support/Golden.h"
#include "support/Transcript.h"

namespace quorvel::test
{

namespace
{

class GeneralSettingsChange : public GeneralSettings
{
protected:
    QString livePassword() const
    {
        return cpe->getGeneralImplementor()->getAuthenticator()->getPassword();
    }
};

const char passwordChanged[] =
    "DEBUG AspGeneralSettingsFacade::setCpePassword -> Cpe password changed";
const char passwordNotChanged[] =
    "DEBUG AspGeneralSettingsFacade::setCpePassword -> Cpe password can not changed";

} // namespace

TEST_F(GeneralSettingsChange, OfThePasswordIsLiveAtTheNextLogin)
{
    reply({{"webapp", "error", "0"}});
    EXPECT_TRUE(facade->setCpePassword(text("a<b&c"), error));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({passwordChanged}));
    EXPECT_EQ(livePassword(), text("a<b&c"));
    EXPECT_TRUE(matchesGolden(text("general/setCpePassword"), transcript(gateway)));
    EXPECT_TRUE(gateway.request(0).body.contains("<value>a&lt;b&amp;c</value>"));

    expireSession();
    gateway.logIn();
    reply({});
    facade->getSerialNumber(error);
    EXPECT_EQ(gateway.request(1).body, QByteArray("user=admin&password=a%3Cb%26c"));
}

TEST_F(GeneralSettingsChange, OfThePasswordThatFailsLeavesTheLoginAsItIs)
{
    gateway.sendRaw({});
    EXPECT_FALSE(facade->setCpePassword(text("new"), error));
    EXPECT_EQ(code(), 29);
    EXPECT_EQ(log.lines(), lines({passwordNotChanged}));
    EXPECT_EQ(livePassword(), text("secret"));
}

TEST_F(GeneralSettingsChange, OfThePasswordCountsAsDoneBesideACodeOfTheGateway)
{
    reply({{"webapp", "error", "8"}});
    EXPECT_TRUE(facade->setCpePassword(text("new"), error));
    EXPECT_EQ(code(), 8);
    EXPECT_EQ(log.lines(), lines({passwordChanged}));
    EXPECT_EQ(livePassword(), text("new"));
}

TEST_F(GeneralSettingsChange, OfTheRouterModeIsLogged)
{
    reply({{"webapp", "error", "0"}});
    EXPECT_TRUE(facade->setCpeInternetModeAp2Router(text("router"), error));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({"DEBUG AspGeneralSettingsFacade::setCpeInternetModeAp2Router -> "
                                  "Cpe internet mode changed"}));
    EXPECT_TRUE(matchesGolden(text("general/setCpeInternetModeAp2Router"), transcript(gateway)));
}

TEST_F(GeneralSettingsChange, OfTheRouterModeThatFailsIsLoggedAtTheSameLevel)
{
    gateway.sendRaw({});
    EXPECT_FALSE(facade->setCpeInternetModeAp2Router(text("router"), error));
    EXPECT_EQ(code(), 29);
    EXPECT_EQ(log.lines(), lines({"DEBUG AspGeneralSettingsFacade::setCpeInternetModeAp2Router -> "
                                  "Cpe internet mode can not changed"}));
}

TEST_F(GeneralSettingsChange, OfTheDefaultGatewayIsSilent)
{
    reply({{"webapp", "error", "19"}});
    EXPECT_TRUE(facade->setDefaultGw(text("route-1"), text("wan-3"), error));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("general/setDefaultGw"), transcript(gateway)));
}

TEST_F(GeneralSettingsChange, OfTheWarrantyRecordSendsAllItsTexts)
{
    reply({});
    AspDeviceWarrantyInformation info;
    info.name = text("N");
    info.email = text("E");
    info.phone = text("P");
    info.token = text("T");
    info.usertoken = text("U");
    info.timestamp = text("S");
    EXPECT_TRUE(facade->setWarrantyInformation(info, error));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("general/setWholeWarrantyInformation"), transcript(gateway)));
}

TEST_F(GeneralSettingsChange, OfTheWarrantyRecordToAnEmptyOneSendsEmptyTexts)
{
    reply({});
    EXPECT_TRUE(facade->setWarrantyInformation(AspDeviceWarrantyInformation(), error));
    EXPECT_TRUE(
        matchesGolden(text("general/setWarrantyInformationWithoutValues"), transcript(gateway)));
}

} // namespace quorvel::test
