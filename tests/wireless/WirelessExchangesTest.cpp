#include "protocol/HttpRequestExecutor.h"
#include "protocol/RequestFormatter.h"
#include "wireless/WirelessCases.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// Radios of both generations, asked beside the common frame.
class WirelessExchanges : public BuiltGateway
{
protected:
    void SetUp() override
    {
        buildNewest();
        takeRadios();
    }

    void takeRadios()
    {
        older = cpe->getWirelessImplementor();
        newer = cpe->getWirelessImplementorNG();
    }

    boost::shared_ptr<WirelessSettingsImplementor> older;
    boost::shared_ptr<WirelessSettingsImplementor> newer;
    ParamMap result;
};

const QString core = text("wireless_core-0");
const QString ap = text("wireless_ap-0");
const QString radio = text("wireless-0");
const QString ap0 = text("ap0");

const ParamMap olderSettings{{text("wireless_ap-0.ssid"), text("Home")},
                             {text("wireless_ap-0.sec_mode"), text("off")},
                             {text("wireless_core-0.enabled"), text("1")}};

} // namespace

TEST_F(WirelessExchanges, GiveTheCommandsOfAWriteAsTheFormatterDoes)
{
    EXPECT_EQ(
        older->getWirelessSettingsQuery(olderSettings, text("ignored"), text("ignored"), result),
        text("<command inst=\"cfgmgr-0\">\n"
             "  <key>begin_transaction</key>\n"
             "  <value>wireless_ap-0</value>\n"
             " </command>\n"
             " <set inst=\"wireless_ap-0\">\n"
             "  <key>ssid</key>\n"
             "  <value>Home</value>\n"
             " </set>\n"
             " <set inst=\"wireless_ap-0\">\n"
             "  <key>sec_mode</key>\n"
             "  <value>off</value>\n"
             " </set>\n"
             " <command inst=\"cfgmgr-0\">\n"
             "  <key>commit</key>\n"
             "  <value>wireless_ap-0</value>\n"
             " </command>\n"
             " <command inst=\"cfgmgr-0\">\n"
             "  <key>end_transaction</key>\n"
             "  <value>wireless_ap-0</value>\n"
             " </command>\n"
             " <command inst=\"cfgmgr-0\">\n"
             "  <key>begin_transaction</key>\n"
             "  <value>wireless_core-0</value>\n"
             " </command>\n"
             " <set inst=\"wireless_core-0\">\n"
             "  <key>enabled</key>\n"
             "  <value>1</value>\n"
             " </set>\n"
             " <set inst=\"wireless_core-0\">\n"
             "  <key>wps_config_uuid_update</key>\n"
             "  <value></value>\n"
             " </set>\n"
             " <set inst=\"wireless_core-0\">\n"
             "  <key>wps_role</key>\n"
             "  <value>registrar</value>\n"
             " </set>\n"
             " <command inst=\"cfgmgr-0\">\n"
             "  <key>commit</key>\n"
             "  <value>wireless_core-0</value>\n"
             " </command>\n"
             " <command inst=\"cfgmgr-0\">\n"
             "  <key>end_transaction</key>\n"
             "  <value>wireless_core-0</value>\n"
             " </command>\n"
             " <command inst=\"wireless_core-0\">\n"
             "  <key>apply</key>\n"
             "  <value></value>\n"
             " </command>\n"
             " <command inst=\"cfgmgr-0\">\n"
             "  <key>save</key>\n"
             "  <value></value>\n"
             " </command>\n"));
    EXPECT_EQ(result, ParamMap());
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessExchanges, GiveTheCommandsOfANewerRadiosWriteByItsMode)
{
    const std::pair<const char*, const char*> modes[] = {
        {"off", "Off"},        {"wpa_both", "WpaBoth"}, {"WPA2", "CapitalWpa2"}, {"wep", "Wep"},
        {"WEP", "CapitalWep"}, {"Wep", "MixedWep"},     {"Wpa", "MixedWpa"}};
    for (const auto& [mode, name] : modes) {
        const QString commands =
            newer->getWirelessSettingsQuery(newerSettings(mode), ap0, radio, result);
        EXPECT_TRUE(
            matchesGolden(text("wireless/newer/getWirelessSettingsQuery") + text(name),
                          commandLines(text("<xmlrequest>") + commands + text("</xmlrequest>"))));
    }
    EXPECT_EQ(result, ParamMap());
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessExchanges, LeaveNothingQueuedBehindCommandsGivenAsText)
{
    for (const auto& [implementor, settings] :
         {std::make_pair(older, olderSettings), std::make_pair(newer, newerSettings("off"))}) {
        EXPECT_FALSE(implementor->getWirelessSettingsQuery(settings, ap0, radio, result).isEmpty());
        EXPECT_EQ(implementor->getRequestFormatter()->formatRequest(),
                  text("<xmlrequest version=\"1.0.1\"/>\n"));
    }
}

