#include "InternetWrite.h"

#include <QTemporaryFile>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

TEST_F(QuorvelctlInternetWrite, ConnectsByPppoeOverEthernet)
{
    const Outcome result =
        runWith("QUORVELCTL_PPPOX_PASSWORD", "ppp & secret",
                "internet set-eth wan-1 --link-type pppoe --pppox-username ada@example.net "
                "--wan-vlan-vlanid 12");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The connection of wan-1 is stored and in effect.\n");
    EXPECT_EQ(simulator.storedValue("pppox-1", "password"), "ppp & secret");
    EXPECT_EQ(simulator.storedValue("wan_vlan-0", "vlanid"), "12");
    EXPECT_THAT(run("internet show").output, HasSubstr("Connected:         yes\n"
                                                       "IP address:        198.51.100.25\n"
                                                       "PPP entity:        pppox-1\n"
                                                       "PPP user name:     ada@example.net\n"
                                                       "PPP password:      ********\n"));
}

TEST_F(QuorvelctlInternetWrite, LeavesWhatIsNotNamedAsItIs)
{
    simulator.setValue("wan-0", "enabled", "1");
    simulator.setValue("pvc-0", "vci", "32");
    EXPECT_EQ(run("internet set-dsl wan-0 --link-type pppoa --current-annex-mode b").status, 0);
    EXPECT_EQ(simulator.storedValue("wan-0", "linktype"), "pppoa");
    EXPECT_EQ(simulator.storedValue("pppox-0", "username"), "line1903@example.net");
    EXPECT_EQ(simulator.storedValue("pppox-0", "password"), "dsl-secret");
    EXPECT_EQ(simulator.storedValue("pppox-0", "mtu"), "1500");
    EXPECT_EQ(simulator.storedValue("pvc-0", "vci"), "32");
    EXPECT_EQ(simulator.storedValue("rfc2684-0", "encaps"), "VCMUX");
    EXPECT_EQ(simulator.storedValue("dsl-0", "annex"), "b");
}

TEST_F(QuorvelctlInternetWrite, TellsThatTheWanIsOff)
{
    expectOutput("internet set-dsl wan-0 --link-type dhcp --json",
                 "{\n    \"done\": \"The connection of wan-0 is stored, but wan-0 is off.\"\n}\n");
    EXPECT_EQ(simulator.storedValue("wan-0", "linktype"), "dhcp");
}

TEST_F(QuorvelctlInternetWrite, ConnectsByATunnelWithAStaticAddress)
{
    const Outcome result = runWith(
        "QUORVELCTL_VPN_PASSWORD", "tunnel-secret",
        "internet set-eth wan-1 --link-type vpn --vpn-server vpn.example.net --vpn-username ada "
        "--vpn-use-static --static-ip 192.0.2.10 --static-mask 255.255.255.0 --static-gateway "
        "192.0.2.1 --static-dns1 192.0.2.53 --static-dns2 192.0.2.54");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(run("internet show --show-secrets").output,
                HasSubstr("Link type:             vpn\n"
                          "Enabled:               yes\n"
                          "Connected:             yes\n"
                          "IP address:            203.0.113.23\n"
                          "VPN entity:            vpn-0\n"
                          "VPN type:              pptp\n"
                          "VPN server:            vpn.example.net\n"
                          "VPN user name:         ada\n"
                          "VPN password:          tunnel-secret\n"));
    EXPECT_EQ(simulator.storedValue("static-1", "dns2"), "192.0.2.54");
    EXPECT_EQ(simulator.storedValue("vpn-0", "defaultroute"), "1");
}

TEST_F(QuorvelctlInternetWrite, ReadsThePasswordBehindTheLoginPassword)
{
    const Outcome result = runQuorvelctl(
        "internet set-eth wan-1 --link-type l2tp --l2tp-server l2tp.example.net --l2tp-username "
        "ada --password-stdin --l2tp-password-stdin",
        {simulator.address(), "", "admin\ntunnel-secret\n", {}});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(simulator.storedValue("l2tp-0", "password-0"), "tunnel-secret");
}

