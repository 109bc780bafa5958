#include "general/GeneralSettings.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

using Facade = AspGeneralSettingsFacade;

/// A text of the gateway: what its reply holds, and the lines in front of and without it.
struct Text {
    const char* name;
    QString (*read)(Facade& facade, AspWebAppErrorCodes& error);
    const char* object;
    const char* key;
    const char* line;
    const char* failure;
};

void PrintTo(const Text& text, std::ostream* out)
{
    *out << text.name;
}

class GeneralSettingsText : public GeneralSettings, public testing::WithParamInterface<Text>
{
protected:
    QString read() { return GetParam().read(*facade, error); }
    QString logged(const char* value) const { return text(GetParam().line) + text(value); }
};

} // namespace

TEST_P(GeneralSettingsText, IsReadAndLogged)
{
    reply({{GetParam().object, GetParam().key, " A value "}});
    EXPECT_EQ(read(), text(" A value "));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList(logged(" A value ")));
}

TEST_P(GeneralSettingsText, IsEmptyWithoutItsEntry)
{
    reply({{GetParam().object, "other", "x"}, {"other-0", GetParam().key, "x"}});
    EXPECT_EQ(read(), QString());
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList(logged("")));
}

TEST_P(GeneralSettingsText, IsReadBesideACodeOfTheGateway)
{
    reply({{"webapp", "error", "7"}, {GetParam().object, GetParam().key, "v"}});
    EXPECT_EQ(read(), text("v"));
    EXPECT_EQ(code(), 7);
    EXPECT_EQ(log.lines(), QStringList(logged("v")));
}

TEST_P(GeneralSettingsText, IsEmptyIfTheRequestFails)
{
    gateway.sendRaw({});
    EXPECT_EQ(read(), QString());
    EXPECT_EQ(code(), 29);
    EXPECT_EQ(log.lines(), lines({GetParam().failure}));
}

