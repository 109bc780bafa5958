#include "internet/InternetFixture.h"
#include "support/Transcript.h"

namespace quorvel::test
{

TEST_F(InternetFacade, LogsTheWholeRecordOfADslConnection)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(
        facade.setAdslSettings(text("wan-3"), text("dsl-1"), hostConnection("dhcp"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspAdslSettingsFacade::setAdslSettings -> Settings are applied:"
                     "\tInstance:dsl-1\tWan Instance:wan-3\tWan Link Type:dhcp"
                     "\tPPPoX Type:ppp type\tPPPoX Username:ppp user"
                     "\tPPPoX Password:ppp password\tVPI:1\tVCI:32"}));
}

TEST_F(InternetFacade, LogsTheWholeRecordOfAnEthernetConnectionUnderItsUsualLabels)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setEthSettings(text("wan-3"), hostConnection("bridge"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspAdslSettingsFacade::setEthSettings -> Settings are applied:"
                     "\tInstance:wan-3\tWan Link Type:bridge\tPPPoX Type:ppp type"
                     "\tPPPoX Username:ppp user\tPPPoX Password:ppp password"
                     "\tSTATIC Server:192.0.2.10\tSTATIC Username:255.255.255.0"
                     "\tSTATIC Password:192.0.2.1\tSTATIC Server:198.51.100.1"
                     "\tSTATIC Username:198.51.100.2\tVPN Server:vpn server"
                     "\tVPN Username:vpn user\tVPN Password:vpn password"}));
}

TEST_F(InternetFacade, RefusesAnUnknownLinkTypeWithoutARequestOrAnError)
{
    for (const char* linkType : {"", "PPPoE", "pppoe ", "Vpn", "pptp", "ipoe"}) {
        log.clear();
        error = static_cast<AspWebAppErrorCodes>(77);
        EXPECT_FALSE(
            facade.setAdslSettings(text("wan-3"), text("dsl-1"), hostConnection(linkType), error))
            << linkType;
        EXPECT_EQ(error, 0);
        EXPECT_EQ(
            ownLines(),
            lines(
                {"ERROR AspAdslSettingsFacade::setAdslSettings -> Failed to set adsl settings!"}));

        log.clear();
        error = static_cast<AspWebAppErrorCodes>(77);
        EXPECT_FALSE(facade.setEthSettings(text("wan-3"), hostConnection(linkType), error))
            << linkType;
        EXPECT_EQ(error, 0);
        EXPECT_EQ(
            ownLines(),
            lines({"ERROR AspAdslSettingsFacade::setEthSettings -> Failed to set eth settings!"}));
    }
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(InternetFacade, KnowsPppoaOverDslOnly)
{
    EXPECT_FALSE(facade.setEthSettings(text("wan-3"), hostConnection("pppoa"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(InternetFacade, PassesTheGatewaysVerdictOnBesideAWriteThatWasAnswered)
{
    gateway.reply(reply101({{"webapp", "error", "7"}}))
        .reply(reply101({{"webapp", "error", "-3"}}))
        .reply(reply101({{"webapp", "error", "19"}}));
    const AspAdslSettings settings = hostConnection("pppoe");
    EXPECT_TRUE(facade.setAdslSettings(text("wan-3"), text("dsl-1"), settings, error));
    EXPECT_EQ(error, 7);
    EXPECT_TRUE(facade.setEthSettings(text("wan-3"), settings, error));
    EXPECT_EQ(error, -3);
    EXPECT_TRUE(facade.setEthSettings(text("wan-3"), settings, error));
    EXPECT_EQ(error, 0);
}

TEST_F(InternetFacade, WritesWhatAnUntouchedRecordHolds)
{
    AspAdslSettings settings;
    EXPECT_EQ(settings.supportedAnnexMode, 3);
    EXPECT_EQ(settings.currentAnnexMode, 3);
    EXPECT_EQ(shown(settings.vpnSettings), text("||||false|false"));
    EXPECT_EQ(shown(settings.russianPppoxSettings), text("||false|false"));
    settings.linkType = text("bridge");
    gateway.reply(reply101({}));
    EXPECT_TRUE(facade.setEthSettings(text("wan-3"), settings, error));
    EXPECT_EQ(transcript(gateway), text("POST /cgi-bin/webapp\n"
                                        "cookie SID=1\n"
                                        "version 1.0.1\n"
                                        "command \"cfgmgr-0\" \"begin_transaction\" \"wan-3\"\n"
                                        "set \"wan-3\" \"type\" \"bridge\"\n"
                                        "set \"wan-3\" \"linktype\" \"bridge\"\n"
                                        "command \"cfgmgr-0\" \"commit\" \"wan-3\"\n"
                                        "command \"cfgmgr-0\" \"end_transaction\" \"wan-3\"\n"
                                        "command \"wan-3\" \"apply\" \"\"\n"
                                        "command \"cfgmgr-0\" \"begin_transaction\" \"\"\n"
                                        "set \"\" \"vlanid\" \"\"\n"
                                        "command \"cfgmgr-0\" \"commit\" \"\"\n"
                                        "command \"cfgmgr-0\" \"end_transaction\" \"\"\n"
                                        "command \"\" \"apply\" \"\"\n"
                                        "command \"cfgmgr-0\" \"save\" \"\"\n"));
}

} // namespace quorvel::test
