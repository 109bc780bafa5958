#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspCpeFlyweightFactory.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "quorvel-simulator/GatewaySimulator.h"
#include "support/Golden.h"
#include "support/LogCapture.h"
#include "support/Text.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <ostream>

namespace quorvel::test
{

namespace
{

/// A gateway of one dialect, and what it holds.
struct Kind {
    const char* scenario;
    const char* firmware;
    const char* otherWan; ///< not the default gateway, and not enabled
    QStringList wans;
    QStringList radios;
    int rebootDuration;
    int upgradeDuration;
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.scenario;
}

/// A host that asks the factory for a simulated gateway. A restart takes no time.
class GeneralSettingsOfGateway : public testing::TestWithParam<Kind>
{
protected:
    GeneralSettingsOfGateway() : gateway(*simulator::Scenario::load(GetParam().scenario))
    {
        gateway.setRebootTime(std::chrono::milliseconds(0));
    }

    void SetUp() override
    {
        ASSERT_TRUE(gateway.start());
        const QString address = QString::fromStdString(gateway.address());
        // A key that no other gateway of this process has.
        const auto object = AspCpeFlyweightFactory::getInstance()->getCpe(
            text("MAC of ") + address, {text("admin"), text("admin"), address});
        ASSERT_TRUE(object);
        general = object->getGeneralSettingsFacade();
        ASSERT_TRUE(general);
    }

    /// What the gateway recorded; but Qt names the machine's language in each request.
    QString transcript() const
    {
        return QString::fromStdString(gateway.transcript())
            .replace(QRegularExpression(text("(?<=Accept-Language: )[^\n]*")), text("*"));
    }

    LogCapture log;
    simulator::GatewaySimulator gateway;
    boost::shared_ptr<AspGeneralSettingsFacade> general;
    /// Neither success nor any failure that occurs, so that a code left unwritten shows.
    AspWebAppErrorCodes error = static_cast<AspWebAppErrorCodes>(77);
};

} // namespace

TEST_P(GeneralSettingsOfGateway, AreReachedByTheseRequestsAndNoOther)
{
    EXPECT_EQ(general->getFirmwareVersion(error), text(GetParam().firmware));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("simulator/firmwareVersionOf_") + text(GetParam().scenario),
                              transcript()));
}

TEST_P(GeneralSettingsOfGateway, ListInstances)
{
    EXPECT_EQ(QStringList(general->getManagerInstanceList(text("wan"), error)), GetParam().wans);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(QStringList(general->getWirelessCoreList(error)), GetParam().radios);
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(general->getManagerList(error).contains(text("devmgr")));
}

TEST_P(GeneralSettingsOfGateway, MoveTheDefaultGatewayAndEnableItsWan)
{
    const char* const wan = GetParam().otherWan;
    ASSERT_EQ(gateway.value(wan, "enabled"), "0");
    EXPECT_TRUE(general->setDefaultGw(text("route-0"), text(wan), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.value("route-0", "default_gw"), wan);
    EXPECT_EQ(gateway.storedValue("route-0", "default_gw"), wan);
    EXPECT_EQ(gateway.value(wan, "enabled"), "1");
    EXPECT_EQ(gateway.storedValue(wan, "enabled"), "1");
    EXPECT_EQ(general->getDefaultGw(text("route-0"), error), text(wan));
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, ChangeTheRouterMode)
{
    EXPECT_EQ(general->getRouterMode(error), TelvoraCpeRouterModeRouter);
    EXPECT_TRUE(general->setCpeInternetModeAp2Router(text("ap"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.value("product-0", "router_mode"), "ap");
    EXPECT_EQ(gateway.storedValue("product-0", "router_mode"), "ap");
    EXPECT_EQ(general->getRouterMode(error), TelvoraCpeRouterModeAp);
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, ChangeThePasswordAndLogInWithIt)
{
    EXPECT_TRUE(general->setCpePassword(text("n<w & \xc3\xa4"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.storedValue("webui-0", "password"), "n<w & \xc3\xa4");
    EXPECT_EQ(gateway.storedValue("sysmgr-0", "password"), "n<w & \xc3\xa4");
    EXPECT_TRUE(general->checkCpePassword(text("n<w & \xc3\xa4"), error));
    EXPECT_FALSE(general->checkCpePassword(text("admin"), error));
    EXPECT_EQ(error, 0);
    gateway.expireSessions();
    EXPECT_EQ(general->getFirmwareVersion(error), text(GetParam().firmware));
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, KeepTheWarrantyRecord)
{
    EXPECT_TRUE(general->setWarrantyInformation(
        {text("N"), text("E"), text("P"), text("T"), text("U"), text("S")}, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.storedValue("warranty-0", "usertoken"), "U");
    const AspDeviceWarrantyInformation info = general->getWarrantyInformation(error);
    EXPECT_EQ((QStringList{info.name, info.email, info.phone, info.token, info.usertoken,
                           info.timestamp}),
              lines({"N", "E", "P", "T", "U", "S"}));
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, KnowTheirSession)
{
    EXPECT_TRUE(general->checkSession(general->getCurrentSessionId(), error));
    EXPECT_FALSE(general->checkSession(text("SID=0"), error));
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, TellDurationsAndWhetherARebootIsDue)
{
    EXPECT_EQ(general->getRebootDuration(error), GetParam().rebootDuration);
    EXPECT_EQ(general->getFwUpgradeDuration(error), GetParam().upgradeDuration);
    EXPECT_FALSE(general->isRebootRequired(error));
    gateway.setStatus("sysmgr-0", "reboot_req", "1");
    EXPECT_TRUE(general->isRebootRequired(error));
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, RebootAndLogInAgain)
{
    EXPECT_EQ(general->rebootCpe(error), GetParam().rebootDuration);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.sessionNumber(), 0u);
    EXPECT_EQ(general->getCurrentSessionId(), QString());
    EXPECT_EQ(general->getFirmwareVersion(error), text(GetParam().firmware));
    EXPECT_EQ(error, 0);
}

TEST_P(GeneralSettingsOfGateway, AreTheFactorysAgainAfterAReset)
{
    ASSERT_TRUE(general->setCpeInternetModeAp2Router(text("ap"), error));
    EXPECT_EQ(general->factoryDefault(error), GetParam().rebootDuration);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.storedValue("product-0", "router_mode"), "router");
    EXPECT_EQ(general->getRouterMode(error), TelvoraCpeRouterModeRouter);
    EXPECT_EQ(error, 0);
}

INSTANTIATE_TEST_SUITE_P(
    BothDialects, GeneralSettingsOfGateway,
    testing::Values(Kind{"classic", "1.4.12", "wan-1", lines({"wan-0", "wan-1"}),
                         lines({"wireless_core-0"}), 60000, 180000},
                    Kind{"modern", "3.2.0-r7", "wan-0", lines({"wan-0", "wan-1", "wan-2"}),
                         lines({"wireless-0"}), 90000, 240000}),
    [](const auto& info) { return std::string(info.param.scenario); });

} // namespace quorvel::test
