#include "wireless/WirelessFixture.h"

namespace quorvel::test
{

namespace
{

using OlderRadio = WirelessRadios;

const QString answered = reply101({{"webapp", "error", "0"}});

QString coreSays(const char* key, const char* value, const char* error = "0")
{
    return reply101({{"wireless_core-0", key, value}, {"webapp", "error", error}});
}

} // namespace

TEST_F(OlderRadio, BelongsToNoInstanceUntilOneIsSet)
{
    EXPECT_EQ(AspWirelessSettingsFacade(cpe).getManager(), QString());
    EXPECT_EQ(older->getManager(), text("wireless_core-0"));
}

TEST_F(OlderRadio, TellsWhetherItIsOn)
{
    gateway.reply(coreSays("enabled", "1", "3"))
        .reply(coreSays("enabled", "0"))
        .reply(coreSays("enabled", "yes"))
        .reply(answered);
    EXPECT_EQ(older->checkWirelessStatus(error), 0);
    EXPECT_EQ(error, 3);
    EXPECT_EQ(older->checkWirelessStatus(error), 1);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(older->checkWirelessStatus(error), 2);
    EXPECT_EQ(older->checkWirelessStatus(error), 2);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::checkWirelessStatus -> Wireless Status:1",
                     "DEBUG AspWirelessSettingsFacade::checkWirelessStatus -> Wireless Status:0",
                     "DEBUG AspWirelessSettingsFacade::checkWirelessStatus -> Wireless Status:yes",
                     "DEBUG AspWirelessSettingsFacade::checkWirelessStatus -> Wireless Status:"}));
}

TEST_F(OlderRadio, TellsWhetherWpsIsOnAndKeepsTheGatewaysErrorToItself)
{
    gateway.reply(coreSays("wps_enabled", "1", "3"))
        .reply(coreSays("wps_enabled", "0", "3"))
        .reply(coreSays("wps_enabled", "2", "3"));
    EXPECT_EQ(older->checkWpsEnabledStatus(error), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), 1);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), 2);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::checkWpsEnabledStatus -> Wps Status:1",
                     "DEBUG AspWirelessSettingsFacade::checkWpsEnabledStatus -> Wps Status:0",
                     "DEBUG AspWirelessSettingsFacade::checkWpsEnabledStatus -> Wps Status:2"}));
}

TEST_F(OlderRadio, TellsTheWpsStatusThatWasSet)
{
    gateway.reply(reply101({{"webapp", "error", "3"}})).reply(answered);
    EXPECT_EQ(older->setWpsEnabledStatus(true, error), 0);
    EXPECT_EQ(error, 3);
    EXPECT_EQ(older->setWpsEnabledStatus(false, error), 1);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::setWpsEnabledStatus successfully...",
                     "DEBUG AspWirelessSettingsFacade::setWpsEnabledStatus successfully..."}));
}

TEST_F(OlderRadio, TellsItsPartInWpsAndKeepsTheGatewaysErrorToItself)
{
    gateway.reply(coreSays("wps_role", "enrollee", "3"))
        .reply(coreSays("wps_role", "registrar", "3"))
        .reply(coreSays("wps_role", "Registrar", "3"));
    EXPECT_EQ(older->getWpsRole(error), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(older->getWpsRole(error), 1);
    EXPECT_EQ(older->getWpsRole(error), 2);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::getWpsRole -> Wps Role:enrollee",
                     "DEBUG AspWirelessSettingsFacade::getWpsRole -> Wps Role:registrar",
                     "DEBUG AspWirelessSettingsFacade::getWpsRole -> Wps Role:Registrar"}));
}

TEST_F(OlderRadio, TellsWhetherTheSecurityProxyIsOn)
{
    gateway.reply(coreSays("security_proxy", "1", "3")).reply(coreSays("security_proxy", "yes"));
    EXPECT_TRUE(older->isSecurityProxyEnabled(error));
    EXPECT_EQ(error, 3);
    EXPECT_FALSE(older->isSecurityProxyEnabled(error));
    EXPECT_EQ(
        ownLines(),
        lines({"DEBUG AspWirelessSettingsFacade::isSecurityProxyEnabled -> Security Proxy: ENABLED",
               "DEBUG AspWirelessSettingsFacade::isSecurityProxyEnabled -> Security Proxy: "
               "DISABLED"}));
}

