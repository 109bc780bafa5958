#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

std::string entry(const std::string& instance, const std::string& key, const std::string& value)
{
    return "<" + instance + "><key>" + key + "</key><value>" + value + "</value></" + instance +
           ">\n";
}

std::string reply(const std::string& entries)
{
    return "<response version=\"1.0.1\">\n" + entries +
           "<webapp><error>0</error></webapp>\n</response>\n";
}

} // namespace

/// A gateway with a radio of each generation.
class WirelessTest : public SimulatedGateway
{
protected:
    explicit WirelessTest(const std::string& scenario = "dual") : SimulatedGateway(scenario) {}

    // Sets values ("enabled 0") of one object, to be applied yet.
    int change(const std::string& instance, const Lines& sets)
    {
        Lines lines{"command cfgmgr-0 begin_transaction " + instance};
        for (const std::string& set : sets)
            lines.push_back("set " + instance + " " + set);
        lines.push_back("command cfgmgr-0 commit " + instance);
        lines.push_back("command cfgmgr-0 end_transaction " + instance);
        return errorOf(lines);
    }

    int apply(const std::string& instance) { return errorOf({"command " + instance + " apply"}); }

    std::string stations(const std::string& instance)
    {
        return send({"query " + instance + " sta_list"});
    }

    static std::string olderStation()
    {
        return entry("wireless_ap-0", "station1.sta_mac", "02:00:5E:20:01:23");
    }

    static std::string newerStations()
    {
        return entry("wireless-0", "station1.sta_mac", "02:00:5E:20:01:21") +
               entry("wireless-0", "station2.sta_mac", "02:00:5E:20:01:22");
    }
};

class ClassicWirelessTest : public WirelessTest
{
protected:
    ClassicWirelessTest() : WirelessTest("classic") {}
};

TEST_F(ClassicWirelessTest, HasARadioOfTheOlderGeneration)
{
    EXPECT_EQ(send({"query devmgr-0 inst_list wireless_core", "query devmgr-0 inst_list wireless"}),
              "<response version=\"1.0.0\">\n<devmgr-0><wireless_core.inst0>wireless_core-0"
              "</wireless_core.inst0></devmgr-0>\n<webapp><error>0</error></webapp>\n"
              "</response>\n");
    const std::pair<const char*, const char*> values[] = {{"ssid", "quorvel-0417"},
                                                          {"sec_mode", "wpa_both"},
                                                          {"wpa_auth_type", "psk"},
                                                          {"wep_auth_type", "open"},
                                                          {"wep_key_type", "hex"},
                                                          {"wep_key_index", "1"},
                                                          {"wpa_rekey_interval", "3600"},
                                                          {"wpa_radius_eap_reauth_period", "0"},
                                                          {"wpa_password", "radio-secret-0417"},
                                                          {"wpa_radius_port", "1812"},
                                                          {"wpa2_rsn_preauth", "0"}};
    for (const auto& [key, value] : values)
        EXPECT_EQ(get("wireless_ap-0", key), value) << key;
    for (const char* key : {"wep_key1", "wep_key4", "wpa_radius_addr", "wpa_radius_key"})
        EXPECT_THAT(send({std::string("get wireless_ap-0 ") + key}),
                    HasSubstr("<" + std::string(key) + "></" + key + ">"));
    EXPECT_EQ(get("wireless_core-0", "enabled"), "1");
    EXPECT_EQ(get("wireless_core-0", "freq"), "2437");
    EXPECT_EQ(get("wireless_core-0", "wps_enabled"), "0");
    EXPECT_EQ(query("wireless_core-0", "wps_role"), "enrollee");
    EXPECT_EQ(query("wireless_core-0", "security_proxy"), "0");
}