TEST_F(QuorvelctlInternetWrite, ReadsThePasswordFromAFile)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("from a file\n");
    file.flush();
    EXPECT_EQ(run("internet set-dsl wan-0 --link-type pppoe --pppox-password-file " +
                  file.fileName().toStdString())
                  .status,
              0);
    EXPECT_EQ(simulator.storedValue("pppox-0", "password"), "from a file");
}

TEST_F(QuorvelctlInternetWrite, RefusesWhatIsMissing)
{
    const std::string pppoe = "internet set-eth wan-1 --link-type pppoe";
    expectComplaint(pppoe, 2, "no PPP user name: give --pppox-username");
    expectComplaint(pppoe + " --pppox-username ''", 2, "no PPP user name: give --pppox-username");
    expectComplaint(pppoe + " --pppox-username ada", 2,
                    "no PPP password: give --pppox-password-file, --pppox-password-stdin or the "
                    "environment variable QUORVELCTL_PPPOX_PASSWORD");
    expectComplaint("internet set-eth wan-1 --link-type vpn --vpn-server x", 2,
                    "no VPN user name: give --vpn-username");
    expectComplaint("internet set-dsl wan-0 --link-type static", 2,
                    "no static IP address: give --static-ip");
    simulator.setValue("wan-0", "entities.static", "");
    expectComplaint("internet set-dsl wan-0 --link-type static --static-ip 192.0.2.1", 2,
                    "no static address entity: give --static-instance");
    EXPECT_FALSE(wasWrittenTo());
}

TEST_F(QuorvelctlInternetWrite, RefusesOptionsThatTheWriteWouldLeaveAside)
{
    expectComplaint("internet set-eth wan-1 --link-type pppoe --static-ip 192.0.2.1", 2,
                    "--static-ip has no effect on this pppoe connection");
    expectComplaint("internet set-eth wan-1 --link-type vpn --static-ip 192.0.2.1", 2,
                    "--static-ip has no effect on this vpn connection");
    expectComplaint("internet set-eth wan-1 --link-type dhcp --vpn-use-static", 2,
                    "--vpn-use-static has no effect on this dhcp connection");
    expectComplaint("internet set-dsl wan-0 --link-type static --pppox-password-stdin", 2,
                    "--pppox-password has no effect on this static connection");
    expectComplaint("internet set-dsl wan-0 --link-type russian_pppoe --pvc-vci 32", 2,
                    "--pvc-vci has no effect on this russian_pppoe connection");
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlInternetWrite, RefusesWordsThatMeanNothing)
{
    const struct {
        const char* arguments;
        const char* complaint;
    } cases[] = {
        {"internet set-eth wan-1 --link-type ppp",
         "--link-type: ppp not in {pppoe,russian_pppoe,vpn,l2tp,dhcp,bridge,static}"},
        {"internet set-eth wan-1 --link-type pppoa", "--link-type: pppoa not in"},
        {"internet set-dsl wan-0 --link-type PPPoE",
         "--link-type: PPPoE not in {pppoe,pppoa,russian_pppoe,vpn,l2tp,dhcp,bridge,static}"},
        {"internet set-dsl wan-0", "--link-type is required"},
        {"internet set-dsl wan-0 --link-type static --static-ip 192.0.2",
         "--static-ip: an address is four numbers, as 192.0.2.1, and not 192.0.2"},
        {"internet set-dsl wan-0 --link-type static --static-ip 192.0.2.1.", "192.0.2.1."},
        {"internet set-dsl wan-0 --link-type static --static-mask 255.255.255.0x0", "0x0"},
        {"internet set-dsl wan-0 --link-type static --static-gateway 192.0.2.010", "192.0.2.010"},
        {"internet set-dsl wan-0 --link-type static --static-dns1 192.0.2.256", "192.0.2.256"},
        {"internet set-eth wan-1 --link-type dhcp --wan-vlan-vlanid seven",
         "--wan-vlan-vlanid: no number of a VLAN or a circuit: seven"},
        {"internet set-dsl wan-0 --link-type pppoe --pvc-vci 65536", "--pvc-vci"},
        {"internet set-dsl wan-0 --link-type pppoe --pvc-vpi -1", "--pvc-vpi"},
        {"internet set-dsl wan-0 --link-type pppoe --pvc-vlanid 0x7", "--pvc-vlanid"},
        {"internet set-dsl wan-0 --link-type pppoe --current-annex-mode c", "c not in {a,b}"},
        {"internet set-dsl wan-0 --link-type pppoe --wan-vlan-vlanid 7", "--wan-vlan-vlanid"},
        {"internet set-eth wan-1 --link-type dhcp --pvc-vpi 8", "--pvc-vpi"}};
    for (const auto& row : cases) {
        const Outcome result = run(row.arguments);
        EXPECT_EQ(result.status, 2) << row.arguments;
        EXPECT_THAT(result.errors, HasSubstr(row.complaint)) << row.arguments;
        EXPECT_EQ(result.output, "") << row.arguments;
    }
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlInternetWrite, RefusesAWanOverTheOtherMedium)
{
    expectComplaint("internet set-eth wan-0 --link-type dhcp", 1, "wan-0 is no WAN over Ethernet");
    expectComplaint("internet set-dsl wan-1 --link-type dhcp", 1, "wan-1 is no WAN over DSL");
    expectComplaint("internet set-eth wan-2 --link-type dhcp", 1, "wan-2 is no WAN over Ethernet");
    expectComplaint("internet set-dsl wan-2 --link-type dhcp", 1, "wan-2 is no WAN over DSL");
    EXPECT_FALSE(wasWrittenTo());
}

