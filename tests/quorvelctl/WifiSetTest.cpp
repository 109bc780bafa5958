#include "QuorvelctlRun.h"

#include <QTemporaryFile>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::Not;

namespace
{

const std::string older = " --radio wireless_core-0 ";
const std::string newer = " --radio wireless-0 ";

/// A write that is refused, at once or after reading.
struct Refusal {
    const char* name;
    std::string arguments;
    const char* input;
    int status;
    /// After "quorvelctl: ".
    const char* complaint;
};

class QuorvelctlWifiSet : public QuorvelctlTest
{
protected:
    QuorvelctlWifiSet() : QuorvelctlTest("dual") {}

    std::string stored(const char* instance, const char* key) const
    {
        return simulator.storedValue(instance, key);
    }
};

class QuorvelctlWifiSetRefused : public QuorvelctlWifiSet,
                                 public testing::WithParamInterface<Refusal>
{
};

class QuorvelctlWifiSetOnTheOlderGateway : public QuorvelctlTest
{
protected:
    QuorvelctlWifiSetOnTheOlderGateway() : QuorvelctlTest("classic") {}
};

} // namespace

TEST_F(QuorvelctlWifiSet, ChangesOnlyWhatIsNamed)
{
    const Outcome result = run("wifi set" + older + "--ssid Garden");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The settings of wireless_core-0 are written.\n");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Garden");
    EXPECT_EQ(stored("wireless_ap-0", "sec_mode"), "wpa_both");
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), "radio-secret-2001");
    EXPECT_EQ(stored("wireless_core-0", "enabled"), "1");
    EXPECT_EQ(stored("wireless-0", "ap0_ssid"), "quorvel-2001-5g");
}

TEST_F(QuorvelctlWifiSet, LeavesARadioOffThatIsOff)
{
    simulator.setValue("wireless_core-0", "enabled", "0");
    EXPECT_EQ(run("wifi set" + older + "--ssid Garden").status, 0);
    EXPECT_EQ(stored("wireless_core-0", "enabled"), "0");
    EXPECT_EQ(run("wifi set" + older + "--on").status, 0);
    EXPECT_EQ(stored("wireless_core-0", "enabled"), "1");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Garden");
}

TEST_F(QuorvelctlWifiSet, WritesANewerRadioAlone)
{
    const Outcome result =
        run("wifi set" + newer + "--ssid Garden --key-stdin --off --json", "new secret key\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n    \"done\": \"The settings of wireless-0 are written.\"\n}\n");
    EXPECT_EQ(stored("wireless-0", "ap0_ssid"), "Garden");
    EXPECT_EQ(stored("wireless-0", "ap0_wpa_password"), "new secret key");
    EXPECT_EQ(stored("wireless-0", "ap0_security_mode"), "wpa2");
    EXPECT_EQ(stored("wireless-0", "enabled"), "0");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "quorvel-2001");
}

TEST_F(QuorvelctlWifiSet, TakesKeysFromFileInputAndEnvironmentEachForItsRadio)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("key of the file\n");
    file.flush();
    const std::string path = file.fileName().toStdString();
    EXPECT_EQ(run("wifi set --radio wireless_core-0 --key-file " + path +
                      " --radio wireless-0 --on --key-stdin",
                  "key of the input\n")
                  .status,
              0);
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), "key of the file");
    EXPECT_EQ(stored("wireless-0", "ap0_wpa_password"), "key of the input");
    const Surroundings surroundings{
        simulator.address(), "admin", {}, {{"GARDEN_KEY", "key of the surroundings"}}};
    EXPECT_EQ(runQuorvelctl("wifi set" + older + "--key-env GARDEN_KEY", surroundings).status, 0);
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), "key of the surroundings");
}

TEST_F(QuorvelctlWifiSet, ReadsTheLoginPasswordFirstAndThenTheKeysInOrder)
{
    const Outcome result =
        runQuorvelctl("wifi set --radio wireless_core-0 --key-stdin --radio "
                      "wireless-0 --on --key-stdin --password-stdin",
                      {simulator.address(), "", "admin\nfirst key\nother key\n", {}});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The settings of wireless_core-0, wireless-0 are written.\n");
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), "first key");
    EXPECT_EQ(stored("wireless-0", "ap0_wpa_password"), "other key");
}

TEST_F(QuorvelctlWifiSet, WritesAllRadiosInOneRequest)
{
    // A second write would be refused.
    spoil("error:9 key=apply after=1");
    const Outcome result = run("wifi set --radio all --ssid Home --on");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Home");
    EXPECT_EQ(stored("wireless-0", "ap0_ssid"), "Home");
}

