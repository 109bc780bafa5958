#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

namespace
{

struct Case {
    const char* name;
    const char* arguments;
    int status;
    const char* output;
    const char* errors;
};

class QuorvelctlCommand : public QuorvelctlTest, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(QuorvelctlCommand, PrintsAndExitsAsExpected)
{
    const Outcome result = run(GetParam().arguments);
    EXPECT_EQ(result.output, GetParam().output);
    EXPECT_THAT(result.errors, HasSubstr(GetParam().errors));
    EXPECT_EQ(result.status, GetParam().status) << result.errors;
}

const Case cases[] = {
    {"InfoOfTheNewerGateway", "info", 0,
     "Model:           QV-4400X Home\n"
     "Serial number:   QV44X1720001903\n"
     "Firmware:        3.2.0-r7\n"
     "Ethernet MAC:    02:00:5E:10:01:01\n"
     "DSL MAC:         02:00:5E:10:01:02\n"
     "Wireless MAC:    02:00:5E:10:01:03\n"
     "Router mode:     router\n"
     "Default gateway: wan-1\n"
     "Functions:       general, adsl, ethernet, wan, wireless, voip, 3g, usbhost, pptp, l2tp, "
     "warranty\n",
     ""},
    {"Features", "features", 0,
     "Dialect:          1.0.1\n"
     "General settings: 1\n"
     "DSL:              1\n"
     "Ethernet WAN:     1\n"
     "WAN objects:      2\n"
     "Wireless:         1\n"
     "Telephony:        2\n"
     "3G modem:         1\n"
     "USB host:         1\n"
     "PPTP tunnels:     1\n"
     "L2TP tunnels:     1\n"
     "Warranty record:  1\n",
     ""},
    {"Clients", "clients", 0,
     "MAC                IP          NAME     ADDRESS IS\n"
     "02:00:5E:20:01:11  192.0.2.20  printer  reserved\n"
     "02-00-5e-20-01-12  192.0.2.21  nas      reserved\n"
     "02:00:5E:20:01:21  192.0.2.33  laptop   leased\n"
     "02:00:5E:20:01:22  192.0.2.34  phone    leased\n"
     "02:00:5E:20:01:23  192.0.2.35           leased\n",
     ""},
    {"InfoAsJson", "info --json", 0,
     "{\n"
     "    \"defaultGateway\": \"wan-1\",\n"
     "    \"dslMac\": \"02:00:5E:10:01:02\",\n"
     "    \"ethMac\": \"02:00:5E:10:01:01\",\n"
     "    \"firmware\": \"3.2.0-r7\",\n"
     "    \"functions\": [\n"
     "        \"general\",\n"
     "        \"adsl\",\n"
     "        \"ethernet\",\n"
     "        \"wan\",\n"
     "        \"wireless\",\n"
     "        \"voip\",\n"
     "        \"3g\",\n"
     "        \"usbhost\",\n"
     "        \"pptp\",\n"
     "        \"l2tp\",\n"
     "        \"warranty\"\n"
     "    ],\n"
     "    \"model\": \"QV-4400X Home\",\n"
     "    \"routerMode\": \"router\",\n"
     "    \"serialNumber\": \"QV44X1720001903\",\n"
     "    \"wlanMac\": \"02:00:5E:10:01:03\"\n"
     "}\n",
     ""},
    {"Hints", "hints", 0,
     "Restart is due:           no\n"
     "Restart takes about (ms): 90000\n"
     "Upgrade takes about (ms): 240000\n"
     "User names end with:      @example.net\n",
     ""},
    {"HintsAsJson", "hints --json", 0,
     "{\n"
     "    \"fwUpgradeDurationMs\": 240000,\n"
     "    \"rebootDurationMs\": 90000,\n"
     "    \"rebootRequired\": false,\n"
     "    \"usernameExtension\": \"@example.net\"\n"
     "}\n",
     ""},
    {"FeaturesAsJson", "features --json", 0,
     "{\n"
     "    \"3g\": \"1\",\n"
     "    \"adsl\": \"1\",\n"
     "    \"ethernet\": \"1\",\n"
     "    \"general\": \"1\",\n"
     "    \"l2tp\": \"1\",\n"
     "    \"pptp\": \"1\",\n"
     "    \"usbhost\": \"1\",\n"
     "    \"voip\": \"2\",\n"
     "    \"wan\": \"2\",\n"
     "    \"warranty\": \"1\",\n"
     "    \"wireless\": \"1\",\n"
     "    \"xml\": \"1.0.1\"\n"
     "}\n",
     ""},
    {"SessionHidesTheCookie", "session", 0,
     "Session: ********\n"
     "Valid:   yes\n",
     ""},
    {"WarrantyAsJson", "warranty show --json", 0,
     "{\n"
     "    \"email\": \"\",\n"
     "    \"name\": \"\",\n"
     "    \"phone\": \"\",\n"
     "    \"timestamp\": \"\",\n"
     "    \"token\": \"\",\n"
     "    \"usertoken\": \"\"\n"
     "}\n",
     ""},
    {"OptionsMayStandInFront", "--json warranty set --name Ada", 0,
     "{\n"
     "    \"done\": \"The warranty record is stored.\"\n"
     "}\n",
     ""},
    {"NoCommandIsWrongUsage", "", 2, "",
     "quorvelctl: what to do? quorvelctl --help lists the commands\n"},
    {"AnUnknownCommandIsWrongUsage", "dance", 2, "",
     "quorvelctl: The following argument was not expected: dance; quorvelctl --help tells more\n"},
    {"AnUnknownCommandOfAGroupIsWrongUsage", "password dance", 2, "",
     "quorvelctl: The following argument was not expected: dance; quorvelctl password --help tells "
     "more\n"},
    {"AnUnknownOptionIsWrongUsage", "info --loud", 2, "", "--loud"},
    {"AGroupAloneIsWrongUsage", "password", 2, "",
     "quorvelctl: what to do? quorvelctl password --help lists the commands\n"},
    {"AnUnknownLogLevelIsWrongUsage", "info --log-level loud", 2, "", "loud"},
    {"AWarrantyWriteWithoutTextIsWrongUsage", "warranty set", 2, "",
     "quorvelctl: name at least one text of the record\n"},
    {"AnotherSchemeIsWrongUsage", "info --address https://192.0.2.1", 2, "",
     "gateways are reached by plain http only: https://192.0.2.1"},
    {"ASchemeAloneIsWrongUsage", "info --address http://", 2, "", "no address: http://"},
    {"APortThatThereIsNotIsWrongUsage", "info --address 192.0.2.1:65536", 2, "",
     "no address: 192.0.2.1:65536"},
    {"APort0IsWrongUsage", "info --address 192.0.2.1:0", 2, "", "no address: 192.0.2.1:0"},
    {"APortOfLettersIsWrongUsage", "info --address 192.0.2.1:http", 2, "",
     "no address: 192.0.2.1:http"},
    {"AnAddressWithAPathIsWrongUsage", "info --address http://192.0.2.1/index.html", 2, "",
     "no address: http://192.0.2.1/index.html"},
    {"AnAddressWithAQueryIsWrongUsage", "info --address 192.0.2.1/?q=1", 2, "",
     "no address: 192.0.2.1/?q=1"},
    {"ALoginInAnAddressIsWrongUsage", "info --address ada:secret@192.0.2.1", 2, "",
     "user and password don't belong to the address; quorvelctl info --help tells more\n"},
    {"AnEmptyAddressIsWrongUsage", "info --address=", 2, "", "address"},
    {"AHugeNumberIsWrongUsage", "phone history --line 99999999999999999999", 2, "", "--line"},
    {"TwoSourcesOfOneSecretAreWrongUsage", "info --password-stdin --password-file x", 2, "",
     "excludes"},
    {"APasswordFileThatIsNoneIsWrongUsage", "info --password-file /nonexistent", 2, "",
     "quorvelctl: can't read /nonexistent: No such file or directory\n"},
    {"ACandidateIsNeeded", "password check", 2, "",
     "quorvelctl: no password to check: give --candidate-file, --candidate-stdin or the "
     "environment variable QUORVELCTL_CANDIDATE\n"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlCommand, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

class Quorvelctl : public QuorvelctlTest
{
};

TEST_F(Quorvelctl, ListsTheManagers)
{
    const Outcome result = run("managers");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output.substr(0, 8), "MANAGER\n");
    EXPECT_THAT(result.output, HasSubstr("\nusbhost_mngr\n"));
}

TEST_F(Quorvelctl, LeavesARenewedSessionOutOfTheManagers)
{
    const Outcome undisturbed = run("managers");
    // Recognition asks twice before.
    spoil("session-expired 1 key=mngr_list after=2");
    EXPECT_EQ(run("managers").output, undisturbed.output);
    EXPECT_EQ(simulator.sessionNumber(), 2u);
}

TEST_F(Quorvelctl, ListsClientsAsJson)
{
    simulator.setValue("dhcps-0", "client1.mac", "00:00:00:00:00:00");
    for (const char* lease : {"lease0.mac", "lease1.mac"})
        simulator.setStatus("dhcps-0", lease, "000000000000");
    EXPECT_EQ(run("clients --json").output, "[\n"
                                            "    {\n"
                                            "        \"hostname\": \"printer\",\n"
                                            "        \"ip\": \"192.0.2.20\",\n"
                                            "        \"kind\": \"reserved\",\n"
                                            "        \"mac\": \"02:00:5E:20:01:11\"\n"
                                            "    },\n"
                                            "    {\n"
                                            "        \"hostname\": \"\",\n"
                                            "        \"ip\": \"192.0.2.35\",\n"
                                            "        \"kind\": \"leased\",\n"
                                            "        \"mac\": \"02:00:5E:20:01:23\"\n"
                                            "    }\n"
                                            "]\n");
}

TEST_F(Quorvelctl, TakesAnAddressInTheFormsThatPeopleWrite)
{
    const std::string tidy = "Address: " + simulator.address() + "\nAnswers: yes\n";
    EXPECT_EQ(run("probe --address http://" + simulator.address()).output, tidy);
    EXPECT_EQ(run("probe --address HTTP://" + simulator.address() + "/").output, tidy);
}

// The question names the gateway before anything is sent.
TEST_F(Quorvelctl, PutsBracketsAroundAnAddressThatNeedsThem)
{
    const std::string answer = "n\n";
    for (const std::string address : {"2001:db8::1", "[2001:db8::1]"})
        EXPECT_THAT(run("reboot --address " + address, answer).errors,
                    HasSubstr("Restart the gateway at [2001:db8::1]? [y/N]"));
    EXPECT_THAT(run("reboot --address [2001:db8::1]:8080", answer).errors,
                HasSubstr("Restart the gateway at [2001:db8::1]:8080? [y/N]"));
}

TEST_F(Quorvelctl, ProbesWithoutALogin)
{
    EXPECT_EQ(run("probe").output, "Address: " + simulator.address() + "\nAnswers: yes\n");
    EXPECT_EQ(simulator.sessionNumber(), 0u);
}

TEST_F(Quorvelctl, WritesTheWarrantyTextsThatAreNamedAndKeepsTheOthers)
{
    simulator.setValue("warranty-0", "phone", "555-0100");
    EXPECT_EQ(run("warranty set --name Ada --email ada@example.net").status, 0);
    EXPECT_EQ(run("warranty show").output, "Name:       Ada\n"
                                           "Mail:       ada@example.net\n"
                                           "Phone:      555-0100\n"
                                           "Token:\n"
                                           "User token:\n"
                                           "Time stamp:\n");
    EXPECT_EQ(simulator.storedValue("warranty-0", "name"), "Ada");
    EXPECT_EQ(simulator.storedValue("warranty-0", "phone"), "555-0100");
}

TEST_F(Quorvelctl, TellsARefusedLogin)
{
    const Outcome result =
        runQuorvelctl("info --user guest", {simulator.address(), "admin", {}, {}});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "quorvelctl: " + simulator.address() + " refused the login of user 'guest'\n");
}

TEST_F(Quorvelctl, TellsAGatewayThatIsNotThere)
{
    simulator.stop();
    const Outcome result = run("info");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors, "quorvelctl: " + simulator.address() + " can't be reached\n");
    EXPECT_EQ(run("probe").status, 4);
}