TEST_F(QuorvelctlInternetWrite, RefusesEntitiesThatTheGatewayHasNot)
{
    expectComplaint("internet set-eth wan-1 --link-type dhcp --wan-vlan-instance wan_vlan-9", 1,
                    "can't read wan_vlan-9: the gateway reports error 5");
    expectComplaint("internet set-dsl wan-0 --link-type pppoe --pppox-instance pppox-9", 1,
                    "can't read pppox-9: the gateway reports error 5");
    EXPECT_FALSE(wasWrittenTo());
}

TEST_F(QuorvelctlInternetWrite, ClearsWhatIsNamedAndEmpty)
{
    EXPECT_EQ(run("internet set-eth wan-1 --link-type static --static-ip 192.0.2.9 --static-mask "
                  "255.255.255.0 --static-gateway 192.0.2.1 --wan-vlan-vlanid ''")
                  .status,
              0);
    EXPECT_EQ(simulator.storedValue("static-1", "gateway"), "192.0.2.1");
    EXPECT_EQ(simulator.storedValue("wan_vlan-0", "vlanid"), "");
    EXPECT_EQ(run("internet set-eth wan-1 --link-type static --static-gateway ''").status, 0);
    EXPECT_EQ(simulator.storedValue("static-1", "gateway"), "");
    EXPECT_EQ(simulator.storedValue("static-1", "ip"), "192.0.2.9");
}

TEST_F(QuorvelctlInternetWrite, RefusesAnAnnexOfALineWithoutAChoice)
{
    simulator.setStatus("dsl-0", "annexes", "a");
    expectComplaint("internet set-dsl wan-0 --link-type pppoe --current-annex-mode b", 1,
                    "dsl-0 leaves no choice of the annex");
    EXPECT_EQ(run("internet set-dsl wan-0 --link-type pppoe --supported-annex-mode ab "
                  "--current-annex-mode b")
                  .status,
              0);
    EXPECT_EQ(simulator.storedValue("dsl-0", "annex"), "b");
}

} // namespace quorvelctl::test