TEST_F(QuorvelctlWifiSet, ChangesTheSecurityMode)
{
    EXPECT_EQ(run("wifi set" + older +
                      "--security wep --wep-auth-type shared --wep-key-type ascii "
                      "--wep-key-index 1 --key-stdin",
                  "abcde\n")
                  .status,
              0);
    EXPECT_EQ(stored("wireless_ap-0", "sec_mode"), "wep");
    EXPECT_EQ(stored("wireless_ap-0", "wep_auth_type"), "shared");
    EXPECT_EQ(stored("wireless_ap-0", "wep_key_type"), "ascii");
    EXPECT_EQ(stored("wireless_ap-0", "wep_key1"), "abcde");
    EXPECT_EQ(run("wifi set" + older + "--security off").status, 0);
    EXPECT_EQ(stored("wireless_ap-0", "sec_mode"), "off");
    // The pass phrase is still there, so none has to be given.
    EXPECT_EQ(run("wifi set" + older + "--security wpa_both").status, 0);
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), "radio-secret-2001");
}

TEST_F(QuorvelctlWifiSet, TakesTheLengthsThatPassPhrasesCanHave)
{
    const auto rekey = [&](const std::string& key) {
        return run("wifi set" + older + "--key-stdin", key + "\n").status;
    };
    for (const std::string& key :
         {std::string("12345678"), std::string(63, 'k'), std::string(64, 'F')}) {
        EXPECT_EQ(rekey(key), 0) << key;
        EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), key);
    }
    for (const std::string& key : {std::string("1234567"), std::string(64, 'k'),
                                   std::string(65, 'F'), std::string("pass phr\xc3\xa4se")})
        EXPECT_EQ(rekey(key), 2) << key;
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), std::string(64, 'F'));
}

TEST_F(QuorvelctlWifiSet, CountsNamesInBytes)
{
    std::string name = "ab";
    for (int i = 0; i < 10; ++i)
        name += "\xe2\x82\xac";
    EXPECT_EQ(run("wifi set" + older + "--ssid " + name).status, 0);
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), name);
    EXPECT_EQ(run("wifi set" + older + "--ssid x" + name).errors,
              "quorvelctl: the name of a network has 1 to 32 bytes, not 33\n");
}

TEST_F(QuorvelctlWifiSet, GuessesNoState)
{
    simulator.setValue("wireless_core-0", "enabled", "2");
    const Outcome result = run("wifi set" + older + "--ssid Garden");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "quorvelctl: wireless_core-0 doesn't tell whether it is on, and is "
                             "switched on or off with each change: add --on or --off\n");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "quorvel-2001");
}

TEST_F(QuorvelctlWifiSet, TakesAnyModeForARadioThatTellsNone)
{
    simulator.setStatus("wireless-0", "wireless_capabilities", "no JSON");
    const Outcome result = run("wifi set" + newer + "--on --security WEP --key-stdin", "abcde\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("wireless-0", "ap0_security_mode"), "WEP");
    EXPECT_EQ(stored("wireless-0", "ap0_wep_key1"), "abcde");
}

// A new key is written as the first, which does nothing while another one is in use.
TEST_F(QuorvelctlWifiSet, ChangesNoWepKeyThatIsNotInUse)
{
    simulator.setValue("wireless_ap-0", "sec_mode", "wep");
    simulator.setValue("wireless_ap-0", "wep_key_index", "2");
    simulator.setValue("wireless_ap-0", "wep_key1", "first");
    const Outcome refused = run("wifi set" + older + "--key-stdin", "other\n");
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.errors, "quorvelctl: wireless_core-0 uses WEP key 2, and only key 1 can be "
                              "changed: add --wep-key-index 1\n");
    EXPECT_EQ(stored("wireless_ap-0", "wep_key1"), "first");
    EXPECT_EQ(run("wifi set" + older + "--key-stdin --wep-key-index 1", "other\n").status, 0);
    EXPECT_EQ(stored("wireless_ap-0", "wep_key1"), "other");
    EXPECT_EQ(stored("wireless_ap-0", "wep_key_index"), "1");
    simulator.setValue("wireless-0", "ap0_security_mode", "wep");
    simulator.setValue("wireless-0", "ap0_wep_keyindex", "4");
    EXPECT_EQ(run("wifi set" + newer + "--on --key-stdin", "other\n").errors,
              "quorvelctl: wireless-0 uses WEP key 4, and only key 1 can be changed\n");
    EXPECT_EQ(stored("wireless-0", "ap0_wep_key1"), "");
}

TEST_F(QuorvelctlWifiSet, LeavesANetworkWithoutAKeyThatHasNone)
{
    simulator.setValue("wireless_ap-0", "wpa_password", "");
    const Outcome result = run("wifi set" + older + "--ssid Office");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Office");
    EXPECT_EQ(run("wifi set" + older + "--security wpa_both").status, 2);
}

