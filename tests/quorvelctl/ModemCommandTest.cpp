#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

class QuorvelctlModem : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;

    Outcome setWith(const std::map<std::string, std::string>& variables,
                    const std::string& arguments = "modem set") const
    {
        return runQuorvelctl(arguments, {simulator.address(), "admin", {}, variables});
    }

    std::string stored(const std::string& key) const { return simulator.storedValue("wan-2", key); }
};

TEST_F(QuorvelctlModem, ShowsSettingsAndState)
{
    expectOutput("modem show", "WAN:             wan-2\n"
                               "Settings object: serial-0\n"
                               "SIM:             pin_required\n"
                               "PIN:\n"
                               "PUK:\n"
                               "APN:             internet.example.net\n"
                               "Active:          no\n"
                               "Operator:\n"
                               "Roaming:         no\n"
                               "Technology:      no service\n"
                               "Signal strength: 0\n"
                               "Preferred mode:  0\n"
                               "Modes:           automatic, 2G only, 3G only\n"
                               "Held to 3G:      no\n"
                               "IMEI:            490154203237518\n");
}

TEST_F(QuorvelctlModem, UnlocksTheSimAndHidesItsPin)
{
    const Outcome result = run("modem set --pin-stdin", "1234\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The modem's settings are stored.\n");
    expectOutput("modem show --json", "{\n"
                                      "    \"active\": true,\n"
                                      "    \"apn\": \"internet.example.net\",\n"
                                      "    \"connectionMode\": \"hsdpa mode\",\n"
                                      "    \"force3g\": false,\n"
                                      "    \"imei\": \"490154203237518\",\n"
                                      "    \"operatorName\": \"Example Mobile\",\n"
                                      "    \"pin\": \"********\",\n"
                                      "    \"prefMode\": 0,\n"
                                      "    \"prefModeList\": [\n"
                                      "        \"automatic\",\n"
                                      "        \"2G only\",\n"
                                      "        \"3G only\"\n"
                                      "    ],\n"
                                      "    \"puk\": \"\",\n"
                                      "    \"roaming\": false,\n"
                                      "    \"settingsInstance\": \"serial-0\",\n"
                                      "    \"signalStrength\": 21,\n"
                                      "    \"simPinStatus\": \"pin_ok\",\n"
                                      "    \"wan\": \"wan-2\"\n"
                                      "}\n");
    EXPECT_THAT(run("modem show --show-secrets").output, HasSubstr("PIN:             1234\n"));
}

TEST_F(QuorvelctlModem, ChangesWhatIsNamedAndLeavesTheRest)
{
    ASSERT_EQ(setWith({{"QUORVELCTL_PIN", "1234"}}).status, 0);
    expectOutput("modem set --apn web.example.net --pref-mode 2 --force3g true --json",
                 "{\n    \"done\": \"The modem's settings are stored.\"\n}\n");
    EXPECT_EQ(stored("apn"), "web.example.net");
    EXPECT_EQ(stored("prefmode"), "2");
    EXPECT_EQ(simulator.storedValue("serial-0", "force3g"), "1");
    EXPECT_EQ(stored("pin"), "1234");
    EXPECT_EQ(run("modem set --force3g false").status, 0);
    EXPECT_EQ(simulator.storedValue("serial-0", "force3g"), "0");
    EXPECT_EQ(stored("apn"), "web.example.net");
}

TEST_F(QuorvelctlModem, TellsAWrongPinAndDoesNotTryItAgain)
{
    const Outcome refused = setWith({{"QUORVELCTL_PIN", "1111"}});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors, "quorvelctl: the SIM refused the PIN\n");
    // Three attempts would lock it.
    for (const char* apn : {"a", "b", "c"})
        EXPECT_EQ(run(std::string("modem set --apn ") + apn).status, 0);
    EXPECT_EQ(stored("apn"), "c");
    EXPECT_EQ(setWith({{"QUORVELCTL_PIN", "1234"}}).status, 0);
}

TEST_F(QuorvelctlModem, UnlocksWithThePukAfterThreeWrongPins)
{
    const std::map<std::string, std::string> wrong{{"QUORVELCTL_PIN", "1111"}};
    EXPECT_EQ(setWith(wrong).status, 1);
    EXPECT_EQ(setWith(wrong).status, 1);
    const Outcome locked = setWith(wrong);
    EXPECT_EQ(locked.status, 1);
    EXPECT_EQ(locked.errors, "quorvelctl: the SIM asks for its PUK\n");
    const Outcome refused = setWith({{"QUORVELCTL_PIN", "9876"}, {"QUORVELCTL_PUK", "1"}});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errors, "quorvelctl: the SIM refused the PUK\n");
    // A PUK of before isn't tried again.
    EXPECT_EQ(run("modem set --apn a").status, 0);
    EXPECT_EQ(stored("puk"), "");
    EXPECT_EQ(setWith({{"QUORVELCTL_PIN", "9876"}, {"QUORVELCTL_PUK", "12345678"}}).status, 0);
    EXPECT_THAT(run("modem show").output, HasSubstr("SIM:             puk_ok\n"));
}

TEST_F(QuorvelctlModem, ReadsPinAndPukBehindTheLoginPassword)
{
    const Outcome result = runQuorvelctl("modem set --password-stdin --pin-stdin --puk-stdin",
                                         {simulator.address(), "", "admin\n1234\n12345678\n", {}});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("pin"), "1234");
    EXPECT_EQ(stored("puk"), "12345678");
}

TEST_F(QuorvelctlModem, RefusesWrongUsageBeforeItAsks)
{
    expectComplaint("modem set", 2, "name at least one setting of the modem");
    EXPECT_EQ(run("modem set --force3g maybe").status, 2);
    EXPECT_EQ(run("modem set --pref-mode much").status, 2);
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlModem, TakesAWanThatIsNamed)
{
    expectComplaint("modem show --wan wan-9", 1,
                    simulator.address() + " has no WAN 'wan-9', but wan-0, wan-1, wan-2");
    // A WAN that is no modem.
    expectComplaint("modem show --wan wan-1", 1,
                    "can't read the modem's settings: the gateway tells nothing of wan-1");
    EXPECT_EQ(run("modem show --wan wan-2").status, 0);
}

class QuorvelctlModemOfTheOlderGateway : public QuorvelctlModem
{
protected:
    QuorvelctlModemOfTheOlderGateway() : QuorvelctlModem("classic") {}
};

TEST_F(QuorvelctlModemOfTheOlderGateway, IsMissing)
{
    expectComplaint("modem show", 1, simulator.address() + " has no 3G modem");
    expectComplaint("modem set --apn a", 1, simulator.address() + " has no 3G modem");
}

} // namespace quorvelctl::test
