#include "ConnectionWrites.h"
#include "EachGateway.h"

namespace quorvel::simulator::tests
{

using testing::HasSubstr;
using testing::Not;

class ConnectionTest : public EachGateway
{
protected:
    // Ethernet by DHCP, and nothing over DSL.
    void SetUp() override
    {
        EachGateway::SetUp();
        gateway.setValue("wan-0", "enabled", "0");
        gateway.setValue("wan-1", "enabled", "1");
        ASSERT_EQ(query("wan-1", "isconnected"), "1");
    }

    void write(const Lines& lines) { ASSERT_EQ(errorOf(lines), 0); }

    // The type in effect and stored, whatever this gateway calls it.
    std::string typeOf(const std::string& wan)
    {
        return read("get " + wan + " type",
                    gateway.storedValue(wan, "type").empty() ? "linktype" : "type");
    }

    std::string setting(const std::string& instance, const std::string& key)
    {
        return read("get " + instance + " settings", "settings." + key);
    }

    // What the clients of both WANs have, only one of which has any.
    std::string lease() { return get("dhcpc-0", "localip") + get("dhcpc-1", "localip"); }

    std::string pppState(const std::string& instance, const std::string& key)
    {
        return read("query " + instance + " state", "state." + key);
    }
};

INSTANTIATE_TEST_SUITE_P(Gateways, ConnectionTest, testing::Values("classic", "dual", "modern"),
                         scenarioName);

TEST_P(ConnectionTest, PppoeOverEthernetTakesThePlaceOfDhcp)
{
    EXPECT_THAT(query("wan-1", "localip"), testing::StartsWith("198.51.100."));
    EXPECT_EQ(pppState("pppox-1", "status"), "disconnected");
    EXPECT_EQ(pppState("pppox-1", "localIP"), "");
    write(pppoeOverEthernet());
    EXPECT_EQ(typeOf("wan-1"), "pppoe");
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
    EXPECT_EQ(pppState("pppox-1", "status"), "connected");
    EXPECT_EQ(pppState("pppox-1", "primaryDNS"), "192.0.2.53");
    EXPECT_EQ(query("wan-1", "localip"), pppState("pppox-1", "localIP"));
    EXPECT_NE(query("wan-1", "localip"), "");
    EXPECT_EQ(query("wan-1", "internet_connection"), "1");
    EXPECT_EQ(setting("pppox-1", "username"), "ada@example.net");
    EXPECT_EQ(get("wan_vlan-0", "vlanid"), "12");
}

TEST_P(ConnectionTest, TheLeaseIsGivenBackWithDhcp)
{
    ASSERT_NE(lease(), "");
    EXPECT_EQ(query("wan-1", "localip"), lease());
    write(pppoeOverEthernet());
    EXPECT_EQ(lease(), "");
    EXPECT_EQ(get("dhcpc-0", "netmask") + get("dhcpc-1", "netmask"), "");
}

TEST_P(ConnectionTest, AStaticAddressOverDslIsFoundAgainAfterARestart)
{
    write(pppoeOverEthernet());
    write(staticOverDsl());
    EXPECT_EQ(query("wan-0", "isconnected"), "0");
    write(defaultGateway("wan-0"));
    EXPECT_EQ(query("wan-0", "isconnected"), "1");
    ASSERT_EQ(errorOf({"command sysmgr-0 reboot"}), 0);
    ASSERT_TRUE(gateway.waitUntilReachable(true, std::chrono::seconds(10)));
    cookie = logIn();
    EXPECT_EQ(typeOf("wan-0"), "static");
    EXPECT_EQ(query("wan-0", "isconnected"), "1");
    EXPECT_EQ(query("wan-0", "localip"), "198.51.100.201");
    EXPECT_EQ(setting("static-0", "gateway"), "198.51.100.1");
    EXPECT_EQ(get("route-0", "default_gw"), "wan-0");
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-0:1</value>"));
    EXPECT_EQ(typeOf("wan-1"), "pppoe");
    EXPECT_EQ(pppState("pppox-1", "status"), "connected");
}

TEST_P(ConnectionTest, ADslConnectionTakesItsLineParametersOver)
{
    write(pppoeOverDsl());
    EXPECT_EQ(setting("pppox-0", "username"), "ada@example.net");
    EXPECT_EQ(setting("pppox-0", "mtu"), "1492");
    EXPECT_EQ(get("pvc-0", "vpi"), "1");
    EXPECT_EQ(get("pvc-0", "vci"), "32");
    EXPECT_EQ(get("pvc-0", "vlanid"), "33");
    EXPECT_EQ(get("dsl-0", "annex"), "b");
    EXPECT_EQ(get("rfc2684-0", "encaps"), "VCMUX");
    write(defaultGateway("wan-0"));
    EXPECT_EQ(pppState("pppox-0", "status"), "connected");
    EXPECT_EQ(pppState("pppox-0", "nasDevice"), "nas0");
}

TEST_P(ConnectionTest, EveryTypeOverEthernetConnects)
{
    struct Case {
        Lines lines;
        const char* type;
        const char* network;
    };
    const Lines russian = block("pppox-1", {"enabled 1", "type pppoe", "username u", "password p"});
    // Each has an address of its own, so that nothing of the one before is left.
    std::string address;
    for (const Case& one :
         {Case{pppoeOverEthernet(), "pppoe", "198.51.100."},
          Case{tunnelOverEthernet("vpn", "vpn-0"), "vpn", "203.0.113."},
          Case{tunnelOverEthernet("l2tp", "l2tp-0"), "l2tp", "203.0.113."},
          Case{overEthernet("russian_pppoe", russian), "russian_pppoe", "198.51.100."},
          Case{staticOverEthernet(), "static", "198.51.100.200"},
          Case{overEthernet("dhcp"), "dhcp", "198.51.100."}}) {
        SCOPED_TRACE(one.type);
        EXPECT_EQ(errorOf(one.lines), 0);
        EXPECT_EQ(typeOf("wan-1"), one.type);
        EXPECT_EQ(query("wan-1", "isconnected"), "1");
        EXPECT_THAT(query("wan-1", "localip"), testing::StartsWith(one.network));
        EXPECT_NE(query("wan-1", "localip"), address);
        address = query("wan-1", "localip");
    }
}

TEST_P(ConnectionTest, ATunnelKeepsTheLeaseThatItRunsThrough)
{
    const std::string before = lease();
    write(tunnelOverEthernet("vpn", "vpn-0"));
    EXPECT_THAT(query("wan-1", "localip"), testing::StartsWith("203.0.113."));
    EXPECT_EQ(lease(), before);
    EXPECT_NE(lease(), "");
    EXPECT_EQ(get("vpn-0", "server"), "192.0.2.99");
    EXPECT_EQ(get("vpn-0", "username-0"), "ada");
    EXPECT_EQ(get("vpn-0", "type"), "pptp");
}

TEST_P(ConnectionTest, AnIncompleteConnectionDoesntComeUp)
{
    for (const Lines& lines :
         {overEthernet("pppoe", block("pppox-1", {"username", "password p"})),
          overEthernet("pppoe", block("pppox-1", {"username u", "password"})),
          overEthernet("vpn", block("vpn-0", {"server", "username-0 u", "password-0 p"})),
          overEthernet("static", block("static-1", {"ip", "mask 255.255.255.0"})),
          overEthernet("PPPOE"), overEthernet("pppoa", block("pppox-1", {"username"}))}) {
        EXPECT_EQ(errorOf(lines), 0);
        EXPECT_EQ(query("wan-1", "isconnected"), "0") << lines[1];
        EXPECT_EQ(query("wan-1", "localip"), "") << lines[1];
    }
}

TEST_P(ConnectionTest, ABridgeIsConnectedWithoutAnAddress)
{
    write(overEthernet("bridge"));
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
    EXPECT_EQ(query("wan-1", "localip"), "");
    EXPECT_EQ(query("wan-1", "internet_connection"), "0");
    EXPECT_THAT(send({"query route-0 def_gw_status"}), Not(HasSubstr(":1</value>")));
}

TEST_P(ConnectionTest, WhatIsNotAppliedIsNotInEffect)
{
    const std::string address = query("wan-1", "localip");
    write({"command cfgmgr-0 begin_transaction wan-1", "set wan-1 type static",
           "set wan-1 linktype static", "command cfgmgr-0 commit wan-1",
           "command cfgmgr-0 end_transaction wan-1", "command cfgmgr-0 save"});
    EXPECT_EQ(typeOf("wan-1"), "static");
    EXPECT_EQ(query("wan-1", "localip"), address);
    write({"command wan-1 apply"});
    EXPECT_EQ(query("wan-1", "localip"), "");
}

TEST_P(ConnectionTest, WithoutItsLinkNothingIsConnected)
{
    write(defaultGateway("wan-0"));
    gateway.setStatus("dsl-0", "dslLinkStatus", "DOWN");
    EXPECT_EQ(query("wan-0", "isconnected"), "0");
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
    gateway.setStatus("dsl-0", "dslLinkStatus", "up");
    EXPECT_EQ(query("wan-0", "isconnected"), "1");
    gateway.setStatus("eth-0", "linkstate", "0");
    EXPECT_EQ(query("wan-1", "isconnected"), "0");
    EXPECT_EQ(lease(), "");
    EXPECT_EQ(gateway.value("wan-1", "isconnected"), "0");
}

TEST_P(ConnectionTest, TheDefaultRouteIsCarriedByOneCandidate)
{
    write(defaultGateway("wan-0"));
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-0:1</value>"));
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-1:0</value>"));
    gateway.setStatus("dsl-0", "dslLinkStatus", "DOWN");
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-0:0</value>"));
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-1:1</value>"));
    EXPECT_EQ(query("route-0", "internet_connection"), "1");
    gateway.setStatus("eth-0", "linkstate", "0");
    EXPECT_THAT(send({"query route-0 def_gw_status"}), Not(HasSubstr(":1</value>")));
    EXPECT_EQ(query("route-0", "internet_connection"), "0");
}

TEST_P(ConnectionTest, ASwitchMovesTheConnectionUntilARestart)
{
    gateway.setValue("route-0", "default_gw", "wan-1");
    write(switchToDsl());
    EXPECT_EQ(query("wan-0", "isconnected"), "1");
    EXPECT_EQ(query("wan-1", "isconnected"), "0");
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-0:1</value>"));
    gateway.setRebootTime(std::chrono::milliseconds(0));
    gateway.restart();
    cookie = logIn();
    EXPECT_EQ(query("wan-0", "isconnected"), "0");
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
}

TEST_P(ConnectionTest, ARunTimeValueStandsForWhatWouldFollow)
{
    gateway.setStatus("wan-1", "localip", "198.51.100.222");
    EXPECT_EQ(query("wan-1", "localip"), "198.51.100.222");
    gateway.setStatus("wan-1", "internet_connection", "0");
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
    EXPECT_EQ(query("wan-1", "internet_connection"), "0");
    gateway.setStatus("wan-1", "isconnected", "0");
    EXPECT_EQ(query("wan-1", "isconnected"), "0");
    EXPECT_EQ(query("wan-1", "localip"), "");
    gateway.setStatus("route-0", "internet_connection", "1");
    EXPECT_EQ(query("route-0", "internet_connection"), "1");
    gateway.setStatus("pppox-1", "state.status", "connecting");
    EXPECT_EQ(pppState("pppox-1", "status"), "connecting");
}

TEST_P(ConnectionTest, TheSupportedTypesDependOnTheKindOfLink)
{
    EXPECT_EQ(read("query wan-0 SupportedLinkTypes dsl", "linktype0"), "pppoe");
    EXPECT_EQ(read("query wan-0 SupportedLinkTypes dsl", "linktype5"), "bridge");
    EXPECT_EQ(read("query wan-0 SupportedLinkTypes eth", "linktype0"), "");
    EXPECT_EQ(read("query wan-1 SupportedLinkTypes eth", "linktype0"), "dhcp");
    EXPECT_EQ(read("query wan-1 SupportedLinkTypes eth", "linktype6"), "bridge");
    EXPECT_EQ(read("query wan-1 SupportedLinkTypes dsl", "linktype0"), "");
}

TEST_P(ConnectionTest, LinesTellTheirState)
{
    EXPECT_EQ(query("eth-0", "linkstate"), "1");
    EXPECT_EQ(query("dsl-0", "dslLinkStatus"), "UP");
    EXPECT_EQ(read("query dsl-0 status", "status.line_stat"), "UP");
    EXPECT_EQ(read("query dsl-0 status", "status.training_stat"), "SHOWTIME");
}

} // namespace quorvel::simulator::tests
