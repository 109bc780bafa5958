#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

/// Requests as clients of real gateways send them, with the oddities that those put up with.
class ClientRequestTest : public SimulatedGateway
{
};

TEST_F(ClientRequestTest, ADslConnectionIsWrittenInOneRequest)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction wan-0",
                       "set wan-0 type pppoe",
                       "set wan-0 linktype pppoe",
                       "command cfgmgr-0 commit wan-0",
                       "command cfgmgr-0 end_transaction wan-0",
                       "command wan-0 apply",
                       "command cfgmgr-0 save",
                       "command cfgmgr-0 begin_transaction pppox-0",
                       "set pppox-0 type pppoe",
                       "set pppox-0 username ada",
                       "set pppox-0 password x",
                       "set pppox-0 mtu 1492",
                       "command cfgmgr-0 begin_transaction pvc-0",
                       "set pvc-0 vpi 1",
                       "set pvc-0 vci 32",
                       "set pvc-0 vlanid 35",
                       "command cfgmgr-0 begin_transaction dsl-0",
                       "set dsl-0 annex b",
                       "command cfgmgr-0 begin_transaction rfc2684-0",
                       "set rfc2684-0 encaps LLC",
                       "command cfgmgr-0 commit pppox-0",
                       "command cfgmgr-0 commit pvc-0",
                       "command cfgmgr-0 commit dsl-0",
                       "command cfgmgr-0 commit rfc2684-0",
                       "command cfgmgr-0 end_transaction pppox-0",
                       "command cfgmgr-0 end_transaction pvc-0",
                       "command cfgmgr-0 end_transaction dsl-0",
                       "command cfgmgr-0 end_transaction rfc2684-0",
                       "command pppox-0 apply",
                       "command pvc-0 apply",
                       "command dsl-0 apply",
                       "command rfc2684-0 apply",
                       "command cfgmgr-0 save"}),
              0);
    EXPECT_EQ(gateway.storedValue("wan-0", "linktype"), "pppoe");
    EXPECT_EQ(gateway.storedValue("pvc-0", "vci"), "32");
    EXPECT_EQ(gateway.value("dsl-0", "annex"), "b");
}

TEST_F(ClientRequestTest, AnEthernetConnectionWithoutAVlanIsWritten)
{
    EXPECT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction wan-1", "set wan-1 type bridge",
                 "set wan-1 linktype bridge", "command cfgmgr-0 commit wan-1",
                 "command cfgmgr-0 end_transaction wan-1", "command wan-1 apply",
                 "command cfgmgr-0 begin_transaction", "set - vlanid", "command cfgmgr-0 commit",
                 "command cfgmgr-0 end_transaction", "command - apply", "command cfgmgr-0 save"}),
        0);
    EXPECT_EQ(gateway.storedValue("wan-1", "linktype"), "bridge");
}

TEST_F(ClientRequestTest, ASwitchIsNotSaved)
{
    EXPECT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction route-0", "set route-0 default_gw wan-0",
                 "command cfgmgr-0 commit route-0", "command cfgmgr-0 end_transaction route-0",
                 "command route-0 apply_default_gw", "command cfgmgr-0 begin_transaction wan-0",
                 "set wan-0 enabled 1", "command cfgmgr-0 commit wan-0",
                 "command cfgmgr-0 end_transaction wan-0", "command wan-0 apply",
                 "command cfgmgr-0 begin_transaction wan-1", "set wan-1 enabled 0",
                 "command cfgmgr-0 commit wan-1", "command cfgmgr-0 end_transaction wan-1",
                 "command wan-1 apply"}),
        0);
    EXPECT_EQ(gateway.value("route-0", "default_gw"), "wan-0");
    EXPECT_EQ(gateway.storedValue("route-0", "default_gw"), "wan-1");
    EXPECT_EQ(gateway.storedValue("wan-1", "enabled"), "1");
}

TEST_F(ClientRequestTest, TwoObjectsAreReadTogetherAndClosedInEitherOrder)
{
    for (const char* last : {"conn-0", "samba_mngr-0"}) {
        const std::string first = last == std::string("conn-0") ? "samba_mngr-0" : "conn-0";
        const std::string endFirst = "command cfgmgr-0 end_transaction " + first;
        const std::string endLast = std::string("command cfgmgr-0 end_transaction ") + last;
        EXPECT_EQ(send({"command cfgmgr-0 begin_transaction conn-0",
                        "command cfgmgr-0 begin_transaction samba_mngr-0", "get conn-0 hostname",
                        "get samba_mngr-0 WorkGroup", endFirst.c_str(), endLast.c_str()}),
                  "<response version=\"1.0.1\">\n"
                  "<conn-0><key>hostname</key><value>gateway</value></conn-0>\n"
                  "<samba_mngr-0><key>WorkGroup</key><value>WORKGROUP</value></samba_mngr-0>\n"
                  "<webapp><error>0</error></webapp>\n</response>\n");
    }
}

TEST_F(ClientRequestTest, SharingIsAppliedBeforeItIsSaved)
{
    EXPECT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction conn-0",
                 "command cfgmgr-0 begin_transaction samba_mngr-0", "set conn-0 hostname attic",
                 "set samba_mngr-0 Description", "set samba_mngr-0 WorkGroup HOME",
                 "command cfgmgr-0 commit conn-0", "command cfgmgr-0 commit samba_mngr-0",
                 "command cfgmgr-0 end_transaction conn-0",
                 "command cfgmgr-0 end_transaction samba_mngr-0", "command conn-0 apply",
                 "command samba_mngr-0 apply", "command cfgmgr-0 save"}),
        0);
    EXPECT_EQ(gateway.storedValue("samba_mngr-0", "WorkGroup"), "HOME");
    EXPECT_EQ(gateway.storedValue("samba_mngr-0", "Description"), "");
}

TEST_F(ClientRequestTest, QueriesMayStandWithinATransaction)
{
    EXPECT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction wan-0", "get wan-0 type", "get wan-0 l2type",
                 "get wan-0 enabled", "get wan-0 entities", "query wan-0 isconnected",
                 "query wan-0 localip", "command cfgmgr-0 end_transaction wan-0"}),
        0);
}

TEST_F(ClientRequestTest, FragmentsOfSeveralRadiosArriveInOneRequest)
{
    EXPECT_EQ(errorIn(sendXml("<xmlrequest version=\"1.0.1\">"
                              "<command inst=\"cfgmgr-0\">\n  <key>begin_transaction</key>\n"
                              "  <value>wireless-0</value>\n </command>\n"
                              " <set inst=\"wireless-0\">\n  <key>ap0_ssid</key>\n"
                              "  <value>attic</value>\n </set>\n"
                              " <set inst=\"wireless-0\">\n  <key>wps_config_uuid_update</key>\n"
                              "  <value></value>\n </set>\n"
                              " <command inst=\"cfgmgr-0\">\n  <key>commit</key>\n"
                              "  <value>wireless-0</value>\n </command>\n"
                              "<command inst=\"cfgmgr-0\">\n  <key>save</key>\n"
                              "  <value></value>\n </command>\n</xmlrequest>")),
              0);
    EXPECT_EQ(gateway.storedValue("wireless-0", "ap0_ssid"), "attic");
}

} // namespace quorvel::simulator::tests
