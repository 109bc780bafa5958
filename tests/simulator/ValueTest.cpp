#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class ValueTest : public SimulatedGateway
{
protected:
    void SetUp() override
    {
        SimulatedGateway::SetUp();
        gateway.setValue("product-0", "router_mode", "ap");
    }
};

TEST_F(ValueTest, AGetReadsTheConfiguration)
{
    EXPECT_EQ(send({"command cfgmgr-0 begin_transaction product-0", "get product-0 router_mode",
                    "command cfgmgr-0 end_transaction product-0"}),
              "<response version=\"1.0.1\">\n"
              "<product-0><key>router_mode</key><value>ap</value></product-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ValueTest, AGetWithoutATransactionReadsToo)
{
    EXPECT_EQ(get("product-0", "router_mode"), "ap");
}

TEST_F(ValueTest, AKeyThatAnObjectHasntGotHasNoEntry)
{
    const char* const empty = "<response version=\"1.0.1\">\n"
                              "<webapp><error>0</error></webapp>\n</response>\n";
    EXPECT_EQ(send({"get product-0 colour", "query product-0 colour", "get product-0"}), empty);
    EXPECT_EQ(send({"query sysmgr-0 getenv COLOUR", "query devmgr-0 inst_list unicorn"}), empty);
}

TEST_F(ValueTest, AKeyStandsForThoseBelowIt)
{
    EXPECT_THAT(send({"get wan-1 entities"}),
                AllOf(HasSubstr("<key>entities.pppox</key><value>pppox-1</value>"),
                      HasSubstr("<key>entities.dhcpc</key><value>dhcpc-0</value>"),
                      HasSubstr("<key>entities.wan_vlan</key><value>wan_vlan-0</value>")));
    EXPECT_THAT(send({"query dsl-0 status"}),
                HasSubstr("<key>status.training_stat</key><value>SHOWTIME</value>"));
}

TEST_F(ValueTest, EnvironmentValuesStandUnderTheirOwnNames)
{
    EXPECT_THAT(send({"query sysmgr-0 getenv MAC_ETH_0", "query sysmgr-0 getenv SERIAL_NUMBER"}),
                AllOf(HasSubstr("<sysmgr-0><key>MAC_ETH_0</key><value>02:00:5E:10:01:01</value>"),
                      HasSubstr("<key>SERIAL_NUMBER</key><value>QV44X1720001903</value>")));
}

TEST_F(ValueTest, QueriesReadRunTimeValues)
{
    EXPECT_THAT(send({"query sysmgr-0 fwversion", "query webui-0 reboot_duration",
                      "query webui-0 fwupgrade_duration", "query sysmgr-0 reboot_req",
                      "query wan-1 isnewwan"}),
                AllOf(HasSubstr("<key>fwversion</key><value>3.2.0-r7</value>"),
                      HasSubstr("<key>reboot_duration</key><value>90000</value>"),
                      HasSubstr("<key>fwupgrade_duration</key><value>240000</value>"),
                      HasSubstr("<key>reboot_req</key><value>0</value>"),
                      HasSubstr("<key>isnewwan</key><value>1</value>")));
}

TEST_F(ValueTest, ManagersAreListedInTheirOrder)
{
    EXPECT_THAT(send({"query devmgr-0 mngr_list"}),
                AllOf(HasSubstr("<devmgr-0><key>mngr0</key><value>devmgr</value></devmgr-0>"),
                      HasSubstr("<value>wan_vlan</value>"), HasSubstr("<value>wireless</value>"),
                      Not(HasSubstr("<value>wireless_core</value>"))));
}

TEST_F(ValueTest, InstancesAreListedUnderTheManagersOwnKeys)
{
    EXPECT_EQ(send({"query devmgr-0 inst_list wan", "query devmgr-0 inst_list conn"}),
              "<response version=\"1.0.1\">\n"
              "<devmgr-0><key>wan0</key><value>wan-0</value></devmgr-0>\n"
              "<devmgr-0><key>wan1</key><value>wan-1</value></devmgr-0>\n"
              "<devmgr-0><key>wan2</key><value>wan-2</value></devmgr-0>\n"
              "<devmgr-0><key>conn.inst0</key><value>conn-0</value></devmgr-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ValueTest, InstancesAreListedByNumber)
{
    for (const char* instance : {"wan-10", "wan-9", "wan-2"})
        gateway.setValue(instance, "enabled", "0");
    EXPECT_THAT(send({"query devmgr-0 inst_list wan"}),
                HasSubstr("<key>wan2</key><value>wan-2</value></devmgr-0>\n"
                          "<devmgr-0><key>wan3</key><value>wan-9</value></devmgr-0>\n"
                          "<devmgr-0><key>wan4</key><value>wan-10</value>"));
}

TEST_F(ValueTest, ClientsAndLeasesAreNumbered)
{
    EXPECT_THAT(send({"get dhcps-0 clients"}),
                AllOf(HasSubstr("<key>client0.mac</key><value>02:00:5E:20:01:11</value>"),
                      HasSubstr("<key>client2.ip</key><value>0.0.0.0</value>"),
                      Not(HasSubstr("lease"))));
    EXPECT_THAT(send({"query dhcps-0 leases"}),
                AllOf(HasSubstr("<key>lease0.name</key><value>laptop</value>"),
                      HasSubstr("<key>lease2.mac</key><value>02:00:5E:20:01:23</value>"),
                      Not(HasSubstr("client"))));
}

TEST_F(ValueTest, GatewayCandidatesRepeatOneKey)
{
    EXPECT_EQ(send({"query route-0 def_gw_status"}),
              "<response version=\"1.0.1\">\n"
              "<route-0><key>def_gw_status</key><value>wan-0:0</value></route-0>\n"
              "<route-0><key>def_gw_status</key><value>wan-1:1</value></route-0>\n"
              "<route-0><key>def_gw_status</key><value>wan-2:0</value></route-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ValueTest, ADisabledWanIsNotConnected)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction wan-1", "set wan-1 enabled 0",
                       "command cfgmgr-0 commit wan-1", "command cfgmgr-0 end_transaction wan-1"}),
              0);
    EXPECT_THAT(send({"query wan-1 isconnected"}), HasSubstr("<value>1</value>"));
    ASSERT_EQ(errorOf({"command wan-1 apply"}), 0);
    EXPECT_THAT(send({"query wan-1 isconnected", "query wan-1 localip"}),
                AllOf(HasSubstr("<key>isconnected</key><value>0</value>"),
                      HasSubstr("<key>localip</key><value></value>")));
    EXPECT_THAT(send({"query route-0 def_gw_status"}), HasSubstr("<value>wan-1:0</value>"));
}

TEST_F(ValueTest, PasswordsCanBeCheckedButNotRead)
{
    EXPECT_THAT(send({"get webui-0 password", "query webui-0 password", "get sysmgr-0 password",
                      "query sysmgr-0 password"}),
                Not(HasSubstr("<value>")));
    EXPECT_THAT(send({"command webui-0 check_admin_password admin"}),
                HasSubstr("<key>admin_password</key><value>ok</value>"));
    EXPECT_THAT(send({"command webui-0 check_admin_password Admin"}),
                HasSubstr("<key>admin_password</key><value>error</value>"));
}

TEST_F(ValueTest, ValuesKeepTheirBlanksAndSpecialCharacters)
{
    ASSERT_EQ(errorIn(sendXml("<xmlrequest version=\"1.0.1\">"
                              "<command inst=\"cfgmgr-0\"><key>begin_transaction</key>"
                              "<value>conn-0</value></command>"
                              "<set inst=\"conn-0\"><key>hostname</key>"
                              "<value> a&lt;b &amp; c&#13; \xC3\xBC </value></set>"
                              "<command inst=\"cfgmgr-0\"><key>commit</key>"
                              "<value>conn-0</value></command></xmlrequest>")),
              0);
    EXPECT_EQ(gateway.configuredValue("conn-0", "hostname"), " a<b & c\r \xC3\xBC ");
    EXPECT_THAT(send({"get conn-0 hostname"}),
                HasSubstr("<value> a&lt;b &amp; c&#13; \xC3\xBC </value>"));
}

} // namespace quorvel::simulator::tests
