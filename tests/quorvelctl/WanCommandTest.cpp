#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

class QuorvelctlWan : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;

    /// What is complained of a WAN that isn't there.
    std::string lacking(const std::string& wan) const
    {
        return simulator.address() + " has no WAN '" + wan + "', but wan-0, wan-1, wan-2";
    }
};

TEST_F(QuorvelctlWan, ListsTheWans)
{
    expectOutput("wan list",
                 "WAN    LAYER 2  LINK TYPE  ENABLED  CONNECTED  IP ADDRESS     DEFAULT GATEWAY\n"
                 "wan-0  dsl      pppoe      no       no                        no\n"
                 "wan-1  eth      dhcp       yes      yes        198.51.100.23  yes\n"
                 "wan-2  serial   3g         no       no                        no\n");
}

TEST_F(QuorvelctlWan, LeavesARenewedSessionOutOfTheList)
{
    const Outcome undisturbed = run("wan list --json");
    EXPECT_THAT(undisturbed.output, HasSubstr("[\n"
                                              "    {\n"
                                              "        \"connectionType\": \"dsl\",\n"
                                              "        \"defaultGateway\": false,\n"
                                              "        \"enabled\": false,\n"
                                              "        \"isConnected\": false,\n"
                                              "        \"linkType\": \"pppoe\",\n"
                                              "        \"localIp\": \"\",\n"
                                              "        \"wan\": \"wan-0\"\n"
                                              "    },\n"));
    spoil("session-expired 1 key=inst_list");
    EXPECT_EQ(run("wan list --json").output, undisturbed.output);
    EXPECT_EQ(simulator.sessionNumber(), 2u);
}

TEST_F(QuorvelctlWan, ShowsWhatAWanIsMadeOf)
{
    expectOutput("wan show wan-0",
                 "WAN:                      wan-0\n"
                 "Layer 2:                  dsl\n"
                 "Link type:                pppoe\n"
                 "Enabled:                  no\n"
                 "Connected:                no\n"
                 "IP address:\n"
                 "Link types over DSL:      pppoe, pppoa, russian_pppoe, dhcp, static, bridge\n"
                 "Link types over Ethernet:\n"
                 "PPP entity:               pppox-0\n"
                 "PVC entity:               pvc-0\n"
                 "RFC 2684 entity:          rfc2684-0\n"
                 "VLAN entity:\n"
                 "DHCP client entity:       dhcpc-1\n"
                 "Static address entity:    static-0\n"
                 "VPN entities:\n");
}

TEST_F(QuorvelctlWan, ShowsAWanAsJson)
{
    expectOutput("wan show wan-1 --json", "{\n"
                                          "    \"connectionType\": \"eth\",\n"
                                          "    \"dhcpcInstance\": \"dhcpc-0\",\n"
                                          "    \"dslLinkTypes\": [\n"
                                          "    ],\n"
                                          "    \"enabled\": true,\n"
                                          "    \"ethLinkTypes\": [\n"
                                          "        \"dhcp\",\n"
                                          "        \"pppoe\",\n"
                                          "        \"russian_pppoe\",\n"
                                          "        \"vpn\",\n"
                                          "        \"l2tp\",\n"
                                          "        \"static\",\n"
                                          "        \"bridge\"\n"
                                          "    ],\n"
                                          "    \"isConnected\": true,\n"
                                          "    \"linkType\": \"dhcp\",\n"
                                          "    \"localIp\": \"198.51.100.23\",\n"
                                          "    \"pppoxInstance\": \"pppox-1\",\n"
                                          "    \"pvcInstance\": \"\",\n"
                                          "    \"rfc2684Instance\": \"\",\n"
                                          "    \"staticInstance\": \"static-1\",\n"
                                          "    \"vpnInstances\": [\n"
                                          "        \"vpn-0\"\n"
                                          "    ],\n"
                                          "    \"wan\": \"wan-1\",\n"
                                          "    \"wanVlanInstance\": \"wan_vlan-0\"\n"
                                          "}\n");
}

