#include "assembly/Recognition.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

/// A gateway's managers, and what is found of them besides the dialect and the login's result.
struct Functions {
    const char* name;
    QStringList managers;
    QStringList inOlderDialect;
    QStringList inNewerDialect;
};

void PrintTo(const Functions& functions, std::ostream* out)
{
    *out << functions.name;
}

Functions alike(const char* name, const QStringList& managers, const QStringList& found)
{
    return {name, managers, found, found};
}

class RecognitionOfFunctions : public Recognition, public testing::WithParamInterface<Functions>
{
protected:
    QStringList foundFunctions() const
    {
        ParamMap functions = parameters;
        EXPECT_EQ(functions.take(text("AUTH_PARAM_LOGINRESULT")), text("0"));
        functions.remove(text("CPE_PARAM_XML_VERSION"));
        return entries(functions);
    }
};

} // namespace

TEST_P(RecognitionOfFunctions, FollowsTheManagersInTheOlderDialect)
{
    gateway.logIn().reply(managerList100(GetParam().managers));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(parameters.value(text("CPE_PARAM_XML_VERSION")), text("1.0.0"));
    EXPECT_EQ(foundFunctions(), GetParam().inOlderDialect);
}

TEST_P(RecognitionOfFunctions, FollowsTheManagersInTheNewerDialect)
{
    scriptRecognition(GetParam().managers);
    EXPECT_TRUE(recognize());
    EXPECT_EQ(parameters.value(text("CPE_PARAM_XML_VERSION")), text("1.0.1"));
    EXPECT_EQ(foundFunctions(), GetParam().inNewerDialect);
}

INSTANTIATE_TEST_SUITE_P(
    AllFunctions, RecognitionOfFunctions,
    testing::Values(
        alike("NoManagers", {}, {}),
        alike("GeneralSettings", lines({"devmgr"}),
              lines({"CPE_PARAM_GENERAL_SETTINGS_VERSION=1"})),
        Functions{"Telephony", lines({"voice"}), lines({"CPE_PARAM_VOIP_VERSION=1"}),
                  lines({"CPE_PARAM_VOIP_VERSION=2"})},
        alike("OlderRadio", lines({"wireless_core"}),
              lines({"CPE_PARAM_WIRELESS_CORE_VERSION=1", "CPE_PARAM_WIRELESS_VERSION=1"})),
        alike("NewerRadio", lines({"wireless"}),
              lines({"CPE_PARAM_WIRELESS_NG_VERSION=1", "CPE_PARAM_WIRELESS_VERSION=1"})),
        alike("RadiosOfBothGenerations", lines({"wireless", "wireless_core"}),
              lines({"CPE_PARAM_WIRELESS_CORE_VERSION=1", "CPE_PARAM_WIRELESS_NG_VERSION=1",
                     "CPE_PARAM_WIRELESS_VERSION=1"})),
        alike("Dsl", lines({"dsl"}), lines({"CPE_PARAM_ADSL_VERSION=1"})),
        alike("EthernetWan", lines({"wan_vlan"}), lines({"CPE_PARAM_ETHERNET_VERSION=1"})),
        alike("UsbHost", lines({"usbhost_mngr"}), lines({"CPE_PARAM_USBHOST_VERSION=1"})),
        alike("Modem", lines({"serial"}), lines({"CPE_PARAM_3G_VERSION=1"})),
        alike("PptpTunnels", lines({"vpn"}), lines({"CPE_PARAM_PPTP_VERSION=1"})),
        alike("L2tpTunnels", lines({"l2tp"}), lines({"CPE_PARAM_L2TP_VERSION=1"})),
        alike("WarrantyRecord", lines({"warranty"}), lines({"CPE_PARAM_WARRANTY_VERSION=1"})),
        alike("NothingOfNamesThatAreOnlySimilar",
              lines({"wireless-0", "wireless_ap", "Wireless", "dsl-0", " dsl", "wan_vlan2", "wans",
                     "DEVMGR", "usbhost", "voice-0", "vpn ", "l2tpd", "warranty-0", "serial-0"}),
              {}),
        alike("EveryFunctionAtOnceAmongOthers",
              lines({"conn", "devmgr", "dsl", "l2tp", "logger", "serial", "usbhost_mngr", "vpn",
                     "wan_vlan", "warranty"}),
              lines({"CPE_PARAM_3G_VERSION=1", "CPE_PARAM_ADSL_VERSION=1",
                     "CPE_PARAM_ETHERNET_VERSION=1", "CPE_PARAM_GENERAL_SETTINGS_VERSION=1",
                     "CPE_PARAM_L2TP_VERSION=1", "CPE_PARAM_PPTP_VERSION=1",
                     "CPE_PARAM_USBHOST_VERSION=1", "CPE_PARAM_WARRANTY_VERSION=1"}))),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Recognition, TakesTheValueOfEveryEntryForAManagerButNoKey)
{
    gateway.logIn().reply(text("<response version=\"1.0.0\"><webapp><error>dsl</error></webapp>"
                               "<devmgr-0><vpn>l2tp</vpn><serial>1</serial></devmgr-0>"
                               "</response>"));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(entries(parameters),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_ADSL_VERSION=1",
                     "CPE_PARAM_L2TP_VERSION=1", "CPE_PARAM_XML_VERSION=1.0.0"}));
}

TEST_F(Recognition, TakesTheVersionForAManagerToo)
{
    const QString list = text("<response version=\"devmgr\"/>");
    gateway.logIn().reply(list).reply(list);
    EXPECT_TRUE(recognize());
    EXPECT_EQ(parameters.value(text("CPE_PARAM_GENERAL_SETTINGS_VERSION")), text("1"));
}

} // namespace quorvel::test