TEST_F(ClassicWirelessTest, TellsWhoIsInTheNetwork)
{
    EXPECT_EQ(stations("wireless_ap-0"),
              "<response version=\"1.0.0\">\n<wireless_ap-0>"
              "<station1.sta_mac>02:00:5E:20:00:21</station1.sta_mac>"
              "<station2.sta_mac>02:00:5E:20:00:22</station2.sta_mac></wireless_ap-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ClassicWirelessTest, ListsMeshLinksAsInstances)
{
    EXPECT_THAT(send({"query devmgr-0 inst_list wireless_wds"}),
                HasSubstr("<devmgr-0><wireless_wds.inst0>wireless_wds-0</wireless_wds.inst0>"
                          "<wireless_wds.inst1>wireless_wds-1</wireless_wds.inst1></devmgr-0>"));
    EXPECT_EQ(get("wireless_wds-0", "enabled"), "1");
    EXPECT_EQ(get("wireless_wds-0", "mac"), "02:00:5E:30:00:01");
    EXPECT_EQ(get("wireless_wds-1", "enabled"), "0");
    ASSERT_EQ(change("wireless_wds-1", {"enabled 1", "mac 02:00:5E:30:00:09"}), 0);
    EXPECT_EQ(get("wireless_wds-1", "enabled"), "1");
    EXPECT_EQ(get("wireless_wds-1", "mac"), "02:00:5E:30:00:09");
}

TEST_F(WirelessTest, TheNetworkOfAnOlderRadioIsAppliedWithIt)
{
    ASSERT_EQ(change("wireless_ap-0", {"ssid Attic", "wpa_password pass phrase"}), 0);
    EXPECT_EQ(get("wireless_ap-0", "ssid"), "Attic");
    EXPECT_EQ(gateway.value("wireless_ap-0", "ssid"), "quorvel-2001");
    ASSERT_EQ(apply("wireless_core-0"), 0);
    EXPECT_EQ(gateway.value("wireless_ap-0", "ssid"), "Attic");
    EXPECT_EQ(gateway.value("wireless_ap-0", "wpa_password"), "pass phrase");
}

TEST_F(WirelessTest, DevicesDontFindANetworkWithAnotherNameOrKey)
{
    EXPECT_EQ(stations("wireless_ap-0"), reply(olderStation()));
    EXPECT_EQ(stations("wireless-0"), reply(newerStations()));
    ASSERT_EQ(change("wireless_ap-0", {"ssid Attic"}), 0);
    ASSERT_EQ(change("wireless-0", {"ap0_wpa_password pass phrase"}), 0);
    EXPECT_EQ(stations("wireless_ap-0"), reply(olderStation()));
    EXPECT_EQ(stations("wireless-0"), reply(newerStations()));
    ASSERT_EQ(apply("wireless_ap-0"), 0);
    ASSERT_EQ(apply("wireless-0"), 0);
    EXPECT_EQ(stations("wireless_ap-0"), reply(""));
    EXPECT_EQ(stations("wireless-0"), reply(""));
    gateway.setStatus("wireless_ap-0", "station1.sta_mac", "02:00:5E:20:01:29");
    EXPECT_THAT(stations("wireless_ap-0"), HasSubstr("02:00:5E:20:01:29"));
}

TEST_F(WirelessTest, DevicesComeBackWithTheRadio)
{
    for (const char* enabled : {"enabled 0", "enabled 1"}) {
        ASSERT_EQ(change("wireless_core-0", {enabled}), 0);
        ASSERT_EQ(change("wireless-0", {enabled, "wps_enabled 0"}), 0);
        ASSERT_EQ(apply("wireless_core-0"), 0);
        ASSERT_EQ(apply("wireless-0"), 0);
        const bool on = std::string(enabled) == "enabled 1";
        EXPECT_EQ(stations("wireless_ap-0"), reply(on ? olderStation() : ""));
        EXPECT_EQ(stations("wireless-0"), reply(on ? newerStations() : ""));
    }
}

TEST_F(WirelessTest, WpsIsStartedAndStopped)
{
    for (const char* radio : {"wireless_core-0", "wireless-0"}) {
        ASSERT_EQ(change(radio, {"wps_enabled 0", "wps_role enrollee"}), 0);
        ASSERT_EQ(apply(radio), 0);
        ASSERT_EQ(change(radio, {"wps_enabled 1", "wps_config_uuid_update", "wps_role registrar"}),
                  0);
        EXPECT_EQ(get(radio, "wps_enabled"), "1") << radio;
        EXPECT_EQ(query(radio, "wps_role"), "enrollee") << radio;
        ASSERT_EQ(apply(radio), 0);
        EXPECT_EQ(query(radio, "wps_role"), "registrar") << radio;
        EXPECT_EQ(send({std::string("get ") + radio + " wps_config_uuid_update"}), reply(""));
    }
}

TEST_F(WirelessTest, ANewerRadioHasOneObjectForAll)
{
    const std::pair<const char*, const char*> values[] = {
        {"enabled", "1"},
        {"band", "5000"},
        {"txmode", "11ac"},
        {"channel", "36"},
        {"chanbw", "80"},
        {"ap0_ssid", "quorvel-2001-5g"},
        {"ap0_security_mode", "wpa2"},
        {"ap0_wpa_authtype", "psk"},
        {"ap0_wpa_password", "radio-secret-2001-5g"},
        {"ap0_wep_authtype", "open"},
        {"ap0_wep_keytype", "hex"},
        {"ap0_wep_keyindex", "1"},
        {"wps_enabled", "1"},
        {"wds0_enabled", "1"},
        {"wds0_mac", "02:00:5E:30:01:01"},
        {"wds1_enabled", "0"},
        {"wds2_mac", ""},
    };
    for (const auto& [key, value] : values)
        EXPECT_EQ(send({std::string("get wireless-0 ") + key}),
                  reply(entry("wireless-0", key, value)));
    EXPECT_EQ(query("wireless-0", "wps_role"), "registrar");
    EXPECT_EQ(query("wireless-0", "security_proxy"), "0");
}

TEST_F(WirelessTest, ChannelAndModeOfANewerRadioAreSettings)
{
    ASSERT_EQ(change("wireless-0", {"band 2400", "txmode 11ng", "channel 11", "chanbw 40"}), 0);
    EXPECT_EQ(get("wireless-0", "band"), "2400");
    EXPECT_EQ(get("wireless-0", "txmode"), "11ng");
    EXPECT_EQ(get("wireless-0", "channel"), "11");
    EXPECT_EQ(get("wireless-0", "chanbw"), "40");
    ASSERT_EQ(change("wireless_core-0", {"freq 2462"}), 0);
    EXPECT_EQ(get("wireless_core-0", "freq"), "2462");
}

TEST_F(WirelessTest, WhereNoNetworkIsNamedTheFirstIsMeant)
{
    EXPECT_EQ(send({"get wireless-0 security_mode", "get wireless-0 ssid"}),
              reply(entry("wireless-0", "security_mode", "wpa2") +
                    entry("wireless-0", "ssid", "quorvel-2001-5g")));
    ASSERT_EQ(
        change("wireless-0", {"ssid Attic", "security_mode wpa_both", "wpa_password pass phrase"}),
        0);
    EXPECT_EQ(get("wireless-0", "ap0_ssid"), "Attic");
    EXPECT_EQ(get("wireless-0", "ap0_security_mode"), "wpa_both");
    EXPECT_EQ(get("wireless-0", "ap0_wpa_password"), "pass phrase");
}

TEST_F(WirelessTest, WepIsWrittenUnderTheNamesOfTheOlderGeneration)
{
    ASSERT_EQ(change("wireless-0", {"wep_auth_type shared", "wep_key_index 3", "wep_key_type ascii",
                                    "wep_key1 0123456789"}),
              0);
    EXPECT_EQ(get("wireless-0", "ap0_wep_authtype"), "shared");
    EXPECT_EQ(get("wireless-0", "ap0_wep_keyindex"), "3");
    EXPECT_EQ(get("wireless-0", "ap0_wep_keytype"), "ascii");
    EXPECT_EQ(get("wireless-0", "ap0_wep_key1"), "0123456789");
    EXPECT_EQ(get("wireless-0", "wep_key1"), "0123456789");
}

TEST_F(WirelessTest, WhatAWepWriteLeavesEmptyStays)
{
    ASSERT_EQ(
        change("wireless-0", {"wep_auth_type", "wep_key_index", "wep_key_type", "wep_key1 12345"}),
        0);
    EXPECT_EQ(get("wireless-0", "ap0_wep_authtype"), "open");
    EXPECT_EQ(get("wireless-0", "ap0_wep_keyindex"), "1");
    EXPECT_EQ(get("wireless-0", "ap0_wep_keytype"), "hex");
    EXPECT_EQ(get("wireless-0", "ap0_wep_key1"), "12345");
    ASSERT_EQ(change("wireless-0", {"wep_key1"}), 0);
    EXPECT_EQ(send({"get wireless-0 ap0_wep_key1"}),
              reply(entry("wireless-0", "ap0_wep_key1", "")));
}

TEST_F(WirelessTest, TheCapabilitiesAreADocumentAndOneCharacter)
{
    EXPECT_THAT(query("wireless-0", "wireless_capabilities"),
                AllOf(StartsWith("{\"apPrefix\":[\"ap0\",\"ap1\"],\"band\":{\"2400\":{"),
                      EndsWith("\"wdsPrefix\":[\"wds0\",\"wds1\",\"wds2\"]};")));
    gateway.setStatus("wireless-0", "wireless_capabilities", "{}");
    EXPECT_EQ(query("wireless-0", "wireless_capabilities"), "{};");
    EXPECT_EQ(gateway.value("wireless-0", "wireless_capabilities"), "{};");
}

TEST_F(WirelessTest, OtherCommandsAreRefused)
{
    for (const char* object : {"wireless_core-0", "wireless_ap-0", "wireless-0"})
        EXPECT_EQ(errorOf({std::string("command ") + object + " explode"}), 6) << object;
}

TEST_F(WirelessTest, TranscriptsHideTheKeysOfNetworks)
{
    ASSERT_EQ(change("wireless_ap-0", {"wpa_password S3CRET-1", "wep_key1 S3CRET-2"}), 0);
    ASSERT_EQ(change("wireless-0", {"ap0_wpa_password S3CRET-3", "wep_key1 S3CRET-4"}), 0);
    send({"get wireless_ap-0 wpa_password", "get wireless-0 ap0_wep_key1"});
    EXPECT_THAT(gateway.transcript(),
                AllOf(HasSubstr("<key>ap0_wpa_password</key>"),
                      HasSubstr("<key>ap0_wep_key1</key>"), Not(HasSubstr("S3CRET"))));
}

} // namespace quorvel::simulator::tests
