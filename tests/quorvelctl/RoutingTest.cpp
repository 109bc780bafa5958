#include "Routing.h"

#include <gtest/gtest.h>

namespace quorvelctl::test
{

namespace
{

const char* heading =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow"
    "\tIRTT\n";
const char* network = "eth0\t000200C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n";
const char* defaultRoute = "eth0\t00000000\t010200C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
const char* worseRoute = "wlan0\t00000000\tFE0200C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n";
const char* halfOfAll = "tun0\t00000000\t016433C6\t0003\t0\t0\t0\t00000080\t0\t0\t0\n";
const char* withoutRouter = "ppp0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n";
const char* down = "eth1\t00000000\t090200C0\t0002\t0\t0\t0\t00000000\t0\t0\t0\n";

QString gatewayIn(std::initializer_list<const char*> lines)
{
    QByteArray table(heading);
    for (const char* line : lines)
        table += line;
    return defaultGatewayIn(table);
}

} // namespace

TEST(DefaultGateway, IsTheRouterOfTheDefaultRoute)
{
    EXPECT_EQ(gatewayIn({network, defaultRoute}), QStringLiteral("192.0.2.1"));
}

TEST(DefaultGateway, IsThatOfTheFirstOfSeveralRoutes)
{
    EXPECT_EQ(gatewayIn({defaultRoute, worseRoute, network}), QStringLiteral("192.0.2.1"));
    EXPECT_EQ(gatewayIn({worseRoute, defaultRoute, network}), QStringLiteral("192.0.2.254"));
}

TEST(DefaultGateway, IsNotTheFarEndOfATunnel)
{
    EXPECT_EQ(gatewayIn({halfOfAll, withoutRouter, defaultRoute}), QStringLiteral("192.0.2.1"));
}

TEST(DefaultGateway, IsNotOnARouteThatIsDown)
{
    EXPECT_EQ(gatewayIn({down, defaultRoute}), QStringLiteral("192.0.2.1"));
}

TEST(DefaultGateway, IsNoneWithoutADefaultRoute)
{
    EXPECT_EQ(gatewayIn({network}), QString());
    EXPECT_EQ(gatewayIn({}), QString());
    EXPECT_EQ(defaultGatewayIn(QByteArray()), QString());
    EXPECT_EQ(defaultGatewayIn("eth0\t00000000\t0102"), QString());
}

} // namespace quorvelctl::test
