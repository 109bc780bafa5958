#include "support/FacadeHandle.h"
#include "usbhost/UsbHostFixture.h"

namespace quorvel::test
{

namespace
{

const char* const absent =
    "ERROR AspCpeFacadeObject::getUsbHostSettingsFacade -> UsbHostVersion is invalid.";

using UsbHostHandle = FacadeHandle<AspUsbHostSettingsFacade>;
using BuiltUsbHost = BuiltGateway;

} // namespace

TEST_F(UsbHostHandle, HandsOutAFacadeOfAGatewayWithAUsbHostPort)
{
    scriptRecognition("usbhost_mngr");
    gateway.reply(
        reply100({{"usbhost_mngr-0", "DeviceCount", "1"}, {"usbhost_mngr-0", "Type0", "1"}}));
    const auto facade = object.getUsbHostSettingsFacade(&result);
    ASSERT_TRUE(facade);
    EXPECT_EQ(result, 0);
    AspWebAppErrorCodes error;
    EXPECT_EQ(facade->getUsbHostDevices(error).printers.size(), 1);
    EXPECT_NE(object.getUsbHostSettingsFacade(), facade);
}

TEST_F(UsbHostHandle, HandsOutNoFacadeOfAGatewayWithoutAUsbHostPort)
{
    expectNoneOfGatewayWithoutFamily(&AspCpeFacadeObject::getUsbHostSettingsFacade, absent);
}

TEST_F(UsbHostHandle, HandsOutNoFacadeOfAGatewayThatCannotBeRecognised)
{
    expectNoneOfGatewayThatRefusesLogin(&AspCpeFacadeObject::getUsbHostSettingsFacade, absent);
}

TEST_F(BuiltUsbHost, IsThereForAnyVersion)
{
    for (const char* version : {"1", "2", ""}) {
        build({{"USBHOST_VERSION", version}});
        EXPECT_TRUE(cpe->hasUsbHostImplementor()) << version;
    }
    build({{"WAN_VERSION", "1"}});
    EXPECT_FALSE(cpe->hasUsbHostImplementor());
}

} // namespace quorvel::test
