#include "support/RequestCases.h"
#include "usbhost/UsbHostSettingsImplementor.h"

namespace quorvel::test
{

namespace
{

using I = UsbHostSettingsImplementor;
using Case = RequestCase<I>;

class UsbHostRequest : public BuiltGateway, public testing::WithParamInterface<Case>
{
};

const QString samba = text("samba_mngr-1");
const QString conn = text("conn-2");

const ParamMap values{{text("conn-2.hostname"), text("box")},
                      {text("samba_mngr-1.Description"), text("a<b&c")},
                      {text("samba_mngr-1.WorkGroup"), text("HOME")},
                      {text("samba_mngr-1.NetBiosName"), text("unwritten")}};

} // namespace

TEST_P(UsbHostRequest, PutsItsCommandsOnTheWire)
{
    build({{"XML_VERSION", "1.0.1"}, {"USBHOST_VERSION", "1"}});
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(*cpe->getUsbHostImplementor(), result));
    EXPECT_TRUE(matchesGolden(text("usbhost/") + text(GetParam().name), transcript(gateway)));
    EXPECT_EQ(entries(result), lines({"response=1.0.1", "webapp.error=0"}));
}

INSTANTIATE_TEST_SUITE_P(
    AllOperations, UsbHostRequest,
    testing::Values(
        Case{"getUsbHostInstList", &I::getUsbHostInstList},
        Case{"getUsbHostAdvancedSettings",
             [](I& i, ParamMap& r) { return i.getUsbHostAdvancedSettings(samba, conn, r); }},
        Case{
            "setUsbHostAdvancedSettings",
            [](I& i, ParamMap& r) { return i.setUsbHostAdvancedSettings(samba, conn, values, r); }},
        Case{"setUsbHostAdvancedSettingsWithoutValues",
             [](I& i, ParamMap& r) { return i.setUsbHostAdvancedSettings(samba, conn, {}, r); }},
        Case{"getUsbHostDevices", &I::getUsbHostDevices},
        Case{"diskMount", [](I& i, ParamMap& r) { return i.diskMount(text("3"), r); }},
        Case{"diskUnmount", [](I& i, ParamMap& r) { return i.diskUnmount(text("3"), r); }}),
    CaseName());

} // namespace quorvel::test
