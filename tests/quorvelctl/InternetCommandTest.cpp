#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::Not;

class QuorvelctlInternet : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;
};

TEST_F(QuorvelctlInternet, ShowsTheConnectionOfTheDefaultWan)
{
    expectOutput("internet show", "WAN:                wan-1\n"
                                  "Layer 2:            eth\n"
                                  "Link type:          dhcp\n"
                                  "Enabled:            yes\n"
                                  "Connected:          yes\n"
                                  "IP address:         198.51.100.23\n"
                                  "DHCP client entity: dhcpc-0\n"
                                  "DHCP address:       198.51.100.23\n"
                                  "DHCP network mask:  255.255.255.0\n"
                                  "VLAN entity:        wan_vlan-0\n"
                                  "VLAN name:          internet\n"
                                  "VLAN port:          wan\n"
                                  "VLAN number:        7\n");
}

TEST_F(QuorvelctlInternet, ShowsAConnectionOverDslWithItsLine)
{
    EXPECT_EQ(run("wan switch wan-0 --enable wan-0").status, 0);
    expectOutput("internet show wan-0", "WAN:                     wan-0\n"
                                        "Layer 2:                 dsl\n"
                                        "Link type:               pppoe\n"
                                        "Enabled:                 yes\n"
                                        "Connected:               yes\n"
                                        "IP address:              198.51.100.24\n"
                                        "PPP entity:              pppox-0\n"
                                        "PPP user name:           line1903@example.net\n"
                                        "PPP password:            ********\n"
                                        "PPP MTU:                 1492\n"
                                        "LCP echo interval:       30\n"
                                        "LCP echo failures:       3\n"
                                        "On demand:               0\n"
                                        "Idle time:               0\n"
                                        "PPP status:              connected\n"
                                        "PPP interface:           ppp0\n"
                                        "Local IP address:        198.51.100.24\n"
                                        "Remote IP address:       198.51.100.1\n"
                                        "Primary DNS:             192.0.2.53\n"
                                        "Secondary DNS:           192.0.2.54\n"
                                        "PPP session:             1903\n"
                                        "PPP device:              nas0\n"
                                        "PVC entity:              pvc-0\n"
                                        "VPI:                     8\n"
                                        "VCI:                     35\n"
                                        "PVC VLAN number:         35\n"
                                        "Traffic class:           UBR\n"
                                        "Peak cell rate:          0\n"
                                        "Sustained cell rate:     0\n"
                                        "Maximum burst size:      0\n"
                                        "RFC 2684 entity:         rfc2684-0\n"
                                        "Encapsulation:           LLC\n"
                                        "DSL line:                dsl-0\n"
                                        "Annexes that it can use: ab\n"
                                        "Annex:                   a\n"
                                        "Training:                SHOWTIME\n"
                                        "DSL mode:                VDSL2\n"
                                        "Channel:                 FAST\n"
                                        "Trellis coding:          ON\n"
                                        "Line:                    UP\n");
}

TEST_F(QuorvelctlInternet, ShowsATunnelAsJson)
{
    simulator.setValue("wan-1", "linktype", "vpn");
    simulator.setValue("vpn-0", "server", "vpn.example.net");
    simulator.setValue("vpn-0", "username-0", "ada");
    simulator.setValue("vpn-0", "password-0", "tunnel-secret");
    expectOutput("internet show wan-1 --json", "{\n"
                                               "    \"connectionType\": \"eth\",\n"
                                               "    \"dhcpLocalIp\": \"198.51.100.23\",\n"
                                               "    \"dhcpNetworkMask\": \"255.255.255.0\",\n"
                                               "    \"dhcpcInstance\": \"dhcpc-0\",\n"
                                               "    \"enabled\": true,\n"
                                               "    \"isConnected\": true,\n"
                                               "    \"linkType\": \"vpn\",\n"
                                               "    \"localIp\": \"203.0.113.23\",\n"
                                               "    \"staticDns1\": \"\",\n"
                                               "    \"staticDns2\": \"\",\n"
                                               "    \"staticGateway\": \"\",\n"
                                               "    \"staticInstance\": \"static-1\",\n"
                                               "    \"staticIp\": \"\",\n"
                                               "    \"staticMask\": \"\",\n"
                                               "    \"vpnInstance\": \"vpn-0\",\n"
                                               "    \"vpnPassword\": \"********\",\n"
                                               "    \"vpnServer\": \"vpn.example.net\",\n"
                                               "    \"vpnType\": \"pptp\",\n"
                                               "    \"vpnUsername\": \"ada\",\n"
                                               "    \"wan\": \"wan-1\",\n"
                                               "    \"wanVlanInstance\": \"wan_vlan-0\",\n"
                                               "    \"wanVlanName\": \"internet\",\n"
                                               "    \"wanVlanPort\": \"wan\",\n"
                                               "    \"wanVlanVlanid\": \"7\"\n"
                                               "}\n");
}

