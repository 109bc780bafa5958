#include "QuorvelctlRun.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::Not;

namespace
{

struct Case {
    const char* name;
    const char* arguments;
    const char* output;
    const char* errors = "";
};

/// A gateway with a radio of each generation.
class QuorvelctlWifi : public QuorvelctlTest
{
protected:
    QuorvelctlWifi() : QuorvelctlTest("dual") {}
};

class QuorvelctlWifiReading : public QuorvelctlWifi, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(QuorvelctlWifiReading, PrintsWhatTheRadiosTell)
{
    const Outcome result = run(GetParam().arguments);
    EXPECT_EQ(result.output, GetParam().output);
    EXPECT_EQ(result.errors, GetParam().errors);
    EXPECT_EQ(result.status, 0);
}

const Case cases[] = {
    {"List", "wifi list",
     "RADIO            GENERATION  STATE    NETWORK          SECURITY MODE  BAND\n"
     "wireless-0       newer       unknown  quorvel-2001-5g  wpa2           5000\n"
     "wireless_core-0  older       on       quorvel-2001     wpa_both       2437\n"},
    {"ListAsJson", "wifi list --json",
     "[\n"
     "    {\n"
     "        \"band\": \"5000\",\n"
     "        \"generation\": \"newer\",\n"
     "        \"radio\": \"wireless-0\",\n"
     "        \"security\": \"wpa2\",\n"
     "        \"ssid\": \"quorvel-2001-5g\",\n"
     "        \"state\": \"unknown\"\n"
     "    },\n"
     "    {\n"
     "        \"band\": \"2437\",\n"
     "        \"generation\": \"older\",\n"
     "        \"radio\": \"wireless_core-0\",\n"
     "        \"security\": \"wpa_both\",\n"
     "        \"ssid\": \"quorvel-2001\",\n"
     "        \"state\": \"on\"\n"
     "    }\n"
     "]\n"},
    {"Show", "wifi show",
     "Radio:              wireless-0\n"
     "Generation:         newer\n"
     "State:              unknown\n"
     "Network:            quorvel-2001-5g\n"
     "Security mode:      wpa2\n"
     "Band:               5000\n"
     "WPA authentication: psk\n"
     "WPA pass phrase:    ********\n"
     "WEP authentication: open\n"
     "WEP key type:       hex\n"
     "WEP key in use:     1\n"
     "WEP key 1:\n"
     "WEP key 2:\n"
     "WEP key 3:\n"
     "WEP key 4:\n"
     "Security proxy:     no\n"
     "\n"
     "Radio:                   wireless_core-0\n"
     "Generation:              older\n"
     "State:                   on\n"
     "Network:                 quorvel-2001\n"
     "Security mode:           wpa_both\n"
     "Band:                    2437\n"
     "WPA authentication:      psk\n"
     "WPA pass phrase:         ********\n"
     "WPA rekey interval:      3600\n"
     "WPA2 preauthentication:  0\n"
     "RADIUS server:\n"
     "RADIUS port:             1812\n"
     "RADIUS shared secret:\n"
     "RADIUS reauthentication: 0\n"
     "WEP authentication:      open\n"
     "WEP key type:            hex\n"
     "WEP key in use:          1\n"
     "WEP key 1:\n"
     "WEP key 2:\n"
     "WEP key 3:\n"
     "WEP key 4:\n"
     "Security proxy:          no\n"},
    {"ShowOfOneAsJson", "wifi show --radio wireless-0 --json",
     "[\n"
     "    {\n"
     "        \"band\": \"5000\",\n"
     "        \"generation\": \"newer\",\n"
     "        \"radio\": \"wireless-0\",\n"
     "        \"security\": \"wpa2\",\n"
     "        \"securityProxy\": false,\n"
     "        \"ssid\": \"quorvel-2001-5g\",\n"
     "        \"state\": \"unknown\",\n"
     "        \"wepAuthType\": \"open\",\n"
     "        \"wepKey1\": \"\",\n"
     "        \"wepKey2\": \"\",\n"
     "        \"wepKey3\": \"\",\n"
     "        \"wepKey4\": \"\",\n"
     "        \"wepKeyIndex\": \"1\",\n"
     "        \"wepKeyType\": \"hex\",\n"
     "        \"wpaAuthType\": \"psk\",\n"
     "        \"wpaPassword\": \"********\"\n"
     "    }\n"
     "]\n"},
    {"Clients", "wifi clients",
     "RADIO            MAC\n"
     "wireless_core-0  02:00:5E:20:01:23\n",
     "quorvelctl: who is connected isn't told by wireless-0\n"},
    {"ClientsOfOneAsJson", "wifi clients --radio wireless_core-0 --json",
     "[\n"
     "    {\n"
     "        \"mac\": \"02:00:5E:20:01:23\",\n"
     "        \"radio\": \"wireless_core-0\"\n"
     "    }\n"
     "]\n"},
    {"Mesh", "wifi mesh",
     "RADIO            MAC                ENABLED\n"
     "wireless-0       02:00:5E:30:01:01  yes\n"
     "wireless-0       02:00:5E:30:01:02  no\n"
     "wireless_core-0  02:00:5E:30:02:01  yes\n"
     "wireless_core-0  02:00:5E:30:02:02  no\n"},
    {"MeshOfOneAsJson", "wifi mesh --radio wireless-0 --json",
     "[\n"
     "    {\n"
     "        \"enabled\": true,\n"
     "        \"mac\": \"02:00:5E:30:01:01\",\n"
     "        \"radio\": \"wireless-0\"\n"
     "    },\n"
     "    {\n"
     "        \"enabled\": false,\n"
     "        \"mac\": \"02:00:5E:30:01:02\",\n"
     "        \"radio\": \"wireless-0\"\n"
     "    }\n"
     "]\n"},
    {"Wps", "wifi wps",
     "RADIO            WPS  ROLE\n"
     "wireless-0       on   registrar\n"
     "wireless_core-0  off  enrollee\n"},
    {"WpsOfOneAsJson", "wifi wps --radio wireless_core-0 --json",
     "[\n"
     "    {\n"
     "        \"radio\": \"wireless_core-0\",\n"
     "        \"role\": \"enrollee\",\n"
     "        \"wps\": \"off\"\n"
     "    }\n"
     "]\n"},
    // The tree has both bands of this radio; a transmit mode belongs to one of them.
    {"SecurityModes", "wifi security-modes",
     "RADIO            BAND     SECURITY MODES\n"
     "wireless-0       2.4 GHz\n"
     "wireless-0       5 GHz    off, wpa2\n"
     "wireless_core-0  any      off, wep, wpa_both\n"},
    {"SecurityModesOfOneAsJson", "wifi security-modes --radio wireless_core-0 --json",
     "[\n"
     "    {\n"
     "        \"band\": \"any\",\n"
     "        \"radio\": \"wireless_core-0\",\n"
     "        \"securityModes\": [\n"
     "            \"off\",\n"
     "            \"wep\",\n"
     "            \"wpa_both\"\n"
     "        ]\n"
     "    }\n"
     "]\n"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlWifiReading, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(QuorvelctlWifi, ShowsKeysOnDemandOnly)
{
    simulator.setValue("wireless_ap-0", "wep_key2", "wep-secret");
    simulator.setValue("wireless_ap-0", "wpa_radius_key", "radius-secret");
    for (const std::string form : {"", " --json", " --log-level debug"}) {
        const Outcome hidden = run("wifi show" + form);
        EXPECT_EQ(hidden.status, 0);
        EXPECT_THAT(hidden.output + hidden.errors, Not(HasSubstr("secret-2001")));
        EXPECT_THAT(hidden.output + hidden.errors, Not(HasSubstr("wep-secret")));
        EXPECT_THAT(hidden.output + hidden.errors, Not(HasSubstr("radius-secret")));
    }
    const std::string shown = run("wifi show --show-secrets").output;
    EXPECT_THAT(shown, HasSubstr("WPA pass phrase:    radio-secret-2001-5g\n"));
    EXPECT_THAT(shown, HasSubstr("RADIUS shared secret:    radius-secret\n"));
    EXPECT_THAT(shown, HasSubstr("WEP key 2:               wep-secret\n"));
}

TEST_F(QuorvelctlWifi, SwitchesWpsOfAnOlderRadio)
{
    const Outcome result = run("wifi wps on --radio wireless_core-0");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "WPS of wireless_core-0 is on.\n");
    EXPECT_EQ(run("wifi wps --radio wireless_core-0").output, "RADIO            WPS  ROLE\n"
                                                              "wireless_core-0  on   registrar\n");
    EXPECT_EQ(run("wifi wps off --radio wireless_core-0 --json").output,
              "{\n    \"done\": \"WPS of wireless_core-0 is off.\"\n}\n");
    EXPECT_EQ(simulator.storedValue("wireless_core-0", "wps_enabled"), "0");
}

TEST_F(QuorvelctlWifi, TellsStatesThatItDoesNotKnow)
{
    simulator.setValue("wireless_core-0", "enabled", "2");
    simulator.setValue("wireless_core-0", "wps_enabled", "");
    simulator.setValue("wireless_core-0", "wps_role", "guest");
    EXPECT_THAT(run("wifi list").output, HasSubstr("wireless_core-0  older       unknown  "));
    EXPECT_EQ(run("wifi wps --radio wireless_core-0").output,
              "RADIO            WPS      ROLE\n"
              "wireless_core-0  unknown  unknown\n");
}

TEST_F(QuorvelctlWifi, TellsAnEmptyNetworkFromOneThatIsNotTold)
{
    simulator.setValue("wireless_core-0", "enabled", "0");
    EXPECT_EQ(run("wifi clients --radio wireless_core-0").output, "No clients.\n");
    const Outcome untold = run("wifi clients --radio wireless-0 --json");
    EXPECT_EQ(untold.status, 1);
    EXPECT_EQ(untold.output, "");
    EXPECT_EQ(untold.errors, "quorvelctl: who is connected isn't told by wireless-0\n");
}

TEST_F(QuorvelctlWifi, TellsNoMeshLinksFromThoseThatAreNotTold)
{
    simulator.setStatus("wireless-0", "wireless_capabilities", R"({"band": {}})");
    EXPECT_EQ(run("wifi mesh --radio wireless-0").output, "No mesh links.\n");
    simulator.setStatus("wireless-0", "wireless_capabilities", "no JSON");
    const Outcome some = run("wifi mesh");
    EXPECT_EQ(some.status, 0);
    EXPECT_EQ(some.output, "RADIO            MAC                ENABLED\n"
                           "wireless_core-0  02:00:5E:30:02:01  yes\n"
                           "wireless_core-0  02:00:5E:30:02:02  no\n");
    EXPECT_EQ(some.errors, "quorvelctl: which mesh links there are isn't told by wireless-0\n");
    const Outcome none = run("wifi mesh --radio wireless-0 --json");
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.output, "");
    EXPECT_EQ(none.errors, "quorvelctl: which mesh links there are isn't told by wireless-0\n");
}

class QuorvelctlWifiOnTheOlderGateway : public QuorvelctlTest
{
protected:
    QuorvelctlWifiOnTheOlderGateway() : QuorvelctlTest("classic") {}
};

TEST_F(QuorvelctlWifiOnTheOlderGateway, ListsTheRadioAndItsClients)
{
    EXPECT_EQ(run("wifi list").output,
              "RADIO            GENERATION  STATE  NETWORK       SECURITY MODE  BAND\n"
              "wireless_core-0  older       on     quorvel-0417  wpa_both       2437\n");
    EXPECT_EQ(run("wifi clients").output, "RADIO            MAC\n"
                                          "wireless_core-0  02:00:5E:20:00:21\n"
                                          "wireless_core-0  02:00:5E:20:00:22\n");
}

TEST_F(QuorvelctlWifiOnTheOlderGateway, NeedsNoNameForItsOnlyRadio)
{
    const Outcome result = run("wifi wps on");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "WPS of wireless_core-0 is on.\n");
}

