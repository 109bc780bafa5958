#include "QuorvelctlRun.h"

namespace quorvelctl::test
{

namespace
{

struct Case {
    const char* name;
    const char* arguments;
    std::vector<const char*> faults;
    int status;
    /// After "quorvelctl: "; %1 stands for the address.
    const char* complaint;
};

class QuorvelctlFault : public QuorvelctlTest, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(QuorvelctlFault, IsToldAndNeverTakenForSuccess)
{
    for (const char* fault : GetParam().faults)
        spoil(fault);
    const Outcome result = run(GetParam().arguments);
    EXPECT_EQ(result.status, GetParam().status);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "quorvelctl: " +
                  QString::fromUtf8(GetParam().complaint)
                      .replace(QStringLiteral("%1"), QString::fromStdString(simulator.address()))
                      .toStdString() +
                  "\n");
}

const Case cases[] = {
    {"TheGatewaysErrorCode",
     "warranty show",
     {"error:7 key=name"},
     1,
     "can't read the warranty record: the gateway reports error 7"},
    {"AWriteThatTheGatewayRefuses",
     "warranty set --name Ada",
     {"error:9 key=name after=1"},
     1,
     "can't write the warranty record: the gateway reports error 9"},
    {"AReplyThatCanNotBeRead",
     "warranty show --json",
     {"html key=name"},
     1,
     "can't read the warranty record: the gateway's reply can't be read"},
    {"ARequestThatGotLost",
     "warranty show",
     {"close key=name"},
     4,
     "can't read the warranty record: the request failed on the way"},
    {"NoAnswerInTime",
     "warranty show",
     {"hang key=name"},
     4,
     "can't read the warranty record: the gateway didn't answer in time"},
    {"ALoginThatIsRefusedMeanwhile",
     "warranty show",
     {"session-expired 1 key=name", "html on=login after=1"},
     3,
     "can't read the warranty record: the login was refused"},
    // The library reports no error then, and an empty record.
    {"ALoginThatGetsLostMeanwhile",
     "warranty show --json",
     {"session-expired 1 key=name", "close on=login after=1 effect=no"},
     4,
     "can't read the warranty record: the login got no answer"},
    {"ALoginThatGetsLostAtFirst", "info", {"close on=login"}, 4, "%1 can't be reached"},
    {"SomethingThatIsNoGateway",
     "info",
     {"html on=webapp"},
     1,
     "%1 answers, but not as a gateway does"},
    {"AProbeWithAnError", "probe", {"http:500 on=probe"}, 4, "%1 doesn't answer"},
    {"AListOfWansThatTheGatewayRefuses",
     "wan list",
     {"error:7 key=inst_list"},
     1,
     "can't list the WANs: the gateway reports error 7"},
    {"DetailsOfAWanThatGotLost",
     "wan show wan-1 --json",
     {"close key=isconnected"},
     4,
     "can't read wan-1: the request failed on the way"},
    // What the routing has for the default gateway would hide it.
    {"AStateOfTheDefaultGatewayThatGotLost",
     "wan status",
     {"close key=def_gw_status"},
     1,
     "can't read the default gateway: the gateway didn't do it"},
    {"AWanThatTheGatewayDoesNotSwitchOn",
     "wan enable wan-0",
     {"error:9 key=enabled"},
     1,
     "can't enable wan-0: the gateway reports error 9"},
    {"ASwitchThatGotLost",
     "wan switch wan-0",
     {"close key=default_gw after=1 effect=no"},
     4,
     "can't switch to wan-0: the request failed on the way"},
    {"AnEntityThatCanNotBeDeletedForAReplyThatCanNotBeRead",
     "wan delete-entity wan-1 pppox",
     {"html key=delete_entity effect=no"},
     1,
     "can't delete the pppox entity of wan-1: the gateway's reply can't be read"},
    // The library reports no error if it can't find out what to delete.
    {"AnEntityThatCanNotBeFoundToBeDeleted",
     "wan delete-entity wan-1 pppox",
     {"close key=isconnected after=1"},
     1,
     "can't delete the pppox entity of wan-1: the gateway didn't do it"},
    {"AnInterfaceThatTheGatewayRefuses",
     "wan add-iface wan-1 x",
     {"error:9 key=addIface"},
     1,
     "can't add x to wan-1: the gateway reports error 9"},
    {"AConnectionThatCanNotBeRead",
     "internet show",
     {"html key=vlanid"},
     1,
     "can't read wan_vlan-0: the gateway's reply can't be read"},
    {"AConnectionThatTheGatewayRefuses",
     "internet set-eth wan-1 --link-type dhcp",
     {"error:9 key=apply"},
     1,
     "can't write the connection of wan-1: the gateway reports error 9"},
    {"AConnectionThatTheGatewayTakesWithoutAWord",
     "internet set-dsl wan-0 --link-type dhcp --json",
     {"hang key=apply"},
     4,
     "can't write the connection of wan-0: the gateway didn't answer in time"},
    {"ADryRunThatCanNotReadTheGateway",
     "internet set-eth wan-1 --link-type dhcp --dry-run",
     {"close key=vlanid"},
     4,
     "can't read wan_vlan-0: the request failed on the way"},
    // The library reports neither an error nor a line.
    {"AModemThatCanNotBeRead",
     "modem show",
     {"close key=simpin_status"},
     1,
     "can't read the modem's settings: the gateway tells nothing of wan-2"},
    {"AModemThatTheGatewayDoesNotSet",
     "modem set --apn a",
     {"error:9 key=force3g"},
     1,
     "can't write the modem's settings: the gateway reports error 9"},
    {"AModemWhoseSettingGotLost",
     "modem set --apn a --json",
     {"close key=force3g effect=no"},
     4,
     "can't write the modem's settings: the request failed on the way"},
    {"ARestartThatDidNotArrive",
     "reboot --yes",
     {"close key=reboot effect=no"},
     4,
     "can't restart the gateway: the request failed on the way"},
    {"AResetThatTheGatewayRefuses",
     "factory-reset --yes",
     {"error:6 key=factory_default"},
     1,
     "can't reset the gateway: the gateway reports error 6"},
    {"ARadioThatCanNotBeRead",
     "wifi list",
     {"error:7 key=ap0_ssid"},
     1,
     "can't read the settings of wireless-0: the gateway reports error 7"},
    {"CapabilitiesThatCanNotBeRead",
     "wifi capabilities",
     {"html key=wireless_capabilities"},
     1,
     "can't read the capabilities of wireless-0: the gateway's reply can't be read"},
    {"AMeshLinkThatCanNotBeRead",
     "wifi mesh",
     {"error:7 key=wds2_mac"},
     1,
     "can't list the mesh links of wireless-0: the gateway reports error 7"},
    // The library reports no error of these three.
    {"AStateOfWpsThatGotLost",
     "wifi wps --json",
     {"close key=wps_enabled"},
     1,
     "can't read the state of WPS at wireless-0: the gateway didn't do it"},
    {"SecurityModesThatGotLost",
     "wifi security-modes",
     {"close key=txmode"},
     1,
     "can't read the security modes of wireless-0: the gateway didn't do it"},
    {"ARadioWhoseWpsCanNotBeSwitched",
     "wifi wps on",
     {},
     1,
     "WPS of wireless-0 can't be switched: only that of older radios can"},
    {"AWifiWriteThatTheGatewayRefuses",
     "wifi set --on --ssid Home",
     {"error:9 key=apply"},
     1,
     "can't write the settings of wireless-0: the gateway reports error 9"},
    {"AWifiWriteThatGotLost",
     "wifi set --on --ssid Home",
     {"close key=apply effect=no"},
     4,
     "can't write the settings of wireless-0: the request failed on the way"},
    {"AWifiWriteWhoseLoginIsRefused",
     "wifi set --on --ssid Home",
     {"session-expired 1 key=apply", "html on=login after=1"},
     3,
     "can't write the settings of wireless-0: the login was refused"},
    {"AWifiWriteWhoseLoginGetsLost",
     "wifi set --on --ssid Home",
     {"session-expired 1 key=apply", "close on=login after=1 effect=no"},
     4,
     "can't write the settings of wireless-0: the login got no answer"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlFault, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvelctl::test
