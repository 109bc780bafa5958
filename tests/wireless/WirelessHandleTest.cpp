#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "support/FacadeOnGateway.h"
#include "support/Golden.h"
#include "support/RecognisedGateway.h"
#include "support/Replies.h"
#include "support/Transcript.h"

namespace quorvel::test
{

namespace
{

class WirelessHandle : public RecognisedGateway
{
protected:
    /// Scripts the recognition of a gateway with dialect 1.0.0 and these managers.
    void recognise(std::initializer_list<const char*> managers)
    {
        gateway.logIn().reply(managerList100(lines(managers)));
    }

    AspCpeFacadeObject object{info()};
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
    recognise({"devmgr", "wireless_core", "wireless"});
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
    recognise({"devmgr", "wireless_core"});
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
    recognise({"devmgr", "wireless_core"});
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
    recognise({"devmgr", "wireless_core"});
    gateway.sendRaw(failedReply);
    const auto manager = object.getWirelessSettingsFacade();
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->getManagerCount(), 0);
}

TEST_F(WirelessHandle, HandsOutAManagerWithoutRadiosOfAGatewayWithoutGeneralSettings)
{
    recognise({"wireless_core"});
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
    recognise({"devmgr"});
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
    scriptRefusal(2);
    EXPECT_FALSE(object.getWirelessSettingsFacadeImp(&result));
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(log.lines().contains(noVersion));
}

} // namespace quorvel::test