TEST_F(OlderRadio, AsksTheDefaultCoreWithoutAnInstance)
{
    gateway.reply(coreSays("enabled", "0"))
        .reply(coreSays("wps_enabled", "0"))
        .reply(answered)
        .reply(coreSays("wps_role", "enrollee"));
    older->setManager(QString());
    EXPECT_EQ(older->checkWirelessStatus(error), 1);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), 1);
    EXPECT_EQ(older->setWpsEnabledStatus(true, error), 0);
    EXPECT_EQ(older->getWpsRole(error), 0);
    EXPECT_TRUE(matchesGolden(text("wireless/older/facadeWithoutInstance"), transcript(gateway)));
}

TEST_F(OlderRadio, FindsNoSecurityProxyWithoutAnInstance)
{
    gateway.reply(coreSays("security_proxy", "1"));
    older->setManager(QString());
    EXPECT_FALSE(older->isSecurityProxyEnabled(error));
    EXPECT_EQ(error, 0);
}

TEST_F(OlderRadio, AsksTheInstanceThatIsSet)
{
    gateway.reply(reply101({{"wireless_core-3", "enabled", "0"}}))
        .reply(reply101({{"wireless_core-3", "wps_enabled", "0"}}))
        .reply(answered);
    older->setManager(text("wireless_core-3"));
    EXPECT_EQ(older->checkWirelessStatus(error), 1);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), 1);
    EXPECT_EQ(older->setWpsEnabledStatus(false, error), 1);
    EXPECT_TRUE(matchesGolden(text("wireless/older/facadeOfAnotherInstance"), transcript(gateway)));
}

TEST_F(OlderRadio, AsksTheFixedCoreForItsPartInWpsWhateverInstanceIsSet)
{
    gateway.reply(coreSays("wps_role", "registrar"));
    older->setManager(text("wireless_core-3"));
    EXPECT_EQ(older->getWpsRole(error), 1);
}

namespace
{

QString wholeReply()
{
    return reply101({{"wireless_ap-0", "ssid", "Home & Garden"},
                     {"wireless_ap-0", "sec_mode", "wpa_both"},
                     {"wireless_ap-0", "wpa_auth_type", "psk"},
                     {"wireless_ap-0", "wep_auth_type", "shared"},
                     {"wireless_ap-0", "wep_key_type", "hex"},
                     {"wireless_ap-0", "wep_key_index", "3"},
                     {"wireless_ap-0", "wep_key1", "k1"},
                     {"wireless_ap-0", "wep_key2", "k2"},
                     {"wireless_ap-0", "wep_key3", "k3"},
                     {"wireless_ap-0", "wep_key4", "k4"},
                     {"wireless_ap-0", "wpa_rekey_interval", "3600"},
                     {"wireless_ap-0", "wpa_radius_eap_reauth_period", "7200"},
                     {"wireless_ap-0", "wpa_password", "pass phrase"},
                     {"wireless_ap-0", "wpa_radius_addr", "192.0.2.9"},
                     {"wireless_ap-0", "wpa_radius_port", "1812"},
                     {"wireless_ap-0", "wpa_radius_key", "radius key"},
                     {"wireless_ap-0", "wpa2_rsn_preauth", "1"},
                     {"wireless_core-0", "freq", "2412"},
                     {"webapp", "error", "3"}});
}

} // namespace

