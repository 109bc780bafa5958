#include "protocol/Vocabulary.h"
#include "protocol/ParamKeys.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace quorvel::test
{

using namespace wire;

TEST(VocabularyTest, NamesTheInstancesThatGatewaysHave)
{
    const QStringList names{cfgmgr0,   devmgr0,   sysmgr0,      webui0, product0,      route0,
                            dsl0,      eth0,      rfc26840,     dhcps0, wirelessCore0, wirelessAp0,
                            voice0,    warranty0, usbhostMngr0, wan0,   sntp0,         serial0,
                            failover0, wanVlan0,  bridgeVlan0};
    EXPECT_EQ(names,
              lines({"cfgmgr-0",        "devmgr-0",      "sysmgr-0", "webui-0",    "product-0",
                     "route-0",         "dsl-0",         "eth-0",    "rfc2684-0",  "dhcps-0",
                     "wireless_core-0", "wireless_ap-0", "voice-0",  "warranty-0", "usbhost_mngr-0",
                     "wan-0",           "sntp-0",        "serial-0", "failover-0", "wan_vlan-0",
                     "bridge_vlan-0"}));
}

TEST(VocabularyTest, NamesTheManagersThatOperationsActOn)
{
    const QStringList names{devmgr, voice,    wireless,    wirelessCore, wirelessWds,
                            dsl,    wanVlan,  usbhostMngr, serial,       vpn,
                            l2tp,   warranty, wan,         conn,         sambaMngr};
    EXPECT_EQ(names, lines({"devmgr", "voice", "wireless", "wireless_core", "wireless_wds", "dsl",
                            "wan_vlan", "usbhost_mngr", "serial", "vpn", "l2tp", "warranty", "wan",
                            "conn", "samba_mngr"}));
}

TEST(VocabularyTest, NamesTheManagersThatNoOperationActsOn)
{
    const QStringList names{logger,    msgmgr,      tmrmgr,   sysmgr,      cfgmgr,    webui,
                            security,  product,     route,    routed,      resolver,  dhcps,
                            dhcprelay, tr069,       snmp,     upnp,        ddns,      qos,
                            sntp,      adslcounter, failover, printerMngr, wirelessAp};
    EXPECT_EQ(names,
              lines({"logger",    "msgmgr",      "tmrmgr",   "sysmgr",       "cfgmgr",     "webui",
                     "security",  "product",     "route",    "routed",       "resolver",   "dhcps",
                     "dhcprelay", "tr069",       "snmp",     "upnp",         "ddns",       "qos",
                     "sntp",      "adslcounter", "failover", "printer_mngr", "wireless_ap"}));
}

TEST(VocabularyTest, NamesTheCommandsOfGeneralUse)
{
    const QStringList names{beginTransaction, commitTransaction, endTransaction, saveConfiguration,
                            applySettings,    applyDefaultGw,    mngrList,       instList,
                            enabled,          defaultGw};
    EXPECT_EQ(names,
              lines({"begin_transaction", "commit", "end_transaction", "save", "apply",
                     "apply_default_gw", "mngr_list", "inst_list", "enabled", "default_gw"}));
}

TEST(ParamKeysTest, SpellKeysAsTheirOwnNames)
{
    const QStringList keys{
        HTTP_PARAM_URL,  HTTP_PARAM_METHOD,  HTTP_PARAM_METHOD_POST,    HTTP_PARAM_DATA_TO_SEND,
        HTTP_PARAM_PATH, HTTP_PARAM_SESSION, REQUEST_EXEC_PARAM_RESULT, AUTH_PARAM_LOGINRESULT};
    EXPECT_EQ(keys, lines({"HTTP_PARAM_URL", "HTTP_PARAM_METHOD", "HTTP_PARAM_METHOD_POST",
                           "HTTP_PARAM_DATA_TO_SEND", "HTTP_PARAM_PATH", "HTTP_PARAM_SESSION",
                           "REQUEST_EXEC_PARAM_RESULT", "AUTH_PARAM_LOGINRESULT"}));
}

} // namespace quorvel::test