TEST_F(QuorvelctlWifiSet, NeverShowsTheKey)
{
    const Outcome result =
        run("wifi set" + older + "--key-stdin --log-level debug", "new secret key\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("secret")));
}

// Silence is taken for the restart of a radio, a broken connection isn't.
TEST_F(QuorvelctlWifiSet, TakesAnUnreadableReplyForSuccess)
{
    spoil("html key=apply");
    const Outcome result = run("wifi set --radio all --ssid Home --on");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("wireless-0", "ap0_ssid"), "Home");
}

TEST_F(QuorvelctlWifiSet, TakesSilenceForSuccess)
{
    spoil("hang key=apply");
    const Outcome result = run("wifi set --radio wireless_core-0 --ssid Home");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Home");
}

TEST_F(QuorvelctlWifiSet, TellsABrokenConnectionThoughTheWriteIsDone)
{
    spoil("radio-restart");
    const Outcome result = run("wifi set --radio wireless_core-0 --ssid Home");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "quorvelctl: can't write the settings of wireless_core-0: the request "
                             "failed on the way\n");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Home");
}

TEST_P(QuorvelctlWifiSetRefused, ChangesNothing)
{
    const Outcome result = run("wifi set" + GetParam().arguments, GetParam().input);
    EXPECT_EQ(result.status, GetParam().status);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, std::string("quorvelctl: ") + GetParam().complaint + "\n");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "quorvel-2001");
    EXPECT_EQ(stored("wireless-0", "ap0_ssid"), "quorvel-2001-5g");
    EXPECT_EQ(stored("wireless_ap-0", "wpa_password"), "radio-secret-2001");
}

const Refusal refusals[] = {
    {"WithoutAChange", "", "", 2, "name at least one thing to change"},
    {"WithoutAChangeOfThatRadio", newer + "--on" + older, "", 2,
     "name at least one thing to change at wireless_core-0"},
    {"WithoutARadio", " --ssid Home", "", 2,
     "which radio? Choose by --radio from wireless-0, wireless_core-0"},
    {"OfAnUnknownRadio", " --radio wireless-1 --ssid Home", "", 2,
     "no radio wireless-1, but there is wireless-0, wireless_core-0"},
    {"WithOptionsInFront", " --ssid Home" + older + "--on", "", 2,
     "options in front of the first --radio belong to no radio"},
    {"OfARadioThatIsNamedTwice", older + "--ssid Home --radio all --on", "", 2,
     "wireless_core-0 is named twice"},
    {"WithoutAState", newer + "--ssid Home", "", 2,
     "wireless-0 doesn't tell whether it is on, and is switched on or off with each change: add "
     "--on or --off"},
    {"WithALongName", older + "--ssid 123456789012345678901234567890123", "", 2,
     "the name of a network has 1 to 32 bytes, not 33"},
    {"WithAWepKeyThatIsNone", older + "--wep-key-index 5", "", 2,
     "the WEP keys are 1 to 4, and not '5'"},
    {"WithControlCharacters", older + "--ssid Ho\x01me", "", 2,
     "no control characters can be written"},
    {"WithAnUnknownMode", newer + "--on --security wep", "", 2,
     "wireless-0 has no security mode 'wep', but off, wpa2"},
    {"WithWepDetailsOfANewerRadio", newer + "--on --wep-key-index 2", "", 2,
     "wireless-0 takes a WEP key, and nothing else about WEP"},
    {"WithAKeyForAnOpenNetwork", older + "--security off --key-stdin", "new secret key\n", 2,
     "no key goes with the security mode 'off' of wireless_core-0"},
    {"WithAShortKey", older + "--key-stdin", "1234567\n", 2,
     "the new key of wireless_core-0 is neither 8 to 63 plain characters nor 64 hexadecimal "
     "digits"},
    {"WithoutAKeyWhereOneIsNeeded", older + "--security wep", "", 2,
     "the security mode 'wep' of wireless_core-0 needs a key"},
    {"WithAnInputThatEnds", older + "--key-stdin", "", 2,
     "standard input ends before the new key of wireless_core-0"},
    {"WithAVariableThatIsNotThere", older + "--key-env NO_SUCH_VARIABLE", "", 2,
     "no new key of wireless_core-0: there is no environment variable NO_SUCH_VARIABLE"},
    {"BothOnAndOff", older + "--on --off", "", 2, "the state is given twice for wireless_core-0"},
    {"WithTwoNames", newer + "--ssid Home --on --ssid Attic", "", 2,
     "the ssid is given twice for wireless-0"},
    {"WithTwoKeys", older + "--key-stdin --key-file /nonexistent", "new secret key\n", 2,
     "the key is given twice for wireless_core-0"},
    {"WithTwoModesOfTheOnlyRadio", " --security off --security wep", "", 2,
     "the security is given twice"},
    {"WithAFileThatIsNotThere", older + "--key-file /nonexistent", "", 2,
     "can't read /nonexistent: No such file or directory"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlWifiSetRefused, testing::ValuesIn(refusals),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(QuorvelctlWifiSet, QuotesTheGatewayWithoutItsControlCharacters)
{
    simulator.setStatus("wireless-0", "wireless_capabilities",
                        R"({"band": {"5000": {"modes": {"11ac": {"securityModes":
                            {"a\u001b[2J\n\u009bb": {}}}}}}})");
    EXPECT_EQ(run("wifi set" + newer + "--on --security wep").errors,
              "quorvelctl: wireless-0 has no security mode 'wep', but "
              "a\xef\xbf\xbd[2J\xef\xbf\xbd\xef\xbf\xbd"
              "b\n");
}