TEST_F(Quorvelctl, RenewsASessionThatExpiredMeanwhile)
{
    spoil("session-expired 1 key=name");
    const Outcome result = run("warranty set --name Ada");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(simulator.storedValue("warranty-0", "name"), "Ada");
}

TEST_F(Quorvelctl, ShowsTheSessionThatTheCheckHadToRenew)
{
    spoil("session-expired 1 key=check_session");
    const Outcome result = run("session --show-secrets");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Valid:   yes\n"));
    const std::string cookie = result.output.substr(9, result.output.find('\n') - 9);
    EXPECT_THAT(simulator.exchanges().back().requestHead, HasSubstr("Cookie: " + cookie + "\r\n"));
}

TEST_F(Quorvelctl, TellsAResultThatCanNotBeWritten)
{
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    start(process, "features", {simulator.address(), "admin", {}, {}});
    ASSERT_TRUE(process.waitForFinished(100000));
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError().toStdString(), "quorvelctl: can't write the result\n");
}

TEST_F(Quorvelctl, TellsAResultThatNobodyTakes)
{
    const Outcome result = runQuorvelctl("features", {simulator.address(), "admin", {}, {}, ">&-"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "quorvelctl: can't write the result\n");
}

TEST_F(Quorvelctl, KeepsItsLinesOutOfItsConnections)
{
    const std::string undisturbed = run("features").output;
    simulator.clearExchanges();
    const Surroundings alone{simulator.address(), "admin", {}, {}, "<&- 2>&-"};
    const Outcome result = runQuorvelctl("features --log-level debug", alone);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, undisturbed);
    for (const auto& exchange : simulator.exchanges())
        EXPECT_THAT(exchange.replyHead, HasSubstr("HTTP/1.1 200 OK"));
}