TEST_F(QuorvelctlWan, ShowsTheStatus)
{
    expectOutput("wan status", "Default WAN:          wan-1\n"
                               "Alias default WAN:    wan-0\n"
                               "In use:               wan-1\n"
                               "In use by link state: wan-1\n"
                               "Internet:             connected\n"
                               "DSL link is up:       yes\n"
                               "Ethernet link is up:  yes\n");
}

TEST_F(QuorvelctlWan, ShowsTheStatusWithoutALinkAsJson)
{
    simulator.setStatus("eth-0", "linkstate", "0");
    // No candidate is in use: the first one stands for them all, or the first with a link.
    expectOutput("wan status --json", "{\n"
                                      "    \"aliasDefaultWan\": \"wan-0\",\n"
                                      "    \"defaultWan\": \"wan-1\",\n"
                                      "    \"dslLink\": true,\n"
                                      "    \"ethLink\": false,\n"
                                      "    \"inUse\": \"wan-0\",\n"
                                      "    \"inUseByLinkState\": \"wan-0\",\n"
                                      "    \"internet\": \"disconnected\"\n"
                                      "}\n");
}

TEST_F(QuorvelctlWan, AsksTheDefaultWanOfAGatewayThatTellsNoInternetState)
{
    simulator.setStatus("route-0", "internet_connection", "perhaps");
    EXPECT_THAT(run("wan status").output, HasSubstr("Internet:             connected\n"));
}

TEST_F(QuorvelctlWan, SwitchesAWanOnAndOff)
{
    expectOutput("wan disable wan-1", "wan-1 is disabled.\n");
    EXPECT_EQ(simulator.storedValue("wan-1", "enabled"), "0");
    expectOutput("wan enable wan-1 --json", "{\n    \"done\": \"wan-1 is enabled.\"\n}\n");
    EXPECT_EQ(simulator.storedValue("wan-1", "enabled"), "1");
}

TEST_F(QuorvelctlWan, MakesAnotherWanTheDefaultGatewayUntilARestart)
{
    expectOutput("wan switch wan-0 --enable wan-0,wan-2 --disable wan-1",
                 "wan-0 is the default gateway until the gateway restarts.\n");
    expectOutput("wan list",
                 "WAN    LAYER 2  LINK TYPE  ENABLED  CONNECTED  IP ADDRESS     DEFAULT GATEWAY\n"
                 "wan-0  dsl      pppoe      yes      yes        198.51.100.24  yes\n"
                 "wan-1  eth      dhcp       no       no                        no\n"
                 "wan-2  serial   3g         yes      no                        no\n");
    EXPECT_EQ(simulator.storedValue("route-0", "default_gw"), "wan-1");
}

TEST_F(QuorvelctlWan, TakesWansToSwitchOneByOneToo)
{
    EXPECT_EQ(run("wan switch --enable wan-0 --enable wan-2 wan-0").status, 0);
    EXPECT_THAT(run("wan show wan-2").output, HasSubstr("Enabled:                  yes\n"));
}

TEST_F(QuorvelctlWan, RefusesToSwitchAWanBothOnAndOff)
{
    expectComplaint("wan switch wan-0 --enable wan-0,wan-1 --disable wan-1", 2,
                    "wan-1 is to be both enabled and disabled");
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlWan, AddsAndDeletesAnEntity)
{
    expectOutput("wan add-entity wan-0 wan_vlan", "WAN:               wan-0\n"
                                                  "Created and added: wan_vlan-1\n");
    EXPECT_EQ(simulator.storedValue("wan-0", "entities.wan_vlan"), "wan_vlan-1");
    expectOutput("wan delete-entity wan-0 wan_vlan", "The wan_vlan entity of wan-0 is deleted.\n");
    EXPECT_EQ(simulator.storedValue("wan-0", "entities.wan_vlan"), "");
    expectComplaint("wan delete-entity wan-0 wan_vlan", 1, "wan-0 has no wan_vlan entity");
}