TEST_F(QuorvelctlWifiSet, SendsNothingIfTheCommandLineIsWrong)
{
    EXPECT_EQ(run("wifi set" + older + "--key-file /nonexistent").status, 2);
    EXPECT_EQ(run("wifi set" + older).status, 2);
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlWifiSet, ChangesNoRadioIfOneIsRefused)
{
    spoil("command-fails:12 key=ap0_ssid after=1");
    const Outcome result = run("wifi set --radio all --ssid Home --on");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "quorvelctl: can't write the settings of wireless-0, "
                             "wireless_core-0: the gateway reports error 11\n");
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "quorvel-2001");
    EXPECT_EQ(stored("wireless-0", "ap0_ssid"), "quorvel-2001-5g");
}

TEST_F(QuorvelctlWifiSetOnTheOlderGateway, WritesItsOnlyRadio)
{
    const Outcome result = run("wifi set --ssid Home --key-stdin", "new secret key\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The settings of wireless_core-0 are written.\n");
    EXPECT_EQ(simulator.storedValue("wireless_ap-0", "ssid"), "Home");
    EXPECT_EQ(simulator.storedValue("wireless_ap-0", "wpa_password"), "new secret key");
}

TEST(QuorvelctlWifiSetWithTwoOlderRadios, WritesTheFirstOnly)
{
    auto scenario = *quorvel::simulator::Scenario::load("classic");
    scenario.configuration["wireless_core-1"] = scenario.configuration["wireless_core-0"];
    quorvel::simulator::GatewaySimulator gateway(scenario);
    std::string error;
    ASSERT_TRUE(gateway.start(&error)) << error;
    const Outcome result = runQuorvelctl("wifi set --radio wireless_core-1 --ssid Home",
                                         {gateway.address(), "admin", {}, {}});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "quorvelctl: can't write the settings of wireless_core-1: of older "
                             "radios only wireless_core-0 can be written\n");
    EXPECT_EQ(gateway.storedValue("wireless_ap-0", "ssid"), "quorvel-0417");
}

TEST(QuorvelctlWifiSetInTheOlderDialect, WritesOneOlderRadioAtATime)
{
    auto scenario = *quorvel::simulator::Scenario::load("dual");
    scenario.dialect = "1.0.0";
    quorvel::simulator::GatewaySimulator gateway(scenario);
    std::string error;
    ASSERT_TRUE(gateway.start(&error)) << error;
    const Surroundings surroundings{gateway.address(), "admin", {}, {}};
    const std::string reason = ": the gateway's dialect 1.0.0 knows only one older radio at a time";
    for (const auto& [radios, names] :
         {std::pair<std::string, std::string>(" --radio all ", "wireless-0, wireless_core-0"),
          {newer, "wireless-0"}}) {
        const Outcome result =
            runQuorvelctl("wifi set" + radios + "--ssid Home --on", surroundings);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errors,
                  "quorvelctl: can't write the settings of " + names + reason + "\n");
    }
    EXPECT_EQ(gateway.storedValue("wireless_ap-0", "ssid"), "quorvel-2001");
    EXPECT_EQ(gateway.storedValue("wireless-0", "ap0_ssid"), "quorvel-2001-5g");
    EXPECT_EQ(runQuorvelctl("wifi set" + older + "--ssid Home", surroundings).status, 0);
    EXPECT_EQ(gateway.storedValue("wireless_ap-0", "ssid"), "Home");
}

TEST_F(QuorvelctlWifiSetOnTheOlderGateway, TellsAWriteThatWasRefused)
{
    spoil("error:9 key=apply");
    const Outcome result = run("wifi set --ssid Home");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "quorvelctl: can't write the settings of wireless_core-0: the "
                             "gateway reports error 9\n");
}

} // namespace quorvelctl::test
