#include "internet/WrittenConnection.h"
#include "support/RequestCases.h"

namespace quorvel::test
{

namespace
{

/// How often a text stands in the lines of a request.
struct Count {
    const char* part;
    int times;
};

/// A write that doesn't do what one might think.
struct Oddity {
    const char* name;
    WrittenConnection connection;
    std::vector<Count> counts;
};

void PrintTo(const Oddity& oddity, std::ostream* out)
{
    *out << oddity.name;
}

const char* const saving = "command \"cfgmgr-0\" \"save\" \"\"\n";

const Oddity dslOddities[] = {
    {"SavesTwiceEvenIfOnlyTheLinkTypeIsWritten",
     {Link::Dsl, "pppoe", {{"wan-3.entities.pppox", nullptr}}},
     {{saving, 2}, {"\"pppox-1\"", 0}, {"\"pvc-4\"", 0}, {"\"dsl-0\"", 0}}},
    {"SavesTwiceWithAllSettingsToo", {Link::Dsl, "pppoe", {}}, {{saving, 2}, {"\"mtu\"", 1}}},
    {"WritesTheAnnexToTheFirstLineWhicheverWasAsked",
     {Link::Dsl, "pppoe", {}},
     {{"set \"dsl-0\" \"annex\" \"b\"\n", 1},
      {"command \"cfgmgr-0\" \"begin_transaction\" \"dsl-0\"\n", 1},
      {"command \"dsl-0\" \"apply\" \"\"\n", 1},
      {"\"dsl-1\"", 0}}},
    {"WritesTheAnnexIfTheChoiceIsSpeltInMixedCase",
     {Link::Dsl, "pppoa", {{"dsl-1.annexes", "aB"}}},
     {{"set \"dsl-0\" \"annex\" \"b\"\n", 1}}},
    {"WritesAnnexAIfNoneIsNamed",
     {Link::Dsl, "pppoa", {{"dsl-1.annexes", "AB"}, {"dsl-1.annex", nullptr}}},
     {{"set \"dsl-0\" \"annex\" \"a\"\n", 1}}},
    {"LeavesTheLineAloneIfItHasOneAnnexOnly",
     {Link::Dsl, "pppoe", {{"dsl-1.annexes", "a"}}},
     {{"\"dsl-0\"", 0}}},
    {"TakesALineThatNamesNoAnnexesForOneWithoutAChoice",
     {Link::Dsl, "pppoe", {{"dsl-1.annexes", nullptr}}},
     {{"\"dsl-0\"", 0}}},
    {"GivesPppoaItsMtuAndEncapsulation",
     {Link::Dsl, "pppoa", {}},
     {{"set \"pppox-1\" \"mtu\" \"1500\"\n", 1}, {"set \"rfc2684-2\" \"encaps\" \"VCMUX\"\n", 1}}},
    {"GivesPppoeItsMtuAndEncapsulation",
     {Link::Dsl, "pppoe", {}},
     {{"set \"pppox-1\" \"mtu\" \"1492\"\n", 1}, {"set \"rfc2684-2\" \"encaps\" \"LLC\"\n", 1}}},
    {"TakesThePppTypeFromTheLinkType",
     {Link::Dsl, "pppoa", {}},
     {{"set \"pppox-1\" \"type\" \"pppoa\"\n", 1}, {"ppp type", 0}}},
    {"ReplacesEmptyPvcValuesOfWhichTwoAreTheSame",
     {Link::Dsl, "pppoe", {{"pvc-4.vpi", ""}, {"pvc-4.vci", ""}, {"pvc-4.vlanid", ""}}},
     {{"set \"pvc-4\" \"vpi\" \"8\"\n", 1},
      {"set \"pvc-4\" \"vci\" \"35\"\n", 1},
      {"set \"pvc-4\" \"vlanid\" \"35\"\n", 1}}},
    {"KeepsPvcValuesOfZero",
     {Link::Dsl, "pppoe", {{"pvc-4.vpi", "0"}, {"pvc-4.vci", "0"}, {"pvc-4.vlanid", "0"}}},
     {{"set \"pvc-4\" \"vpi\" \"0\"\n", 1},
      {"set \"pvc-4\" \"vci\" \"0\"\n", 1},
      {"set \"pvc-4\" \"vlanid\" \"0\"\n", 1}}},
    {"WritesNothingOfAVpn",
     {Link::Dsl, "vpn", {}},
     {{saving, 2}, {"vpn-6", 0}, {"dhcpc-8", 0}, {"static-5", 0}}},
    {"WritesNoAddressWithoutAStaticEntity",
     {Link::Dsl, "static", {{"wan-3.entities.static", ""}}},
     {{saving, 2}, {"192.0.2.10", 0}}},
    {"WritesNoStaticBlockForRussianPppoeWithoutAStaticEntity",
     {Link::Dsl, "russian_pppoe", {{"wan-3.entities.static", ""}}},
     {{"set \"pppox-1\" \"enabled\" \"ppp enabled\"\n", 1},
      {"set \"pppox-1\" \"type\" \"ppp type\"\n", 1},
      {"\"mtu\"", 0},
      {"192.0.2.10", 0}}},
    {"WritesATypeInCapitalsAndNothingElse",
     {Link::Dsl, "PPPOE", {}},
     {{"set \"wan-3\" \"type\" \"PPPOE\"\n", 1},
      {"set \"wan-3\" \"linktype\" \"PPPOE\"\n", 1},
      {saving, 2},
      {"pppox-1", 0}}}};

const Oddity ethernetOddities[] = {
    {"WritesTheVlanWithoutANameIfThereIsNone",
     {Link::Ethernet, "bridge", {{"wan-3.wan_vlan", nullptr}}},
     {{"command \"cfgmgr-0\" \"begin_transaction\" \"\"\n", 1},
      {"set \"\" \"vlanid\" \"\"\n", 1},
      {"command \"cfgmgr-0\" \"commit\" \"\"\n", 1},
      {"command \"cfgmgr-0\" \"end_transaction\" \"\"\n", 1},
      {"command \"\" \"apply\" \"\"\n", 1}}},
    {"TurnsAnyTypeWithAPppEntityIntoPppoe",
     {Link::Ethernet, "static", {{"wan-3.entities.pppox", "pppox-1"}}},
     {{"set \"wan-3\" \"type\" \"pppoe\"\n", 1},
      {"set \"wan-3\" \"linktype\" \"pppoe\"\n", 1},
      {"set \"pppox-1\" \"type\" \"pppoe\"\n", 1},
      {"static", 0}}},
    {"TurnsAnUnknownTypeWithAPppEntityIntoPppoe",
     {Link::Ethernet, "pppoa", {{"wan-3.entities.pppox", "pppox-1"}}},
     {{"set \"wan-3\" \"type\" \"pppoe\"\n", 1}, {"pppoa", 0}}},
    {"LeavesDhcpWithAPppEntityAlone",
     {Link::Ethernet, "dhcp", {{"wan-3.entities.pppox", "pppox-1"}}},
     {{"set \"wan-3\" \"type\" \"dhcp\"\n", 1}, {"pppox-1", 0}}},
    {"WritesRussianPppoeAsTheTypeItself",
     {Link::Ethernet, "russian_pppoe", {}},
     {{"set \"wan-3\" \"type\" \"russian_pppoe\"\n", 1},
      {"set \"wan-3\" \"linktype\" \"russian_pppoe\"\n", 1},
      {"set \"pppox-1\" \"type\" \"ppp type\"\n", 1},
      {"\"mtu\"", 0}}},
    {"SavesOnceForAVpnWithoutItsEntity",
     {Link::Ethernet, "vpn", {{"wan-3.entities.vpn", ""}}},
     {{saving, 1}, {"vpn-6", 0}, {"static-5", 0}}},
    {"SavesTwiceForAVpn", {Link::Ethernet, "vpn", {}}, {{saving, 2}}},
    {"SavesTwiceForAnL2tpTunnel", {Link::Ethernet, "l2tp", {}}, {{saving, 2}}},
    {"SavesOnceForPppoe", {Link::Ethernet, "pppoe", {}}, {{saving, 1}}},
    {"AppliesADhcpClientWithoutAName",
     {Link::Ethernet, "vpn", {{"wan-3.entities.dhcpc", ""}}},
     {{"command \"\" \"apply\" \"\"\n", 1}, {"dhcpc-8", 0}}},
    {"MakesAVpnTheDefaultRouteWhateverTheEntriesSay",
     {Link::Ethernet, "vpn", {{"vpn-6.defaultroute", "0"}, {"vpn-6.settings.defaultroute", "0"}}},
     {{"set \"vpn-6\" \"defaultroute\" \"1\"\n", 1}, {"\"defaultroute\"", 1}}},
    {"MakesAnL2tpTunnelTheDefaultRouteWhateverTheEntriesSay",
     {Link::Ethernet,
      "l2tp",
      {{"l2tp-7.defaultroute", "0"}, {"l2tp-7.settings.defaultroute", "0"}}},
     {{"set \"l2tp-7\" \"defaultroute\" \"1\"\n", 1}, {"\"defaultroute\"", 1}}},
    {"KnowsNoEntityOfTheVlan",
     {Link::Ethernet,
      "dhcp",
      {{"wan-3.wan_vlan", nullptr}, {"wan-3.entities.wan_vlan", "wan_vlan-9"}}},
     {{"wan_vlan-9", 0}, {"set \"\" \"vlanid\" \"\"\n", 1}}}};

class ConnectionOddity : public BuiltGateway, public testing::WithParamInterface<Oddity>
{
protected:
    void SetUp() override { buildNewest(); }
};

} // namespace

TEST_P(ConnectionOddity, StandsOnTheWire)
{
    gateway.reply(reply101({}));
    ParamMap result;
    EXPECT_TRUE(GetParam().connection.write(*cpe->getAdslImplementor(), result));
    const QString sent = transcript(gateway);
    for (const auto& [part, times] : GetParam().counts)
        EXPECT_EQ(sent.count(text(part)), times) << part << "in\n" << sent.toStdString();
}

INSTANTIATE_TEST_SUITE_P(OverDsl, ConnectionOddity, testing::ValuesIn(dslOddities), CaseName());
INSTANTIATE_TEST_SUITE_P(OverEthernet, ConnectionOddity, testing::ValuesIn(ethernetOddities),
                         CaseName());

namespace
{

/// A write without a link type, with a command left in the queue by whoever came before.
class UntypedConnection : public BuiltGateway
{
protected:
    void SetUp() override
    {
        buildNewest();
        formatter()->addCommand(text("sysmgr-0"), text("reboot"), QString());
    }

