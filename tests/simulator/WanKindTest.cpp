#include "ConnectionWrites.h"

namespace quorvel::simulator::tests
{

/// What the two generations call the type of a connection, and what both understand.
class ClassicWanTest : public SimulatedGateway
{
protected:
    ClassicWanTest() : SimulatedGateway("classic") {}
};

class ModernWanTest : public SimulatedGateway
{
};

TEST_F(ClassicWanTest, CallsItType)
{
    EXPECT_EQ(send({"query wan-0 isnewwan", "get wan-0 type", "get wan-0 linktype"}),
              "<response version=\"1.0.0\">\n"
              "<wan-0><isnewwan>0</isnewwan><type>pppoe</type></wan-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ClassicWanTest, TakesTheTypeUnderItsOwnNameOnly)
{
    ASSERT_EQ(errorOf(block("wan-0", {"linktype dhcp"})), 0);
    EXPECT_EQ(get("wan-0", "type"), "pppoe");
    ASSERT_EQ(errorOf(block("wan-0", {"type static", "linktype dhcp"})), 0);
    EXPECT_EQ(get("wan-0", "type"), "static");
    EXPECT_EQ(gateway.storedValue("wan-0", "linktype"), "");
}

TEST_F(ModernWanTest, CallsItLinktypeHoweverItIsAsked)
{
    const char* const reply = "<response version=\"1.0.1\">\n"
                              "<wan-0><key>linktype</key><value>pppoe</value></wan-0>\n"
                              "<webapp><error>0</error></webapp>\n</response>\n";
    EXPECT_EQ(send({"get wan-0 type"}), reply);
    EXPECT_EQ(send({"get wan-0 linktype"}), reply);
}

TEST_F(ModernWanTest, TakesTheTypeUnderItsOwnNameOnly)
{
    ASSERT_EQ(errorOf(block("wan-0", {"type dhcp"})), 0);
    EXPECT_EQ(get("wan-0", "linktype"), "pppoe");
    ASSERT_EQ(errorOf(block("wan-0", {"linktype static", "type dhcp"})), 0);
    EXPECT_EQ(get("wan-0", "linktype"), "static");
    EXPECT_EQ(gateway.configuredValue("wan-0", "type"), "");
}

TEST_F(ModernWanTest, TellsEverythingInOneRequest)
{
    EXPECT_EQ(
        send({"command cfgmgr-0 begin_transaction wan-1", "get wan-1 type", "get wan-1 l2type",
              "get wan-1 enabled", "get wan-1 entities", "query wan-1 isconnected",
              "query wan-1 localip", "command cfgmgr-0 end_transaction wan-1"}),
        "<response version=\"1.0.1\">\n"
        "<wan-1><key>linktype</key><value>dhcp</value></wan-1>\n"
        "<wan-1><key>l2type</key><value>eth</value></wan-1>\n"
        "<wan-1><key>enabled</key><value>1</value></wan-1>\n"
        "<wan-1><key>entities.dhcpc</key><value>dhcpc-0</value></wan-1>\n"
        "<wan-1><key>entities.l2tp</key><value>l2tp-0</value></wan-1>\n"
        "<wan-1><key>entities.pppox</key><value>pppox-1</value></wan-1>\n"
        "<wan-1><key>entities.static</key><value>static-1</value></wan-1>\n"
        "<wan-1><key>entities.vpn</key><value>vpn-0</value></wan-1>\n"
        "<wan-1><key>entities.wan_vlan</key><value>wan_vlan-0</value></wan-1>\n"
        "<wan-1><key>isconnected</key><value>1</value></wan-1>\n"
        "<wan-1><key>localip</key><value>198.51.100.23</value></wan-1>\n"
        "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ModernWanTest, EntitiesAreReadAsTheyAreWritten)
{
    EXPECT_EQ(send({"get pppox-0 settings", "get wan_vlan-0 port", "query rfc2684-0 vdsl_support",
                    "query dsl-0 annexes", "query webui-0 username_extension"}),
              "<response version=\"1.0.1\">\n"
              "<pppox-0><key>settings.idle</key><value>0</value></pppox-0>\n"
              "<pppox-0><key>settings.lcp_echo_failure</key><value>3</value></pppox-0>\n"
              "<pppox-0><key>settings.lcp_echo_interval</key><value>30</value></pppox-0>\n"
              "<pppox-0><key>settings.mtu</key><value>1492</value></pppox-0>\n"
              "<pppox-0><key>settings.ondemand</key><value>0</value></pppox-0>\n"
              "<pppox-0><key>settings.password</key><value>dsl-secret</value></pppox-0>\n"
              "<pppox-0><key>settings.type</key><value>pppoe</value></pppox-0>\n"
              "<pppox-0><key>settings.username</key><value>line1903@example.net</value></pppox-0>\n"
              "<wan_vlan-0><key>port</key><value>wan</value></wan_vlan-0>\n"
              "<rfc2684-0><key>vdsl_support</key><value>true</value></rfc2684-0>\n"
              "<dsl-0><key>annexes</key><value>ab</value></dsl-0>\n"
              "<webui-0><key>username_extension</key><value>@example.net</value></webui-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ModernWanTest, AStateIsTheConnectionsOwn)
{
    gateway.setValue("wan-0", "enabled", "1");
    EXPECT_EQ(send({"query pppox-0 state"}),
              "<response version=\"1.0.1\">\n"
              "<pppox-0><key>state.interface</key><value>ppp0</value></pppox-0>\n"
              "<pppox-0><key>state.localIP</key><value>198.51.100.24</value></pppox-0>\n"
              "<pppox-0><key>state.nasDevice</key><value>nas0</value></pppox-0>\n"
              "<pppox-0><key>state.primaryDNS</key><value>192.0.2.53</value></pppox-0>\n"
              "<pppox-0><key>state.remoteIP</key><value>198.51.100.1</value></pppox-0>\n"
              "<pppox-0><key>state.secondaryDNS</key><value>192.0.2.54</value></pppox-0>\n"
              "<pppox-0><key>state.sessionId</key><value>1903</value></pppox-0>\n"
              "<pppox-0><key>state.status</key><value>connected</value></pppox-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

} // namespace quorvel::simulator::tests
