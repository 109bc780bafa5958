#include "wireless/AspWirelessImplementorNG.h"
#include "wireless/WirelessFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

using NewerRadio = WirelessRadios;

QString radioSays(const char* key, const char* value, const char* error = "0")
{
    return reply101({{"wireless-0", key, value}, {"webapp", "error", error}});
}

} // namespace

TEST_F(NewerRadio, BelongsToNoInstanceAndHasNoCapabilitiesAtFirst)
{
    const AspWirelessSettingsFacadeNG fresh(cpe);
    EXPECT_EQ(AspWirelessSettingsFacadeNG(cpe).getManager(), QString());
    EXPECT_FALSE(fresh.getCapabilities());
    EXPECT_EQ(newer->getManager(), text("wireless-0"));
}

TEST_F(NewerRadio, SendsNothingForWhatItsGenerationCannotTell)
{
    EXPECT_EQ(newer->checkWirelessStatus(error), 2);
    EXPECT_EQ(error, 0);
    error = static_cast<AspWebAppErrorCodes>(77);
    EXPECT_EQ(newer->setWpsEnabledStatus(true, error), 2);
    EXPECT_EQ(error, 0);
    error = static_cast<AspWebAppErrorCodes>(77);
    EXPECT_FALSE(newer->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 0);
    error = static_cast<AspWebAppErrorCodes>(77);
    EXPECT_EQ(newer->getWirelessClientMacList(error), QStringList());
    EXPECT_EQ(error, 77);
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(NewerRadio, TellsWhetherWpsIsOnAndKeepsTheGatewaysErrorToItself)
{
    gateway.reply(radioSays("wps_enabled", "1", "3")).reply(radioSays("wps_enabled", "0", "3"));
    EXPECT_EQ(newer->checkWpsEnabledStatus(error), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(newer->checkWpsEnabledStatus(error), 1);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::checkWpsEnabledStatus -> Wps Status:1",
                     "DEBUG AspWirelessSettingsFacade::checkWpsEnabledStatus -> Wps Status:0"}));
}

TEST_F(NewerRadio, TellsItsPartInWpsAndKeepsTheGatewaysErrorToItself)
{
    gateway.reply(radioSays("wps_role", "enrollee", "3"))
        .reply(radioSays("wps_role", "registrar"))
        .reply(radioSays("wps_role", ""));
    EXPECT_EQ(newer->getWpsRole(error), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(newer->getWpsRole(error), 1);
    EXPECT_EQ(newer->getWpsRole(error), 2);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacadeNG::getWpsRole -> Wps Role:enrollee",
                     "DEBUG AspWirelessSettingsFacadeNG::getWpsRole -> Wps Role:registrar",
                     "DEBUG AspWirelessSettingsFacadeNG::getWpsRole -> Wps Role:"}));
}

TEST_F(NewerRadio, TellsWhetherTheSecurityProxyIsOn)
{
    gateway.reply(radioSays("security_proxy", "1", "3")).reply(radioSays("security_proxy", "0"));
    EXPECT_TRUE(newer->isSecurityProxyEnabled(error));
    EXPECT_EQ(error, 3);
    EXPECT_FALSE(newer->isSecurityProxyEnabled(error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Security "
                     "Proxy: ENABLED",
                     "DEBUG AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Security "
                     "Proxy: DISABLED"}));
}

TEST_F(NewerRadio, AsksNoOtherInstanceWithoutOne)
{
    gateway.reply(reply101({{"wireless_core-0", "wps_enabled", "1"}}))
        .reply(reply101({{"wireless_core-0", "wps_role", "registrar"}}));
    newer->setManager(QString());
    EXPECT_EQ(newer->checkWpsEnabledStatus(error), 2);
    EXPECT_EQ(newer->getWpsRole(error), 2);
    EXPECT_TRUE(matchesGolden(text("wireless/newer/facadeWithoutInstance"), transcript(gateway)));
}