TEST_F(QuorvelctlInternet, FindsTheOnlyL2tpTunnel)
{
    simulator.setValue("l2tp-0", "server", "l2tp.example.net");
    simulator.setValue("wan-1", "linktype", "l2tp");
    EXPECT_THAT(run("internet show").output,
                HasSubstr("L2TP entity:           l2tp-0\n"
                          "L2TP type:             l2tp\n"
                          "L2TP server:           l2tp.example.net\n"));
    ASSERT_EQ(run("wan add-entity wan-1 l2tp").status, 0);
    // Now there are two of which none can be told to be this WAN's.
    EXPECT_THAT(run("internet show").output, HasSubstr("L2TP entity:\nL2TP type:\nL2TP server:\n"));
}

TEST_F(QuorvelctlInternet, ShowsOnDemandWhatTheLinkTypeDoesNotUse)
{
    const Outcome result = run("internet show --all");
    EXPECT_EQ(result.status, 0) << result.errors;
    for (const char* line :
         {"PPP entity:              pppox-1\n", "VPN entity:              vpn-0\n",
          "L2TP entity:             l2tp-0\n", "Static address entity:   static-1\n",
          "VLAN entity:             wan_vlan-0\n", "PVC entity:\n",
          "Annexes that it can use: ab\n"})
        EXPECT_THAT(result.output, HasSubstr(line));
}

TEST_F(QuorvelctlInternet, HidesSecretsInTheLogToo)
{
    simulator.setValue("pppox-0", "password", "dsl\tsecret");
    const Outcome hidden = run("internet show wan-0 --log-level debug");
    EXPECT_THAT(hidden.errors, HasSubstr("\tUsername:line1903@example.net\tPassword:********"
                                         "\tMtu:1492\n"));
    EXPECT_THAT(hidden.output + hidden.errors, Not(HasSubstr("secret")));
    const Outcome shown = run("internet show wan-0 --show-secrets --log-level debug");
    EXPECT_THAT(shown.errors, HasSubstr("\tPassword:dsl\tsecret\tMtu:1492\n"));
    EXPECT_THAT(shown.output, HasSubstr("PPP password:            dsl\xef\xbf\xbdsecret\n"));
}

TEST_F(QuorvelctlInternet, NeedsAWanIfThereIsNoDefaultWan)
{
    simulator.setValue("route-0", "default_gw", "");
    expectComplaint("internet show", 2, "the gateway has no default WAN: name one");
    EXPECT_EQ(run("internet show wan-1").status, 0);
}

TEST_F(QuorvelctlInternet, ShowsOnlyTheStateOfAWanOfAnUnknownKind)
{
    expectOutput("internet show wan-2", "WAN:        wan-2\n"
                                        "Layer 2:    serial\n"
                                        "Link type:  3g\n"
                                        "Enabled:    no\n"
                                        "Connected:  no\n"
                                        "IP address:\n");
}

TEST_F(QuorvelctlInternet, RefusesAWanThatTheGatewayHasNot)
{
    const std::string lacking =
        simulator.address() + " has no WAN 'wan-9', but wan-0, wan-1, wan-2";
    expectComplaint("internet show wan-9 --json", 1, lacking);
    expectComplaint("internet set-dsl wan-9 --link-type dhcp", 1, lacking);
    expectComplaint("internet set-eth wan-9 --link-type dhcp --dry-run", 1, lacking);
}

class QuorvelctlInternetOfTheOlderGateway : public QuorvelctlInternet
{
protected:
    QuorvelctlInternetOfTheOlderGateway() : QuorvelctlInternet("classic") {}
};

TEST_F(QuorvelctlInternetOfTheOlderGateway, IsShown)
{
    const Outcome result = run("internet show");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("WAN:                     wan-0\n"));
    EXPECT_THAT(result.output, HasSubstr("PPP user name:           line417@example.net\n"
                                         "PPP password:            ********\n"));
    EXPECT_THAT(result.output, HasSubstr("Annexes that it can use: a\n"));
}

TEST_F(QuorvelctlInternetOfTheOlderGateway, NeedsTheNameOfATunnelThatItDoesNotTell)
{
    expectComplaint("internet set-eth wan-1 --link-type l2tp --l2tp-server x --l2tp-username y", 2,
                    "no L2TP entity: give --l2tp-instance");
}

} // namespace quorvelctl::test
