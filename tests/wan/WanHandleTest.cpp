#include <quorvel/AspCpeFacadeObject.h>

#include "wan/WanFixture.h"

namespace quorvel::test
{

namespace
{

/// A gateway that is recognised over the wire.
class WanHandle : public testing::Test
{
protected:
    LogCapture log;
    ScriptedGateway gateway;
    AspCpeFacadeObject object{{text("admin"), text("secret"), gateway.address()}};
    int result = 77;
};

} // namespace

TEST_F(WanHandle, HandsOutAFacadeOfAGatewayWithWans)
{
    gateway.logIn()
        .reply(reply100({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", "wan"}}))
        .reply(reply100({{"route-0", "default_gw", "wan-2"}}))
        .reply(reply100({{"wan-2", "isnewwan", "0"}}))
        .reply(reply100({{"route-0", "default_gw", "wan-2"}}));
    const auto facade = object.getWanSettingsFacade(&result);
    ASSERT_TRUE(facade);
    EXPECT_EQ(result, 0);
    AspWebAppErrorCodes error;
    EXPECT_EQ(facade->getDefaultWan(text("route-0"), error), text("wan-2"));
    EXPECT_NE(object.getWanSettingsFacade(), facade);
}

TEST_F(WanHandle, HandsOutNoFacadeOfAGatewayWithoutWans)
{
    gateway.logIn().reply(reply100({{"devmgr-0", "mngr0", "devmgr"}}));
    EXPECT_FALSE(object.getWanSettingsFacade(&result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(log.lines().last(),
              text("ERROR AspCpeFacadeObject::getWanSettingsFacade -> WanVersion is invalid."));
    EXPECT_FALSE(object.getWanSettingsFacade());
}

TEST_F(WanHandle, HandsOutNoFacadeOfAGatewayThatCannotBeRecognised)
{
    gateway.refuseLogin().refuseLogin();
    EXPECT_FALSE(object.getWanSettingsFacade(&result));
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(log.lines().contains(
        text("ERROR AspCpeFacadeObject::getWanSettingsFacade -> WanVersion is invalid.")));
}

} // namespace quorvel::test