TEST_F(OlderRadio, ReadsEveryFieldOfItsSettings)
{
    gateway.reply(wholeReply());
    EXPECT_EQ(shown(older->getWirelessSettings(error)),
              text("0|Home & Garden|wpa_both|shared|hex|3|k1|k2|k3|k4|psk|pass phrase|3600|"
                   "192.0.2.9|1812|radius key|7200|1|2412|0"));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(ownLines(),
              lines({"DEBUG AspWirelessSettingsFacade::getWirelessSettings -> Wireless Settings:"
                     "\nSSID:\tHome & Garden"
                     "\nSecurity Mode:\twpa_both"
                     "\nWEP Authentication Type:\tshared"
                     "\nWPA Authentication Type:\tpsk"}));
}

TEST_F(OlderRadio, LeavesTheFrequencyEmptyWithAnotherInstance)
{
    for (const char* instance : {"wireless_core-3", ""}) {
        gateway.reply(wholeReply());
        older->setManager(text(instance));
        const AspWirelessSettings settings = older->getWirelessSettings(error);
        EXPECT_EQ(settings.ssid, text("Home & Garden"));
        EXPECT_EQ(settings.freq, QString());
    }
}

TEST_F(OlderRadio, ReadsSettingsThatTheGatewayDoesNotTellAsEmpty)
{
    gateway.reply(reply101({}));
    EXPECT_EQ(shown(older->getWirelessSettings(error)), text("0|||||||||||||||||||0"));
    EXPECT_EQ(error, 0);
}

TEST_F(OlderRadio, ListsItsStations)
{
    gateway.reply(reply101({{"wireless_ap-0", "station1.sta_mac", "00:00:5e:00:53:01"},
                            {"wireless_ap-0", "station2.sta_mac", "00:00:5e:00:53:02"},
                            {"wireless_ap-0", "station4.sta_mac", "00:00:5e:00:53:04"},
                            {"webapp", "error", "3"}}));
    EXPECT_EQ(older->getWirelessClientMacList(error),
              lines({"00:00:5e:00:53:01", "00:00:5e:00:53:02"}));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(ownLines(), lines({"DEBUG AspWirelessSettingsFacade::getWirelessClientMacList -> "
                                 "Client MAC List:00:00:5e:00:53:01\n00:00:5e:00:53:02\n"}));
    EXPECT_TRUE(matchesGolden(text("wireless/older/facadeClientMacList"), transcript(gateway)));
}

TEST_F(OlderRadio, ListsOnlyTheFirstStationInTheOtherSpelling)
{
    gateway
        .reply(reply101({{"wireless_ap-0", "station1.mac", "00:00:5e:00:53:01"},
                         {"wireless_ap-0", "station2.mac", "00:00:5e:00:53:02"}}))
        .reply(reply101({{"wireless_ap-0", "station1.mac", "00:00:5e:00:53:01"},
                         {"wireless_ap-0", "station2.sta_mac", "00:00:5e:00:53:02"}}));
    EXPECT_EQ(older->getWirelessClientMacList(error), lines({"00:00:5e:00:53:01"}));
    EXPECT_EQ(older->getWirelessClientMacList(error),
              lines({"00:00:5e:00:53:01", "00:00:5e:00:53:02"}));
}

TEST_F(OlderRadio, ListsNoStationsWithoutAFirstOne)
{
    gateway.reply(reply101({{"wireless_ap-0", "station0.sta_mac", "00:00:5e:00:53:00"},
                            {"wireless_ap-0", "station2.sta_mac", "00:00:5e:00:53:02"}}));
    EXPECT_EQ(older->getWirelessClientMacList(error), QStringList());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), lines({"DEBUG AspWirelessSettingsFacade::getWirelessClientMacList -> "
                                 "Client MAC List:"}));
}

namespace
{

QString link(const char* instance, const char* mac, const char* enabled, const char* error = "0")
{
    return reply101(
        {{instance, "mac", mac}, {instance, "enabled", enabled}, {"webapp", "error", error}});
}

} // namespace