TEST_F(WirelessExchanges, GiveOnlyTheirOwnCommandsAsText)
{
    for (const auto& implementor : {older, newer}) {
        implementor->getRequestFormatter()->addQuery(radio, text("left behind"), QString());
        EXPECT_FALSE(implementor->getWirelessSettingsQuery({}, ap0, radio, result)
                         .contains(text("left behind")));
    }
}

TEST_F(WirelessExchanges, GiveNoTextInTheOlderDialect)
{
    build({{"XML_VERSION", "1.0.0"},
           {"WIRELESS_VERSION", "1"},
           {"WIRELESS_CORE_VERSION", "1"},
           {"WIRELESS_NG_VERSION", "1"}});
    takeRadios();
    EXPECT_EQ(older->getWirelessSettingsQuery(olderSettings, ap, core, result), QString());
    EXPECT_EQ(newer->getWirelessSettingsQuery(newerSettings("off"), ap0, radio, result), QString());
}

TEST_F(WirelessExchanges, SendNothingWhereTheGenerationHasNothingToAsk)
{
    EXPECT_FALSE(older->getWirelessCapabilities(result, core));
    EXPECT_TRUE(older->getTxMode(result, core));
    EXPECT_TRUE(newer->checkWirelessStatus(result, radio));
    EXPECT_TRUE(newer->getWirelessMeshInstances(result));
    EXPECT_EQ(result, ParamMap());
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessExchanges, CountAWriteAsDoneIfNoReplyComesInTime)
{
    gateway.sendAndHold(QByteArray()).sendAndHold(QByteArray());
    for (const auto& implementor : {older, newer}) {
        implementor->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
        EXPECT_TRUE(implementor->setWirelessSettings({}, radio, result));
        EXPECT_EQ(result, ParamMap());
    }
}

TEST_F(WirelessExchanges, CountAWriteAsDoneIfItsReplyIsUnreadable)
{
    gateway.reply(text("<html>")).reply(text("<html>"));
    for (const auto& implementor : {older, newer})
        EXPECT_TRUE(implementor->setWirelessSettings({}, radio, result));
}

TEST_F(WirelessExchanges, NeedAReplyToEverythingButAWrite)
{
    gateway.reply(text("<html>")).reply(text("<html>"));
    EXPECT_FALSE(older->setWpsEnabledStatus(result, true, core));
    EXPECT_FALSE(newer->getWirelessSettings(ap0, radio, result));
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=1"}));
}

namespace
{

class WirelessBuild : public BuiltGateway
{
protected:
    /// The generations that a gateway gets.
    QString built() const
    {
        return text(cpe->getWirelessImplementor() ? "older" : "") +
               text(cpe->getWirelessImplementorNG() ? "newer" : "");
    }
};

} // namespace

TEST_F(WirelessBuild, GivesAGatewayTheGenerationsThatItHas)
{
    build({{"WIRELESS_VERSION", "1"}, {"WIRELESS_CORE_VERSION", "1"}});
    EXPECT_EQ(built(), text("older"));
    build({{"WIRELESS_VERSION", ""}, {"WIRELESS_NG_VERSION", "1"}});
    EXPECT_EQ(built(), text("newer"));
    build(
        {{"WIRELESS_VERSION", "1"}, {"WIRELESS_CORE_VERSION", "1"}, {"WIRELESS_NG_VERSION", "1"}});
    EXPECT_EQ(built(), text("oldernewer"));
}

TEST_F(WirelessBuild, GivesAGatewayNoRadioOfAnUnknownVersion)
{
    build({{"WIRELESS_VERSION", "1"}});
    EXPECT_EQ(built(), QString());
    build(
        {{"WIRELESS_VERSION", "1"}, {"WIRELESS_CORE_VERSION", "2"}, {"WIRELESS_NG_VERSION", "01"}});
    EXPECT_EQ(built(), QString());
    build({{"WIRELESS_CORE_VERSION", "1"}, {"WIRELESS_NG_VERSION", "1"}});
    EXPECT_EQ(built(), QString());
}

} // namespace quorvel::test
