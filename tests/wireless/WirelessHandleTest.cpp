#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "wireless/WirelessFixture.h"

namespace quorvel::test
{

namespace
{

/// A gateway that is recognised over the wire.
class WirelessHandle : public testing::Test
{
protected:
    /// Scripts the recognition of a gateway with these managers.
    void recognise(std::initializer_list<Entry> managers)
    {
        gateway.logIn().reply(reply100(managers));
    }

    LogCapture log;
    ScriptedGateway gateway;
    AspCpeFacadeObject object{{text("admin"), text("secret"), gateway.address()}};
    AspWebAppErrorCodes error = AspWebAppNoError;
    int result = 77;
};

const QString noVersion =
    text("ERROR AspCpeFacadeObject::getWirelessSettingsFacade -> WirelessVersion is invalid.");

const QString bothRadios = reply100({{"devmgr-0", "wireless_core.inst0", "wireless_core-0"},
                                     {"devmgr-0", "wireless.inst0", "wireless-0"}});
const QString olderRadio = reply100({{"devmgr-0", "wireless_core.inst0", "wireless_core-0"}});

} // namespace

TEST_F(WirelessHandle, HandsOutAManagerOfTheGatewaysRadios)
{
    recognise({{"devmgr-0", "mngr0", "devmgr"},
               {"devmgr-0", "mngr1", "wireless_core"},
               {"devmgr-0", "mngr2", "wireless"}});
    gateway.reply(bothRadios).reply(reply100({{"webapp", "error", "0"}}));
    const auto manager = object.getWirelessSettingsFacadeImp(&result);
    ASSERT_TRUE(manager);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(manager->getManagerCount(), 2);
    EXPECT_TRUE(matchesGolden(text("wireless/handle"), transcript(gateway)));
    // None of the radios is chosen.
    EXPECT_EQ(manager->checkWirelessStatus(0, error), 2);
    EXPECT_EQ(gateway.connections(), 4);
}

TEST_F(WirelessHandle, HandsOutAManagerWithARadioChosen)
{
    recognise({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", "wireless_core"}});
    gateway.reply(olderRadio)
        .reply(reply100({{"wireless_core-0", "enabled", "0"}}))
        .reply(olderRadio)
        .reply(reply100({{"wireless_core-0", "enabled", "1"}}));
    EXPECT_EQ(object.getWirelessSettingsFacade(0)->checkWirelessStatus(0, error), 1);
    const auto manager = object.getWirelessSettingsFacadeImp(0, &result);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(manager->checkWirelessStatus(0, error), 0);
}

TEST_F(WirelessHandle, HandsOutAManagerWithARadioChosenThatDoesNotExist)
{
    recognise({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", "wireless_core"}});
    gateway
        .reply(reply100({{"devmgr-0", "wireless_core.inst0", "wireless_core-0"},
                         {"devmgr-0", "wireless_core.inst1", "wireless_core-1"},
                         {"devmgr-0", "wireless_core.inst2", "wireless_core-2"}}))
        .reply(reply100({{"wireless_core-2", "enabled", "0"}}))
        .reply(olderRadio);
    // The third of three, then of one.
    EXPECT_EQ(object.getWirelessSettingsFacade(2)->checkWirelessStatus(0, error), 1);
    EXPECT_EQ(object.getWirelessSettingsFacade(2)->checkWirelessStatus(0, error), 2);
}

TEST_F(WirelessHandle, HandsOutAManagerWithoutRadiosIfTheyCannotBeListed)
{
    recognise({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", "wireless_core"}});
    gateway.sendRaw(brokenReply);
    const auto manager = object.getWirelessSettingsFacade();
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->getManagerCount(), 0);
}

TEST_F(WirelessHandle, HandsOutAManagerWithoutRadiosOfAGatewayWithoutGeneralSettings)
{
    recognise({{"devmgr-0", "mngr0", "wireless_core"}});
    const auto manager = object.getWirelessSettingsFacadeImp(0, &result);
    ASSERT_TRUE(manager);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(manager->getManagerCount(), 0);
    EXPECT_EQ(manager->checkWirelessStatus(0, error), 2);
    EXPECT_EQ(error, 27);
    EXPECT_EQ(gateway.connections(), 2);
}

TEST_F(WirelessHandle, HandsOutNoManagerOfAGatewayWithoutRadios)
{
    recognise({{"devmgr-0", "mngr0", "devmgr"}});
    EXPECT_FALSE(object.getWirelessSettingsFacadeImp(&result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(log.lines().last(), noVersion);
    result = 77;
    EXPECT_FALSE(object.getWirelessSettingsFacadeImp(0, &result));
    EXPECT_EQ(result, 0);
    EXPECT_FALSE(object.getWirelessSettingsFacade());
    EXPECT_FALSE(object.getWirelessSettingsFacade(0));
    EXPECT_EQ(gateway.connections(), 2);
}

TEST_F(WirelessHandle, HandsOutNoManagerOfAGatewayThatCannotBeRecognised)
{
    gateway.refuseLogin().refuseLogin();
    EXPECT_FALSE(object.getWirelessSettingsFacadeImp(&result));
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(log.lines().contains(noVersion));
}

} // namespace quorvel::test