    boost::shared_ptr<RequestFormatter> formatter() const
    {
        return cpe->getAdslImplementor()->getRequestFormatter();
    }

    ParamMap result;
};

} // namespace

TEST_F(UntypedConnection, IsRefusedOverDslBeforeTheQueueIsTouched)
{
    const WrittenConnection untyped{Link::Dsl, "pppoe", {{"wan-3.type", nullptr}}};
    EXPECT_FALSE(untyped.write(*cpe->getAdslImplementor(), result));
    EXPECT_EQ(entries(result), lines({}));
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(commandLines(formatter()->formatRequest()),
              text("version 1.0.1\ncommand \"sysmgr-0\" \"reboot\" \"\"\n"));
}

TEST_F(UntypedConnection, IsRefusedOverEthernetWithTheQueueEmptied)
{
    const WrittenConnection untyped{Link::Ethernet, "pppoe", {{"wan-3.type", ""}}};
    EXPECT_FALSE(untyped.write(*cpe->getAdslImplementor(), result));
    EXPECT_EQ(entries(result), lines({}));
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(commandLines(formatter()->formatRequest()), text("version 1.0.1\n"));
}

TEST_F(UntypedConnection, LeavesTheFamilyUsable)
{
    for (const Link link : {Link::Dsl, Link::Ethernet}) {
        const WrittenConnection untyped{link, "pppoe", {{"wan-3.type", ""}}};
        EXPECT_FALSE(untyped.write(*cpe->getAdslImplementor(), result));
    }
    gateway.reply(reply101({{"dsl-1", "status.mode", "ADSL2+"}}));
    EXPECT_TRUE(cpe->getAdslImplementor()->getDslState(text("dsl-1"), result));
    EXPECT_EQ(entries(result), lines({"dsl-1.status.mode=ADSL2+", "response=1.0.1"}));
}

} // namespace quorvel::test
