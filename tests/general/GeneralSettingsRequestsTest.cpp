#include "general/GeneralSettingsImplementor.h"
#include "support/RequestCases.h"

namespace quorvel::test
{

namespace
{

using I = GeneralSettingsImplementor;
using Case = RequestCase<I>;

class GeneralSettingsRequest : public BuiltGateway, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(GeneralSettingsRequest, PutsItsCommandsOnTheWire)
{
    build({{"XML_VERSION", "1.0.1"}});
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(*cpe->getGeneralImplementor(), result));
    EXPECT_TRUE(matchesGolden(text("general/") + text(GetParam().name), transcript(gateway)));
    EXPECT_EQ(result,
              (ParamMap{{text("response"), text("1.0.1")}, {text("webapp.error"), text("0")}}));
}

INSTANTIATE_TEST_SUITE_P(
    AllOperations, GeneralSettingsRequest,
    testing::Values(
        Case{"getStaticClientList",
             [](I& i, ParamMap& r) { return i.getStaticClientList(text("dhcps-0"), r); }},
        Case{"getDynamicClientList",
             [](I& i, ParamMap& r) { return i.getDynamicClientList(text("dhcps-0"), r); }},
        Case{"getEthMacAddress", &I::getEthMacAddress},
        Case{"getDslMacAddress", &I::getDslMacAddress},
        Case{"getWlanMacAddress", &I::getWlanMacAddress},
        Case{"getFirmwareVersion", &I::getFirmwareVersion}, Case{"getModelName", &I::getModelName},
        Case{"getRouterMode", &I::getRouterMode}, Case{"getSerialNumber", &I::getSerialNumber},
        Case{"checkSession", [](I& i, ParamMap& r) { return i.checkSession(text("SID=7"), r); }},
        Case{"deleteSession", &I::deleteSession},
        Case{"setCpeInternetModeAp2Router",
             [](I& i, ParamMap& r) { return i.setCpeInternetModeAp2Router(text("router"), r); }},
        Case{"setCpePassword",
             [](I& i, ParamMap& r) { return i.setCpePassword(text("a<b&c"), r); }},
        Case{"checkCpePassword",
             [](I& i, ParamMap& r) { return i.checkCpePassword(text("secret"), r); }},
        Case{"isRebootRequired", &I::isRebootRequired},
        Case{"getRebootDuration", &I::getRebootDuration},
        Case{"getFwUpgradeDuration", &I::getFwUpgradeDuration},
        Case{"factoryDefault", &I::factoryDefault}, Case{"rebootCpe", &I::rebootCpe},
        Case{"getDefaultGw", [](I& i, ParamMap& r) { return i.getDefaultGw(text("route-1"), r); }},
        Case{"setDefaultGw",
             [](I& i, ParamMap& r) { return i.setDefaultGw(text("route-1"), text("wan-3"), r); }},
        Case{"getManagerList", &I::getManagerList},
        Case{"getWirelessCoreList", &I::getWirelessCoreList},
        Case{"getManagerInstanceList",
             [](I& i, ParamMap& r) { return i.getManagerInstanceList(text("conn"), r); }},
        Case{"queryParameter",
             [](I& i, ParamMap& r) {
                 return i.queryParameter(text("wan-0"), text("isnewwan"), text("x"), r);
             }},
        Case{"getWarrantyInformation", &I::getWarrantyInformation},
        Case{"setWarrantyInformation",
             [](I& i, ParamMap& r) {
                 return i.setWarrantyInformation(
                     {{text("name"), text("A. Owner")}, {text("token"), text("T1")}}, r);
             }},
        Case{"setWarrantyInformationWithoutValues",
             [](I& i, ParamMap& r) { return i.setWarrantyInformation({}, r); }}),
    CaseName());

} // namespace quorvel::test
