#include "internet/WrittenConnection.h"
#include "support/RequestCases.h"

namespace quorvel::test
{

namespace
{

struct Case {
    const char* name;
    WrittenConnection connection;
};

void PrintTo(const Case& writeCase, std::ostream* out)
{
    *out << writeCase.name;
}

const char* const pppEntity = "wan-3.entities.pppox";
const char* const pvcEntity = "wan-3.entities.pvc";
const char* const rfc2684Entity = "wan-3.entities.rfc2684";
const char* const staticEntity = "wan-3.entities.static";
const char* const dhcpClient = "wan-3.entities.dhcpc";
const char* const annexes = "dsl-1.annexes";
const char* const vlan = "wan-3.wan_vlan";

const Case dslCases[] = {
    {"dslPppoe", {Link::Dsl, "pppoe", {}}},
    {"dslPppoa", {Link::Dsl, "pppoa", {}}},
    {"dslPppoeWithoutPvc", {Link::Dsl, "pppoe", {{pvcEntity, nullptr}}}},
    {"dslPppoeWithoutRfc2684", {Link::Dsl, "pppoe", {{rfc2684Entity, nullptr}}}},
    {"dslPppoeWithoutAnnexChoice", {Link::Dsl, "pppoe", {{annexes, "a"}}}},
    {"dslPppoeWithPppEntityOnly",
     {Link::Dsl, "pppoe", {{pvcEntity, ""}, {rfc2684Entity, ""}, {annexes, nullptr}}}},
    {"dslPppoeWithEmptyPvcValues",
     {Link::Dsl, "pppoe", {{"pvc-4.vpi", ""}, {"pvc-4.vci", ""}, {"pvc-4.vlanid", nullptr}}}},
    {"dslPppoeWithoutCredentials",
     {Link::Dsl,
      "pppoe",
      {{"pppox-1.settings.username", ""}, {"pppox-1.settings.password", nullptr}}}},
    {"dslPppoeWithoutPppEntity", {Link::Dsl, "pppoe", {{pppEntity, nullptr}}}},
    {"dslPppoaWithoutPppEntity", {Link::Dsl, "pppoa", {{pppEntity, ""}}}},
    {"dslPppoaWithoutPvc", {Link::Dsl, "pppoa", {{pvcEntity, ""}}}},
    {"dslPppoaWithoutRfc2684", {Link::Dsl, "pppoa", {{rfc2684Entity, ""}}}},
    {"dslPppoaWithoutAnnexChoice", {Link::Dsl, "pppoa", {{annexes, "b"}}}},
    {"dslRussianPppoe", {Link::Dsl, "russian_pppoe", {}}},
    {"dslRussianPppoeWithoutStatic", {Link::Dsl, "russian_pppoe", {{staticEntity, ""}}}},
    {"dslRussianPppoeWithoutPppEntity", {Link::Dsl, "russian_pppoe", {{pppEntity, ""}}}},
    {"dslStatic", {Link::Dsl, "static", {}}},
    {"dslStaticWithoutStaticEntity", {Link::Dsl, "static", {{staticEntity, nullptr}}}},
    {"dslDhcp", {Link::Dsl, "dhcp", {}}},
    {"dslBridge", {Link::Dsl, "bridge", {}}},
    {"dslVpn", {Link::Dsl, "vpn", {}}},
    {"dslL2tp", {Link::Dsl, "l2tp", {}}}};

const Case ethernetCases[] = {
    {"ethDhcp", {Link::Ethernet, "dhcp", {}}},
    {"ethDhcpWithPppEntity", {Link::Ethernet, "dhcp", {{pppEntity, "pppox-1"}}}},
    {"ethDhcpWithoutVlan", {Link::Ethernet, "dhcp", {{vlan, nullptr}}}},
    {"ethBridge", {Link::Ethernet, "bridge", {}}},
    {"ethBridgeWithoutVlan", {Link::Ethernet, "bridge", {{vlan, nullptr}}}},
    {"ethPppoe", {Link::Ethernet, "pppoe", {}}},
    {"ethPppoeWithoutVlan", {Link::Ethernet, "pppoe", {{vlan, ""}}}},
    {"ethPppoeWithoutPppEntity", {Link::Ethernet, "pppoe", {{pppEntity, nullptr}}}},
    {"ethRussianPppoe", {Link::Ethernet, "russian_pppoe", {}}},
    {"ethRussianPppoeWithoutStatic", {Link::Ethernet, "russian_pppoe", {{staticEntity, ""}}}},
    {"ethRussianPppoeWithoutPppEntity", {Link::Ethernet, "russian_pppoe", {{pppEntity, ""}}}},
    {"ethRussianPppoeWithoutVlan", {Link::Ethernet, "russian_pppoe", {{vlan, ""}}}},
    {"ethVpn", {Link::Ethernet, "vpn", {}}},
    {"ethVpnWithoutStatic", {Link::Ethernet, "vpn", {{staticEntity, nullptr}}}},
    {"ethVpnWithoutVlan", {Link::Ethernet, "vpn", {{vlan, nullptr}}}},
    {"ethVpnWithoutDhcpClient", {Link::Ethernet, "vpn", {{dhcpClient, nullptr}}}},
    {"ethVpnWithoutVpnEntity", {Link::Ethernet, "vpn", {{"wan-3.entities.vpn", ""}}}},
    {"ethL2tp", {Link::Ethernet, "l2tp", {}}},
    {"ethL2tpWithoutStatic", {Link::Ethernet, "l2tp", {{staticEntity, ""}}}},
    {"ethL2tpWithoutVlan", {Link::Ethernet, "l2tp", {{vlan, ""}}}},
    {"ethL2tpWithoutDhcpClient", {Link::Ethernet, "l2tp", {{dhcpClient, ""}}}},
    {"ethL2tpWithoutL2tpEntity", {Link::Ethernet, "l2tp", {{"wan-3.entities.l2tp", nullptr}}}},
    {"ethStatic", {Link::Ethernet, "static", {}}},
    {"ethStaticWithoutStaticEntity", {Link::Ethernet, "static", {{staticEntity, ""}}}},
    {"ethStaticWithoutVlan", {Link::Ethernet, "static", {{vlan, nullptr}}}},
    {"ethL2tpWithPppEntity", {Link::Ethernet, "l2tp", {{pppEntity, "pppox-1"}}}},
    {"ethBridgeWithPppEntity", {Link::Ethernet, "bridge", {{pppEntity, "pppox-1"}}}},
    {"ethStaticWithPppEntity", {Link::Ethernet, "static", {{pppEntity, "pppox-1"}}}},
    {"ethVpnWithPppEntity", {Link::Ethernet, "vpn", {{pppEntity, "pppox-1"}}}}};

class ConnectionWrite : public BuiltGateway, public testing::WithParamInterface<Case>
{
protected:
    void SetUp() override { buildNewest(); }
};

} // namespace

TEST_P(ConnectionWrite, IsOneRequestWithItsCommandsInOrder)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(GetParam().connection.write(*cpe->getAdslImplementor(), result));
    EXPECT_TRUE(
        matchesGolden(text("internet/writes/") + text(GetParam().name), transcript(gateway)));
    EXPECT_EQ(entries(result), lines({"response=1.0.1", "webapp.error=0"}));
}

INSTANTIATE_TEST_SUITE_P(OverDsl, ConnectionWrite, testing::ValuesIn(dslCases), CaseName());
INSTANTIATE_TEST_SUITE_P(OverEthernet, ConnectionWrite, testing::ValuesIn(ethernetCases),
                         CaseName());

} // namespace quorvel::test
