#include <quorvel/AspAdslSettingsFacade.h>
#include <quorvel/AspCpeFacadeObject.h>

#include "support/BuiltGateway.h"
#include "support/Text.h"

namespace quorvel::test
{

namespace
{

const char* const absent =
    "ERROR AspCpeFacadeObject::getAdslSettingsFacade -> AdslVersion is invalid.";

/// A gateway that is recognised over the wire.
class InternetHandle : public testing::Test
{
protected:
    LogCapture log;
    ScriptedGateway gateway;
    AspCpeFacadeObject object{{text("admin"), text("secret"), gateway.address()}};
    int result = 77;
};

} // namespace

TEST_F(InternetHandle, HandsOutAFacadeOfAGatewayWithADslLine)
{
    gateway.logIn()
        .reply(reply100({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", "dsl"}}))
        .reply(reply100({{"dsl-0", "annex", "b"}}));
    const auto facade = object.getAdslSettingsFacade(&result);
    ASSERT_TRUE(facade);
    EXPECT_EQ(result, 0);
    AspWebAppErrorCodes error;
    EXPECT_EQ(facade->getCurrentAnnexMode(text("dsl-0"), error), AspAnnexB);
    EXPECT_NE(object.getAdslSettingsFacade(), facade);
}

TEST_F(InternetHandle, HandsOutAFacadeOfAGatewayWithAnEthernetWanOnly)
{
    gateway.logIn()
        .reply(reply100({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", "wan_vlan"}}))
        .reply(reply100({{"wan_vlan-0", "vlanid", "7"}}));
    const auto facade = object.getAdslSettingsFacade(&result);
    ASSERT_TRUE(facade);
    EXPECT_EQ(result, 0);
    AspWebAppErrorCodes error;
    EXPECT_EQ(facade->getWanVlanSettings(text("wan_vlan-0"), error).vlanid, text("7"));
}

TEST_F(InternetHandle, HandsOutNoFacadeOfAGatewayWithoutEither)
{
    gateway.logIn().reply(reply100({{"devmgr-0", "mngr0", "devmgr"}}));
    EXPECT_FALSE(object.getAdslSettingsFacade(&result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(log.lines().last(), text(absent));
    EXPECT_FALSE(object.getAdslSettingsFacade());
}

TEST_F(InternetHandle, HandsOutNoFacadeOfAGatewayThatCannotBeRecognised)
{
    gateway.refuseLogin().refuseLogin();
    EXPECT_FALSE(object.getAdslSettingsFacade(&result));
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(log.lines().contains(text(absent)));
}

using BuiltInternet = BuiltGateway;

TEST_F(BuiltInternet, HasTheFamilyForADslLineOrAnEthernetWanOfAnyVersion)
{
    build({{"ADSL_VERSION", ""}});
    EXPECT_TRUE(cpe->getAdslImplementor());
    build({{"ETHERNET_VERSION", "0"}});
    EXPECT_TRUE(cpe->getAdslImplementor());
    build({{"WAN_VERSION", "1"}});
    EXPECT_FALSE(cpe->getAdslImplementor());
}

} // namespace quorvel::test