INSTANTIATE_TEST_SUITE_P(
    AllTexts, GeneralSettingsText,
    testing::Values(
        Text{"EthernetMac", [](Facade& f, AspWebAppErrorCodes& e) { return f.getEthMacAddress(e); },
             "sysmgr-0", "MAC_ETH_0",
             "DEBUG AspGeneralSettingsFacade::getEthMacAddress -> Ethernet MAC Address:",
             "ERROR AspGeneralSettingsFacade::getEthMacAddress -> Failed to fetch ethernet MAC "
             "Address!"},
        Text{"DslMac", [](Facade& f, AspWebAppErrorCodes& e) { return f.getDslMacAddress(e); },
             "sysmgr-0", "MAC_DSL_0",
             "DEBUG AspGeneralSettingsFacade::getDslMacAddress -> DSL MAC Address:",
             "ERROR AspGeneralSettingsFacade::getDslMacAddress -> Failed to fetch DSL MAC "
             "Address!"},
        Text{"WirelessMac",
             [](Facade& f, AspWebAppErrorCodes& e) { return f.getWlanMacAddress(e); }, "sysmgr-0",
             "MAC_WLAN_0", "DEBUG AspGeneralSettingsFacade::getWlanMacAddress -> WLAN MAC Address:",
             "ERROR AspGeneralSettingsFacade::getWlanMacAddress -> Failed to fetch WLAN MAC "
             "Address!"},
        Text{"FirmwareVersion",
             [](Facade& f, AspWebAppErrorCodes& e) { return f.getFirmwareVersion(e); }, "sysmgr-0",
             "fwversion", "DEBUG AspGeneralSettingsFacade::getFirmwareVersion -> Firmware Version:",
             "ERROR AspGeneralSettingsFacade::getFirmwareVersion -> Failed to fetch firmware "
             "version!"},
        Text{"SerialNumber", [](Facade& f, AspWebAppErrorCodes& e) { return f.getSerialNumber(e); },
             "sysmgr-0", "SERIAL_NUMBER",
             "DEBUG AspGeneralSettingsFacade::getSerialNumber -> Serial No:",
             "ERROR AspGeneralSettingsFacade::getSerialNumber -> Failed to fetch serial no!"},
        Text{"DefaultGateway",
             [](Facade& f, AspWebAppErrorCodes& e) { return f.getDefaultGw(text("route-0"), e); },
             "route-0", "default_gw",
             "DEBUG AspGeneralSettingsFacade::getDefaultGw -> Default Gateway:",
             "ERROR AspGeneralSettingsFacade::getDefaultGw -> Failed to fetch default gateway!"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(GeneralSettings, ReadTheDefaultGatewayUnderTheNameThatIsGiven)
{
    reply({{"route-0", "default_gw", "wan-0"}});
    EXPECT_EQ(facade->getDefaultGw(text("route-1"), error), QString());
    EXPECT_EQ(code(), 0);
}

TEST_F(GeneralSettings, PreferTheProductIdForTheModelName)
{
    reply({{"sysmgr-0", "PRODUCT_ID", "hardware"}, {"sysmgr-0", "productid", "product"}});
    EXPECT_EQ(facade->getModelName(error), text("product"));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({"DEBUG AspGeneralSettingsFacade::getModelName -> Model "
                                  "Name:sysmgr-0.PRODUCT_ID"}));
}

TEST_F(GeneralSettings, TakeTheHardwaresIdForTheModelNameIfThereIsNoProductId)
{
    reply({{"sysmgr-0", "PRODUCT_ID", "hardware"}});
    EXPECT_EQ(facade->getModelName(error), text("hardware"));
    reply({{"sysmgr-0", "PRODUCT_ID", "hardware"}, {"sysmgr-0", "productid", ""}});
    EXPECT_EQ(facade->getModelName(error), text("hardware"));
}

TEST_F(GeneralSettings, HaveNoModelNameWithoutAnyId)
{
    reply({});
    EXPECT_EQ(facade->getModelName(error), QString());
    EXPECT_EQ(log.lines(), lines({"DEBUG AspGeneralSettingsFacade::getModelName -> Model "
                                  "Name:sysmgr-0.PRODUCT_ID"}));
}

TEST_F(GeneralSettings, KnowTheRouterModeInAnySpelling)
{
    const struct {
        const char* text;
        int mode;
    } modes[] = {{"router", 0}, {"Router", 0}, {"ROUTER", 0}, {"ap", 1},
                 {"AP", 1},     {"bridge", 2}, {"", 2},       {"router ", 2}};
    for (const auto& mode : modes) {
        log.clear();
        reply({{"product-0", "router_mode", mode.text}});
        EXPECT_EQ(static_cast<int>(facade->getRouterMode(error)), mode.mode) << mode.text;
        EXPECT_EQ(log.lines(),
                  QStringList(text("DEBUG AspGeneralSettingsFacade::getRouterMode ->Router mode:") +
                              text(mode.text)));
    }
}

TEST_F(GeneralSettings, DoNotKnowTheRouterModeWithoutItsEntry)
{
    reply({});
    EXPECT_EQ(static_cast<int>(facade->getRouterMode(error)), 2);
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({"DEBUG AspGeneralSettingsFacade::getRouterMode ->Router mode:"}));
}

TEST_F(GeneralSettings, ReadTheWarrantyRecordSilently)
{
    reply({{"warranty-0", "name", "N"},
           {"warranty-0", "email", "E"},
           {"warranty-0", "phone", "P"},
           {"warranty-0", "token", "T"},
           {"warranty-0", "usertoken", "U"},
           {"warranty-0", "timestamp", "S"}});
    const AspDeviceWarrantyInformation info = facade->getWarrantyInformation(error);
    EXPECT_EQ((QStringList{info.name, info.email, info.phone, info.token, info.usertoken,
                           info.timestamp}),
              lines({"N", "E", "P", "T", "U", "S"}));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(GeneralSettings, LeaveEmptyWhatTheWarrantyRecordLacks)
{
    reply({{"warranty-0", "token", "T"}});
    const AspDeviceWarrantyInformation info = facade->getWarrantyInformation(error);
    EXPECT_EQ((QStringList{info.name, info.email, info.phone, info.token, info.usertoken,
                           info.timestamp}),
              lines({"", "", "", "T", "", ""}));
}

TEST_F(GeneralSettings, GiveTheSessionThatIsStoredWithoutAsking)
{
    EXPECT_EQ(facade->getCurrentSessionId(), text("SID=1"));
    storage().setSession(gateway.address(), text("SID=9"));
    EXPECT_EQ(facade->getCurrentSessionId(), text("SID=9"));
    expireSession();
    EXPECT_EQ(facade->getCurrentSessionId(), QString());
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST(GeneralSettingsWithoutCpe, HaveNoSession)
{
    LogCapture log;
    EXPECT_EQ(AspGeneralSettingsFacade(boost::shared_ptr<Cpe>()).getCurrentSessionId(), QString());
    EXPECT_EQ(AspGeneralSettingsFacade(boost::make_shared<Cpe>()).getCurrentSessionId(), QString());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST(TelvoraCpeRouterModes, HaveTheirNumbers)
{
    EXPECT_EQ(TelvoraCpeRouterModeRouter, 0);
    EXPECT_EQ(TelvoraCpeRouterModeAp, 1);
    EXPECT_EQ(TelvoraCpeRouterModeUnknown, 2);
}

} // namespace quorvel::test
