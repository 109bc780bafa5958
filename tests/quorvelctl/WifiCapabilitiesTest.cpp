#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::StartsWith;

class QuorvelctlWifiCapabilities : public QuorvelctlTest
{
protected:
    QuorvelctlWifiCapabilities() : QuorvelctlTest("dual") {}
};

TEST_F(QuorvelctlWifiCapabilities, DrawsChannelsAndWidthsPerBand)
{
    simulator.setStatus(
        "wireless-0", "wireless_capabilities",
        R"({"band": {"2400": {"text": "2.4 GHz", "defaultMode": "bgn", "defaultChannel": "6",
            "channels": {"1": {"show": 1, "freqVal": 2412, "zenPair": 1}, "none": 5,
                         "10": {"show": 1, "freqVal": 2457}, "2": {"freqVal": 2417}},
            "modes": {"b": {"chanbws": {"20": {}}},
                      "bgn": {"text": "802.11b/g/n", "defaultChannelBw": "40",
                              "chanbws": {"20": {"text": "20 MHz"}, "40": {"text": "40 MHz"}},
                              "securityModes": {"off": {}, "wpa2": {}}}}},
            "5000": {"defaultMode": "ac", "defaultChannel": "52",
                     "channels": {"52": {"show": 1, "dfs": 1, "freqVal": 5260}}}}})");
    const Outcome result = run("wifi capabilities --radio wireless-0");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "wireless-0, 2.4 GHz: default mode bgn, default channel 6\n"
                             "\n"
                             "MODE  NAME         CHANNEL WIDTHS            SECURITY MODES\n"
                             "b                  20\n"
                             "bgn   802.11b/g/n  20 MHz, 40 MHz (default)  off, wpa2\n"
                             "\n"
                             "CHANNEL  FREQUENCY  DFS  PAIRING  SHOWN\n"
                             "1        2412       no   yes      yes\n"
                             "2        2417       no   no       no\n"
                             "10       2457       no   no       yes\n"
                             "\n"
                             "wireless-0, 5000: default mode ac, default channel 52\n"
                             "\n"
                             "No modes.\n"
                             "\n"
                             "CHANNEL  FREQUENCY  DFS  PAIRING  SHOWN\n"
                             "52       5260       yes  no       yes\n");
}

TEST_F(QuorvelctlWifiCapabilities, GivesTheWholeTreeAsJson)
{
    simulator.setStatus("wireless-0", "wireless_capabilities",
                        R"({"band": {"6000": {"later": [1, "x"]}}, "apPrefix": ["ap0"]})");
    const Outcome result = run("wifi capabilities --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "quorvelctl: what the radio can do isn't told by wireless_core-0\n");
    EXPECT_EQ(result.output, "[\n"
                             "    {\n"
                             "        \"capabilities\": {\n"
                             "            \"apPrefix\": [\n"
                             "                \"ap0\"\n"
                             "            ],\n"
                             "            \"band\": {\n"
                             "                \"6000\": {\n"
                             "                    \"later\": [\n"
                             "                        1,\n"
                             "                        \"x\"\n"
                             "                    ]\n"
                             "                }\n"
                             "            }\n"
                             "        },\n"
                             "        \"radio\": \"wireless-0\"\n"
                             "    }\n"
                             "]\n");
}

TEST_F(QuorvelctlWifiCapabilities, SayThatThereIsNothingToDraw)
{
    simulator.setStatus("wireless-0", "wireless_capabilities", R"({"band": {"6000": {}}})");
    expectOutput("wifi capabilities --radio wireless-0",
                 "wireless-0: neither the 2.4 GHz band nor that of 5 GHz\n");
}

TEST_F(QuorvelctlWifiCapabilities, DrawsTheScenariosRadio)
{
    const Outcome result = run("wifi capabilities");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output,
                StartsWith("wireless-0, 2.4 GHz: default mode 11ng, default channel 6\n"));
    EXPECT_THAT(result.output,
                HasSubstr("\nwireless-0, 5 GHz: default mode 11ac, default channel 36\n"));
    EXPECT_THAT(result.output,
                HasSubstr("\n11ac  802.11ac   20 MHz, 40 MHz, 80 MHz (default)  off, wpa2\n"));
    EXPECT_THAT(result.output, HasSubstr("\n52       5260       yes  no       yes\n"));
}

TEST_F(QuorvelctlWifiCapabilities, AreMissedWhereNoneCanBeRead)
{
    const Outcome older = run("wifi capabilities --radio wireless_core-0");
    EXPECT_EQ(older.status, 1);
    EXPECT_EQ(older.output, "");
    EXPECT_EQ(older.errors, "quorvelctl: what the radio can do isn't told by wireless_core-0\n");
    simulator.setStatus("wireless-0", "wireless_capabilities", "no JSON");
    const Outcome none = run("wifi capabilities --json");
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.output, "");
    EXPECT_EQ(none.errors,
              "quorvelctl: what the radio can do isn't told by wireless-0, wireless_core-0\n");
}

} // namespace quorvelctl::test