TEST_F(Quorvelctl, ShowsHelpAndVersionWithoutAGateway)
{
    EXPECT_EQ(runQuorvelctl("--version", {}).output, "quorvelctl 1.0.0\n");
    const Outcome help = runQuorvelctl("--help", {});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("factory-reset"));
}

// U+009B starts a command of a terminal, as the escape character does.
TEST_F(Quorvelctl, NeverLetsControlCharactersReachTheTerminal)
{
    simulator.setValue("warranty-0", "name",
                       "a\xc2\x9b"
                       "2Jb");
    EXPECT_THAT(run("warranty show").output, HasSubstr("Name:       a\xef\xbf\xbd"
                                                       "2Jb\n"));
    EXPECT_THAT(run("warranty show --json").output, HasSubstr("\"name\": \"a\\u009b2Jb\""));
    simulator.setStatus("sysmgr-0", "fwversion",
                        "a\xc2\x9b"
                        "2Jb");
    const Outcome logged = run("info --log-level debug");
    EXPECT_EQ(logged.status, 0);
    EXPECT_THAT(logged.errors, HasSubstr("Firmware Version:a\xef\xbf\xbd"
                                         "2Jb\n"));
}

class QuorvelctlHints : public QuorvelctlTest
{
};

TEST_F(QuorvelctlHints, LeaveOutWhatTheGatewayDoesNotTell)
{
    spoil("error:5 key=reboot_req");
    simulator.setStatus("webui-0", "reboot_duration", "soon");
    const Outcome result = run("hints");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Upgrade takes about (ms): 240000\n"
                             "User names end with:      @example.net\n");
}