// U+009B starts a command of a terminal.
TEST(QuorvelctlWifiOnAHostileGateway, NeverLetsControlCharactersReachTheTerminal)
{
    auto scenario = *quorvel::simulator::Scenario::load("dual");
    const std::string radio = "wireless_core-0\xc2\x9b"
                              "2J";
    const auto command = [](const std::string& key, const std::string& value) {
        return "<command inst=\"cfgmgr-0\"><key>" + key + "</key><value>" + value +
               "</value></command>";
    };
    scenario.replies.push_back(
        {"<xmlrequest version=\"1.0.1\">"
         "<query inst=\"devmgr-0\"><key>inst_list</key><value>wireless_core</value></query>"
         "<query inst=\"devmgr-0\"><key>inst_list</key><value>wireless</value></query>"
         "</xmlrequest>",
         200,
         "<response version=\"1.0.1\"><devmgr-0><key>wireless_core.inst0</key><value>" + radio +
             "</value></devmgr-0></response>"});
    scenario.replies.push_back(
        {"<xmlrequest version=\"1.0.1\">" + command("begin_transaction", radio) + "<set inst=\"" +
             radio + "\"><key>wps_enabled</key><value>0</value></set>" + command("commit", radio) +
             command("end_transaction", radio) + "<command inst=\"" + radio +
             "\"><key>apply</key><value></value></command>" + command("save", "") + "</xmlrequest>",
         200, "<response version=\"1.0.1\"/>"});
    quorvel::simulator::GatewaySimulator gateway(scenario);
    std::string error;
    ASSERT_TRUE(gateway.start(&error)) << error;
    const Outcome result = runQuorvelctl("wifi wps off", {gateway.address(), "admin", {}, {}});
    EXPECT_EQ(result.output, "WPS of wireless_core-0\xef\xbf\xbd"
                             "2J is off.\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(runQuorvelctl("wifi wps on", {gateway.address(), "admin", {}, {}}).errors,
              "quorvelctl: can't switch WPS at wireless_core-0\xef\xbf\xbd"
              "2J: the gateway reports error 5\n");
}

TEST(QuorvelctlWifiOnAGatewayWithoutARadio, SaysSo)
{
    auto scenario = *quorvel::simulator::Scenario::load("modern");
    auto& managers = scenario.managers;
    managers.erase(std::remove(managers.begin(), managers.end(), "wireless"), managers.end());
    quorvel::simulator::GatewaySimulator gateway(scenario);
    std::string error;
    ASSERT_TRUE(gateway.start(&error)) << error;
    const Outcome result = runQuorvelctl("wifi list", {gateway.address(), "admin", {}, {}});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "quorvelctl: " + gateway.address() + " has no radio\n");
}

} // namespace quorvelctl::test