TEST_F(QuorvelctlWan, TellsTheNewEntityAsJson)
{
    expectOutput("wan add-entity wan-1 pppox --json", "{\n"
                                                      "    \"entity\": \"pppox-2\",\n"
                                                      "    \"wan\": \"wan-1\"\n"
                                                      "}\n");
}

TEST_F(QuorvelctlWan, TellsAnEntityThatTheGatewayDoesNotCreate)
{
    expectComplaint("wan add-entity wan-1 tent", 1,
                    "can't add a tent entity to wan-1: the gateway created none");
}

TEST_F(QuorvelctlWan, TellsAnEntityThatIsCreatedButNotAdded)
{
    spoil("error:9 key=add_entity");
    expectComplaint("wan add-entity wan-1 pppox", 1,
                    "can't add a pppox entity to wan-1: the gateway reports error 9 (pppox-2 is "
                    "created, but not added)");
}

// The library loses the name of what was created then.
TEST_F(QuorvelctlWan, TellsTheNewEntityAlsoIfTheSessionEndsBeforeItIsAdded)
{
    spoil("session-expired 1 key=add_entity");
    expectOutput("wan add-entity wan-1 l2tp", "WAN:               wan-1\n"
                                              "Created and added: l2tp-1\n");
    EXPECT_EQ(simulator.storedValue("wan-1", "entities.l2tp"), "l2tp-1");
}

TEST_F(QuorvelctlWan, AddsAndTakesAnInterface)
{
    expectOutput("wan add-iface wan-1 eth0.5", "eth0.5 is added to wan-1.\n");
    EXPECT_EQ(simulator.storedValue("wan-1", "ifaces"), "eth0.5");
    expectOutput("wan delete-iface wan-1 eth0.5 --json",
                 "{\n    \"done\": \"eth0.5 is taken from wan-1.\"\n}\n");
    EXPECT_EQ(simulator.storedValue("wan-1", "ifaces"), "");
}

TEST_F(QuorvelctlWan, RefusesAWanThatTheGatewayHasNot)
{
    for (const char* arguments :
         {"wan show wan-9", "wan enable wan-9", "wan disable wan-9", "wan switch wan-9",
          "wan switch wan-0 --enable wan-9", "wan switch wan-0 --disable wan-1,wan-9",
          "wan add-entity wan-9 pppox", "wan delete-entity wan-9 pppox", "wan add-iface wan-9 x",
          "wan delete-iface wan-9 x --json"})
        expectComplaint(arguments, 1, lacking("wan-9"));
}

TEST_F(QuorvelctlWan, NeedsAName)
{
    EXPECT_EQ(run("wan").status, 2);
    EXPECT_EQ(run("wan show").status, 2);
    EXPECT_EQ(run("wan add-entity wan-0").status, 2);
    EXPECT_EQ(simulator.requestCount(), 0u);
}

class QuorvelctlWanOfTheOlderGateway : public QuorvelctlWan
{
protected:
    QuorvelctlWanOfTheOlderGateway() : QuorvelctlWan("classic") {}
};

TEST_F(QuorvelctlWanOfTheOlderGateway, ListsTheWans)
{
    expectOutput("wan list",
                 "WAN    LAYER 2  LINK TYPE  ENABLED  CONNECTED  IP ADDRESS    DEFAULT GATEWAY\n"
                 "wan-0  dsl      pppoe      yes      yes        198.51.100.7  yes\n"
                 "wan-1  eth      dhcp       no       no                       no\n");
}

TEST_F(QuorvelctlWanOfTheOlderGateway, LeavesOutTheLinkThatItDoesNotKnow)
{
    expectOutput("wan status", "Default WAN:          wan-0\n"
                               "Alias default WAN:\n"
                               "In use:               wan-0\n"
                               "In use by link state: wan-0\n"
                               "Internet:             connected\n"
                               "DSL link is up:       yes\n");
}

} // namespace quorvelctl::test