TEST_F(OlderRadio, ListsItsMeshLinks)
{
    gateway
        .reply(reply101({{"devmgr-0", "wireless_wds.inst0", "wireless_wds-4"},
                         {"devmgr-0", "wireless_wds.inst1", "wireless_wds-0"}}))
        .reply(link("wireless_wds-4", "00:00:5e:00:53:04", "1"))
        .reply(link("wireless_wds-0", "", "yes", "3"));
    EXPECT_EQ(shown(older->getWirelessMeshInstances(error)), text("00:00:5e:00:53:04 on, off"));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(ownLines(), lines({"DEBUG AspWirelessSettingsFacade::getWirelessClientMacList -> "
                                 "Client MAC List:00:00:5e:00:53:04\n\n"}));
    EXPECT_TRUE(matchesGolden(text("wireless/older/facadeMeshInstances"), transcript(gateway)));
}

TEST_F(OlderRadio, EndsItsMeshLinksAtAGap)
{
    gateway
        .reply(reply101({{"devmgr-0", "wireless_wds.inst0", "wireless_wds-0"},
                         {"devmgr-0", "wireless_wds.inst2", "wireless_wds-2"}}))
        .reply(link("wireless_wds-0", "00:00:5e:00:53:01", "0"));
    EXPECT_EQ(shown(older->getWirelessMeshInstances(error)), text("00:00:5e:00:53:01 off"));
}

TEST_F(OlderRadio, LeavesOutAMeshLinkThatCannotBeRead)
{
    gateway
        .reply(reply101({{"devmgr-0", "wireless_wds.inst0", "wireless_wds-0"},
                         {"devmgr-0", "wireless_wds.inst1", "wireless_wds-1"}}))
        .sendRaw(failedReply)
        .reply(link("wireless_wds-1", "00:00:5e:00:53:02", "1"));
    EXPECT_EQ(shown(older->getWirelessMeshInstances(error)), text("00:00:5e:00:53:02 on"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), lines({"DEBUG AspWirelessSettingsFacade::getWirelessClientMacList -> "
                                 "Client MAC List:00:00:5e:00:53:02\n"}));
}

TEST_F(OlderRadio, ListsTheRemainingMeshLinksBehindAnExpiredSession)
{
    gateway
        .reply(reply101({{"devmgr-0", "wireless_wds.inst0", "wireless_wds-0"},
                         {"devmgr-0", "wireless_wds.inst1", "wireless_wds-1"}}))
        .reply(reply101({{"webapp", "error", "1"}}))
        .logIn("SID=2")
        .reply(link("wireless_wds-0", "00:00:5e:00:53:01", "1"))
        .reply(link("wireless_wds-1", "00:00:5e:00:53:02", "1"));
    EXPECT_EQ(shown(older->getWirelessMeshInstances(error)),
              text("00:00:5e:00:53:01 on,00:00:5e:00:53:02 on"));
}

TEST_F(OlderRadio, TellsWhetherItsNetworkHasSecurity)
{
    gateway.reply(reply101({{"wireless_ap-0", "sec_mode", "wep"}, {"webapp", "error", "3"}}))
        .reply(reply101({{"wireless_ap-0", "sec_mode", "off"}}))
        .reply(reply101({{"wireless_ap-0", "sec_mode", "Off"}}))
        .reply(answered);
    EXPECT_TRUE(older->isWirelessSecurityEnabled(error));
    EXPECT_EQ(error, 3);
    EXPECT_FALSE(older->isWirelessSecurityEnabled(error));
    EXPECT_TRUE(older->isWirelessSecurityEnabled(error));
    // What isn't told isn't "off".
    EXPECT_TRUE(older->isWirelessSecurityEnabled(error));
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(OlderRadio, HasNoCapabilitiesToFetch)
{
    EXPECT_TRUE(older->getWirelessCapabilities(error));
    EXPECT_EQ(error, 77);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(OlderRadio, HasThreeSecurityModesOnEveryBand)
{
    for (const int band : {-1, 0, 1, 2})
        EXPECT_EQ(older->getSupportSecurityModes(band), lines({"off", "wep", "wpa_both"}));
    EXPECT_EQ(gateway.connections(), 0);
}

} // namespace quorvel::test
