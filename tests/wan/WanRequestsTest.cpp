#include "support/RequestCases.h"
#include "wan/WanSettingsImplementor.h"

#include <tuple>

namespace quorvel::test
{

namespace
{

using I = WanSettingsImplementor;
using Case = RequestCase<I>;

/// The two WAN models by their version; what they share must be the same on the wire.
class WanRequest : public BuiltGateway,
                   public testing::WithParamInterface<std::tuple<const char*, Case>>
{
};

const QList<QString> twoWans{text("wan-1"), text("wan-2")};
const QList<QString> oneWan{text("wan-0")};
const ParamMap modemValues{{text("wan-3.pin"), text("1234")},
                           {text("wan-3.puk"), text("87654321")},
                           {text("wan-3.apn"), text("internet")},
                           {text("wan-3.prefmode"), text("2")},
                           {text("serial-0.force3g"), text("1")}};

std::string caseName(const testing::TestParamInfo<std::tuple<const char*, Case>>& info)
{
    return std::string(std::get<1>(info.param).name) + "_V" + std::get<0>(info.param);
}

} // namespace

TEST_P(WanRequest, PutsItsCommandsOnTheWire)
{
    const auto& [model, operation] = GetParam();
    build({{"XML_VERSION", "1.0.1"}, {"WAN_VERSION", model}});
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(operation.operation(*cpe->getWanImplementor(), result));
    EXPECT_TRUE(matchesGolden(text("wan/") + text(operation.name), transcript(gateway)));
    EXPECT_EQ(result,
              (ParamMap{{text("response"), text("1.0.1")}, {text("webapp.error"), text("0")}}));
}

INSTANTIATE_TEST_SUITE_P(
    AllOperations, WanRequest,
    testing::Combine(
        testing::Values("1", "2"),
        testing::Values(
            Case{"getWanInstances", &I::getWanInstances},
            Case{"getDefaultGwStatus",
                 [](I& i, ParamMap& r) { return i.getDefaultGwStatus(text("route-1"), r); }},
            Case{"getWanL2Type",
                 [](I& i, ParamMap& r) { return i.getWanL2Type(text("wan-3"), r); }},
            Case{"getWanEthLinkStatus",
                 [](I& i, ParamMap& r) { return i.getWanEthLinkStatus(text("eth-1"), r); }},
            Case{"getWanDslLinkStatus",
                 [](I& i, ParamMap& r) { return i.getWanDslLinkStatus(text("dsl-1"), r); }},
            Case{"getDefaultWan",
                 [](I& i, ParamMap& r) { return i.getDefaultWan(text("route-1"), r); }},
            Case{"getAliasDefaultWan",
                 [](I& i, ParamMap& r) { return i.getAliasDefaultWan(text("route-1"), r); }},
            Case{"getWanDetails",
                 [](I& i, ParamMap& r) { return i.getWanDetails(text("wan-3"), r); }},
            Case{"getSupportedLinkTypes",
                 [](I& i, ParamMap& r) {
                     return i.getSupportedLinkTypes(text("wan-3"), text("eth"), r);
                 }},
            Case{"getInternetConnectionStatus",
                 [](I& i, ParamMap& r) {
                     return i.getInternetConnectionStatus(text("route-1"), r);
                 }},
            Case{"addIface",
                 [](I& i, ParamMap& r) { return i.addIface(text("wan-3"), text("eth-2"), r); }},
            Case{"deleteIface",
                 [](I& i, ParamMap& r) { return i.deleteIface(text("wan-3"), text("eth-2"), r); }},
            Case{"enableWan", [](I& i, ParamMap& r) { return i.enableWan(text("wan-3"), r); }},
            Case{"disableWan", [](I& i, ParamMap& r) { return i.disableWan(text("wan-3"), r); }},
            Case{"switchConnectionType",
                 [](I& i, ParamMap& r) {
                     return i.switchConnectionType(twoWans, oneWan, text("wan-1"), r);
                 }},
            Case{"switchConnectionTypeWithoutWans",
                 [](I& i, ParamMap& r) {
                     return i.switchConnectionType({}, {}, text("wan-1"), r);
                 }},
            Case{"get3GSettings",
                 [](I& i, ParamMap& r) {
                     return i.get3GSettings(text("wan-3"), text("serial-0"), r);
                 }},
            Case{"set3GSettings",
                 [](I& i, ParamMap& r) {
                     return i.set3GSettings(text("wan-3"), text("serial-0"), modemValues, r);
                 }},
            Case{"set3GSettingsWithoutValues",
                 [](I& i, ParamMap& r) {
                     return i.set3GSettings(text("wan-3"), text("serial-0"), {}, r);
                 }})),
    caseName);

namespace
{

class WanLinkType : public BuiltGateway, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(WanLinkType, StandsUnderTheModelsOwnKeyAndIsAppliedBeforeItIsSaved)
{
    const QString model = text(GetParam());
    build({{"XML_VERSION", "1.0.1"}, {"WAN_VERSION", GetParam()}});
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(cpe->getWanImplementor()->setLinkType(text("wan-3"), text("pppoe"), result));
    EXPECT_TRUE(matchesGolden(text("wan/setLinkTypeV") + model, transcript(gateway)));
}

INSTANTIATE_TEST_SUITE_P(BothModels, WanLinkType, testing::Values("1", "2"),
                         [](const auto& info) { return std::string("V") + info.param; });

} // namespace quorvel::test
