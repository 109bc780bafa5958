#include "internet/InternetFixture.h"
#include "support/RequestCases.h"

namespace quorvel::test
{

namespace
{

using Facade = AspAdslSettingsFacade;
using Error = AspWebAppErrorCodes;

/// A getter of a record: what the gateway answers, and what becomes of it.
struct Reading {
    const char* name;
    ShownCall call;
    QString reply;
    const char* record;
    const char* line;
    const char* emptyRecord; ///< from a reply that holds nothing
    const char* emptyLine;
};

void PrintTo(const Reading& reading, std::ostream* out)
{
    *out << reading.name;
}

// Each reply holds the same entries of another instance too, and names that only resemble.

const QString pppoxReply = reply101({{"pppox-1", "settings.type", "pppoe"},
                                     {"pppox-1", "settings.username", "user@isp"},
                                     {"pppox-1", "settings.password", "p <&> w"},
                                     {"pppox-1", "settings.mtu", "1492"},
                                     {"pppox-1", "settings.lcp_echo_interval", "30"},
                                     {"pppox-1", "settings.lcp_echo_failure", "3"},
                                     {"pppox-1", "settings.ondemand", "0"},
                                     {"pppox-1", "settings.idle", "600"},
                                     {"pppox-1", "type", "wrong"},
                                     {"pppox-2", "settings.username", "wrong"},
                                     {"webapp", "error", "5"}});

const Reading readings[] = {
    {"getPppoxSettings", reading(&Facade::getPppoxSettings, "pppox-1"), pppoxReply,
     "pppoe|user@isp|p <&> w|1492|30|3|0|600",
     "DEBUG AspAdslSettingsFacade::getPppoxSettings -> Settings are fetched:"
     "\tInstance:pppox-1\tType:pppoe\tUsername:user@isp\tPassword:p <&> w\tMtu:1492",
     "|||||||",
     "DEBUG AspAdslSettingsFacade::getPppoxSettings -> Settings are fetched:"
     "\tInstance:pppox-1\tType:\tUsername:\tPassword:\tMtu:"},
    {"getPppoxState", reading(&Facade::getPppoxState, "pppox-1"),
     reply101({{"pppox-1", "state.status", "CONNECTED"},
               {"pppox-1", "state.interface", "ppp0"},
               {"pppox-1", "state.localIP", "192.0.2.10"},
               {"pppox-1", "state.remoteIP", "192.0.2.1"},
               {"pppox-1", "state.primaryDNS", "198.51.100.1"},
               {"pppox-1", "state.secondaryDNS", "198.51.100.2"},
               {"pppox-1", "state.sessionId", "41"},
               {"pppox-1", "state.nasDevice", "nas0"},
               {"pppox-1", "status", "wrong"},
               {"webapp", "error", "5"}}),
     "CONNECTED|ppp0|192.0.2.10|192.0.2.1|198.51.100.1|198.51.100.2|41|nas0",
     "DEBUG AspAdslSettingsFacade::getPppoxState -> State is fetched:"
     "\tInstance:pppox-1\tStatus:CONNECTED\tPPP Interface:ppp0\tLocal IP:192.0.2.10"
     "\tRemote IP:192.0.2.1\tPrimary DNS:198.51.100.1\tSecondary DNS:198.51.100.2",
     "|||||||",
     "DEBUG AspAdslSettingsFacade::getPppoxState -> State is fetched:"
     "\tInstance:pppox-1\tStatus:\tPPP Interface:\tLocal IP:\tRemote IP:\tPrimary DNS:"
     "\tSecondary DNS:"},
    {"getRussianPppoxSettings", reading(&Facade::getRussianPppoxSettings, "pppox-1"), pppoxReply,
     "user@isp|p <&> w|false|false",
     "DEBUG AspAdslSettingsFacade::getPppoxSettings -> Settings are fetched:"
     "\tInstance:pppox-1\tusername:user@isp\tpassword:p <&> w",
     "||false|false",
     "DEBUG AspAdslSettingsFacade::getPppoxSettings -> Settings are fetched:"
     "\tInstance:pppox-1\tusername:\tpassword:"},
    {"getVpnSettings", reading(&Facade::getVpnSettings, "l2tp-7"),
     reply101({{"l2tp-7", "server", "vpn.example"},
               {"l2tp-7", "username-0", "user"},
               {"l2tp-7", "password-0", "secret"},
               {"l2tp-7", "type", "l2tp"},
               {"l2tp-7", "username", "wrong"},
               {"l2tp-7", "settings.server", "wrong"},
               {"webapp", "error", "5"}}),
     "vpn.example|user|secret|l2tp|false|false",
     "DEBUG AspAdslSettingsFacade::getVpnSettings -> Settings are fetched:"
     "\tInstance:l2tp-7\tserver:vpn.example\tusername:user\tpassword:secret",
     "||||false|false",
     "DEBUG AspAdslSettingsFacade::getVpnSettings -> Settings are fetched:"
     "\tInstance:l2tp-7\tserver:\tusername:\tpassword:"},
    {"getDhcpSettings", reading(&Facade::getDhcpSettings, "dhcpc-8"),
     reply101({{"dhcpc-8", "localip", "192.0.2.77"},
               {"dhcpc-8", "netmask", "255.255.0.0"},
               {"webapp", "error", "5"}}),
     "192.0.2.77|255.255.0.0",
     "DEBUG AspAdslSettingsFacade::getDhcpSettings -> Settings are fetched:"
     "\tInstance:dhcpc-8\tlocalip:192.0.2.77\tnetworkMask:255.255.0.0",
     "|",
     "DEBUG AspAdslSettingsFacade::getDhcpSettings -> Settings are fetched:"
     "\tInstance:dhcpc-8\tlocalip:\tnetworkMask:"},
    {"getStaticSettings", reading(&Facade::getStaticSettings, "static-5"),
     reply101({{"static-5", "settings.ip", "192.0.2.10"},
               {"static-5", "settings.mask", "255.255.255.0"},
               {"static-5", "settings.gateway", "192.0.2.1"},
               {"static-5", "settings.dns1", "198.51.100.1"},
               {"static-5", "settings.dns2", "198.51.100.2"},
               {"static-5", "ip", "wrong"},
               {"webapp", "error", "5"}}),
     "192.0.2.10|255.255.255.0|192.0.2.1|198.51.100.1|198.51.100.2",
     "DEBUG AspAdslSettingsFacade::getStaticSettings -> Settings are fetched:"
     "\tInstance:static-5\tipAddress:192.0.2.10\tnetworkGateway:192.0.2.1"
     "\tnetworkMask:255.255.255.0\tdns1:198.51.100.1\tdns2:198.51.100.2",
     "||||",
     "DEBUG AspAdslSettingsFacade::getStaticSettings -> Settings are fetched:"
     "\tInstance:static-5\tipAddress:\tnetworkGateway:\tnetworkMask:\tdns1:\tdns2:"},
    {"getWanVlanSettings", reading(&Facade::getWanVlanSettings, "wan_vlan-9"),
     reply101({{"wan_vlan-9", "name", "internet"},
               {"wan_vlan-9", "vlanid", "101"},
               {"wan_vlan-9", "port", "4"},
               {"webapp", "error", "5"}}),
     "internet|101|4",
     "DEBUG AspAdslSettingsFacade::getWanVlanSettings -> Settings are fetched:"
     "\tInstance:wan_vlan-9\tVPI:internet\tvlanId:101\tport:4",
     "||",
     "DEBUG AspAdslSettingsFacade::getWanVlanSettings -> Settings are fetched:"
     "\tInstance:wan_vlan-9\tVPI:\tvlanId:\tport:"},
    {"getPvcSettings", reading(&Facade::getPvcSettings, "pvc-4"),
     reply101({{"pvc-4", "vpi", "8"},
               {"pvc-4", "vci", "35"},
               {"pvc-4", "traffic_class", "UBR"},
               {"pvc-4", "pcr", "1000"},
               {"pvc-4", "scr", "900"},
               {"pvc-4", "mbs", "80"},
               {"pvc-4", "vlanid", "7"},
               {"webapp", "error", "5"}}),
     "8|35|UBR|1000|900|80|7",
     "DEBUG AspAdslSettingsFacade::getPvcSettings -> Settings are fetched:"
     "\tInstance:pvc-4\tVPI:8\tVCI:35",
     "||||||",
     "DEBUG AspAdslSettingsFacade::getPvcSettings -> Settings are fetched:"
     "\tInstance:pvc-4\tVPI:\tVCI:"},
    {"getDslState", reading(&Facade::getDslState, "dsl-1"),
     reply101({{"dsl-1", "status.training_stat", "SHOWTIME"},
               {"dsl-1", "status.mode", "ADSL2+"},
               {"dsl-1", "status.channel", "INTERLEAVED"},
               {"dsl-1", "status.trellis", "ON"},
               {"dsl-1", "status.line_stat", "UP"},
               {"dsl-1", "mode", "wrong"},
               {"webapp", "error", "5"}}),
     "SHOWTIME|ADSL2+|INTERLEAVED|ON|UP",
     "DEBUG AspAdslSettingsFacade::getDslState -> Status is fetched:"
     "\tInstance:dsl-1\tMode:ADSL2+\tLine Status:UP\tChannel:INTERLEAVED",
     "||||",
     "DEBUG AspAdslSettingsFacade::getDslState -> Status is fetched:"
     "\tInstance:dsl-1\tMode:\tLine Status:\tChannel:"},
    {"getUsernameExtension", [](Facade& f, Error& e) { return f.getUsernameExtension(e); },
     reply101({{"webui-0", "username_extension", "@isp.example"}, {"webapp", "error", "5"}}),
     "@isp.example",
     "DEBUG AspAdslSettingsFacade::getUsernameExtension -> Settings are fetched:"
     "Username Extension:\t@isp.example",
     "",
     "DEBUG AspAdslSettingsFacade::getUsernameExtension -> Settings are fetched:"
     "Username Extension:\t"}};

class InternetRecord : public InternetFacade, public testing::WithParamInterface<Reading>
{
};

} // namespace

TEST_P(InternetRecord, IsReadAndLoggedBesideTheGatewaysError)
{
    gateway.reply(GetParam().reply);
    EXPECT_EQ(GetParam().call(facade, error), text(GetParam().record));
    EXPECT_EQ(error, 5);
    EXPECT_EQ(ownLines(), lines({GetParam().line}));
}

TEST_P(InternetRecord, IsEmptyWhereTheReplyHoldsNothing)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_EQ(GetParam().call(facade, error), text(GetParam().emptyRecord));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), lines({GetParam().emptyLine}));
}

INSTANTIATE_TEST_SUITE_P(AllGetters, InternetRecord, testing::ValuesIn(readings), CaseName());

} // namespace quorvel::test