TEST_F(NewerRadio, ReadsEveryFieldOfItsSettings)
{
    gateway.reply(reply101({{"wireless-0", "ap0_ssid", "Home & Garden"},
                            {"wireless-0", "ap0_security_mode", "wpa2"},
                            {"wireless-0", "ap0_wpa_authtype", "psk"},
                            {"wireless-0", "ap0_wep_authtype", "shared"},
                            {"wireless-0", "ap0_wep_keytype", "hex"},
                            {"wireless-0", "ap0_wep_keyindex", "3"},
                            {"wireless-0", "ap0_wep_key1", "k1"},
                            {"wireless-0", "ap0_wep_key2", "k2"},
                            {"wireless-0", "ap0_wep_key3", "k3"},
                            {"wireless-0", "ap0_wep_key4", "k4"},
                            {"wireless-0", "ap0_wpa_password", "pass phrase"},
                            {"wireless-0", "ap0_wpa_radius_addr", "192.0.2.9"},
                            {"wireless-0", "ap0_wpa_rekey_interval", "3600"},
                            {"wireless-0", "band", "5000"},
                            {"webapp", "error", "3"}}));
    EXPECT_EQ(shown(newer->getWirelessSettings(error)),
              text("0|Home & Garden|wpa2|shared|hex|3|k1|k2|k3|k4|psk|pass phrase|||||||5000|0"));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacadeNG::getWirelessSettings -> Wireless Settings:"
                     "\nSSID:\tHome & Garden"
                     "\nSecurity Mode:\twpa2"
                     "\nWEP Authentication Type:\tshared"
                     "\nWPA Authentication Type:\tpsk"}));
}

TEST_F(NewerRadio, ReadsNothingUnderTheOlderSpelling)
{
    gateway.reply(reply101({{"wireless-0", "ssid", "Home"},
                            {"wireless-0", "ap0_sec_mode", "off"},
                            {"wireless-0", "ap0_wep_auth_type", "open"},
                            {"wireless_ap-0", "ssid", "Home"},
                            {"wireless-0", "freq", "2412"}}));
    EXPECT_EQ(shown(newer->getWirelessSettings(error)), text("0|||||||||||||||||||0"));
}

TEST_F(NewerRadio, GivesItsWriteAsTextWithoutTheThreeWepTypes)
{
    QString queries;
    for (const char* mode : {"off", "wpa_both", "wep"})
        queries += newer->getWirelessSettingsQuery(AspWirelessEnabled, wholeRecord(mode), error);
    queries += newer->getWirelessSettingsQuery(AspWirelessStatusUnknown, wholeRecord("off"), error);
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(
        matchesGolden(text("wireless/newer/facadeQueries"),
                      commandLines(text("<xmlrequest>") + queries + text("</xmlrequest>"))));
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(NewerRadio, SendsATextAsItStandsAndGivesNoneBack)
{
    gateway.reply(reply101({{"webapp", "error", "3"}}));
    EXPECT_EQ(newer->setWirelessQuery(text("<get inst=\"a-0\"/> & more"), error), QString());
    EXPECT_EQ(error, 3);
    EXPECT_EQ(gateway.request(0).body,
              "<xmlrequest version=\"1.0.1\"><get inst=\"a-0\"/> & more</xmlrequest>");
}

TEST_F(NewerRadio, SendsATextThroughItsOwnGeneration)
{
    cpe->setWirelessImplementor(boost::shared_ptr<WirelessSettingsImplementor>());
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    newer->setWirelessQuery(QString(), error);
    EXPECT_EQ(error, 0);
}

TEST_F(NewerRadio, TakesEveryAnswerForSecurity)
{
    gateway.reply(radioSays("security_mode", "off", "3"))
        .reply(radioSays("ap0_security_mode", "off"));
    EXPECT_TRUE(newer->isWirelessSecurityEnabled(error));
    EXPECT_EQ(error, 3);
    EXPECT_TRUE(newer->isWirelessSecurityEnabled(error));
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(NewerRadio, LooksForTheModeUnderANameWithoutItsInstance)
{
    // A name that no reply of a gateway has, so only an implementor can put it there.
    class Answering : public AspWirelessImplementorNG
    {
        bool getWirelessSecurityMode(const QString& ap, const QString& manager,
                                     ParamMap& result) override
        {
            EXPECT_EQ(ap, text("ap0"));
            EXPECT_EQ(manager, text("wireless-0"));
            result.insert(text("ap0_security_mode"), text("off"));
            return true;
        }
    };
    cpe->setWirelessImplementorNG(boost::make_shared<Answering>());
    EXPECT_FALSE(newer->isWirelessSecurityEnabled(error));
}

} // namespace quorvel::test