TEST_F(QuorvelctlHints, FailIfAQuestionGetsLost)
{
    spoil("close key=reboot_req");
    expectComplaint("hints", 4, "can't read the hints: the request failed on the way");
}

TEST(QuorvelctlComplaint, NeverLetsControlCharactersReachTheTerminal)
{
    const auto scenario = quorvel::simulator::Scenario::fromJson(
        "{\"base\": \"modern\", \"replies\": [{\"request\": \"<xmlrequest version='1.0.1'><query "
        "inst='devmgr-0'><key>inst_list</key><value>wan</value></query></xmlrequest>\", \"body\": "
        "\"<response version='1.0.1'><devmgr-0><key>wan0</key><value>a\xc2\x9b"
        "2Jb</value></devmgr-0></response>\"}]}",
        "here");
    ASSERT_TRUE(scenario);
    quorvel::simulator::GatewaySimulator gateway(*scenario);
    ASSERT_TRUE(gateway.start());
    Surroundings surroundings;
    surroundings.address = gateway.address();
    EXPECT_EQ(runQuorvelctl("wan show wan-9", surroundings).errors,
              "quorvelctl: " + gateway.address() +
                  " has no WAN 'wan-9', but a\xef\xbf\xbd"
                  "2Jb\n");
}

class QuorvelctlOnTheOlderGateway : public QuorvelctlTest
{
protected:
    QuorvelctlOnTheOlderGateway() : QuorvelctlTest("classic") {}
};

TEST_F(QuorvelctlOnTheOlderGateway, ShowsWhatItIs)
{
    const Outcome result = run("info");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Model:           QV-1200A\n"
                             "Serial number:   QV12A0830000417\n"
                             "Firmware:        1.4.12\n"
                             "Ethernet MAC:    02:00:5E:10:00:01\n"
                             "DSL MAC:         02:00:5E:10:00:02\n"
                             "Wireless MAC:    02:00:5E:10:00:03\n"
                             "Router mode:     router\n"
                             "Default gateway: wan-0\n"
                             "Functions:       general, adsl, wan, wireless, voip, warranty\n");
}

TEST_F(QuorvelctlOnTheOlderGateway, LeavesEmptyWhatItLacks)
{
    EXPECT_EQ(run("features").output, "Dialect:          1.0.0\n"
                                      "General settings: 1\n"
                                      "DSL:              1\n"
                                      "Ethernet WAN:\n"
                                      "WAN objects:      1\n"
                                      "Wireless:         1\n"
                                      "Telephony:        1\n"
                                      "3G modem:\n"
                                      "USB host:\n"
                                      "PPTP tunnels:\n"
                                      "L2TP tunnels:\n"
                                      "Warranty record:  1\n");
}

TEST_F(QuorvelctlOnTheOlderGateway, WritesAndReadsBack)
{
    EXPECT_EQ(run("warranty set --name Ada").status, 0);
    EXPECT_THAT(run("warranty show").output, HasSubstr("Name:       Ada\n"));
}

} // namespace quorvelctl::test
