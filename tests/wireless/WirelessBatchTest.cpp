#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "protocol/HttpRequestExecutor.h"
#include "wireless/WirelessFixture.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// Fails at once, for what is sent through it.
struct Disconnected : HttpRequestExecutor {
    int execute(const ParamMap&, ParamMap&) override { return 1; }
};

/// The write of several radios in one request.
class WirelessBatch : public WirelessRadios
{
protected:
    AspWirelessSettingsFacadeManager of(const QStringList& names)
    {
        if (names.contains(text("wireless-0")))
            gateway.reply(reply101({}));
        return AspWirelessSettingsFacadeManager(cpe, names);
    }

    const QList<AspWirelessSettings> twoRecords{wholeRecord("wpa_both"), second()};

private:
    static AspWirelessSettings second()
    {
        AspWirelessSettings settings = wholeRecord("wep");
        settings.ssid = text("5 GHz <Home>");
        settings.status = AspWirelessDisabled;
        settings.managerIndex = -3;
        return settings;
    }
};

} // namespace

TEST_F(WirelessBatch, JoinsTheFragmentsOfTwoRadiosWithNothingBetween)
{
    auto manager = of(lines({"wireless_core-0", "wireless-0"}));
    gateway.reply(reply101({{"webapp", "error", "3"}}));
    EXPECT_TRUE(manager.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 3);
    const ReceivedRequest write = gateway.request(1);
    EXPECT_TRUE(matchesGolden(text("wireless/batchBody"), QString::fromUtf8(write.body)));
    EXPECT_TRUE(matchesGolden(text("wireless/batchCommands"), transcript(write)));
}

TEST_F(WirelessBatch, GoesByTheOrderOfTheRadios)
{
    auto manager = of(lines({"wireless-0", "wireless_core-0"}));
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(manager.setWirelessSettings(twoRecords, error));
    const QString commands = transcript(gateway.request(1));
    EXPECT_TRUE(commands.contains(text("set \"wireless-0\" \"ap0_ssid\" \"Home\"\n")));
    EXPECT_TRUE(commands.contains(text("set \"wireless-0\" \"enabled\" \"1\"\n")));
    EXPECT_TRUE(commands.contains(text("set \"wireless_ap-0\" \"ssid\" \"5 GHz <Home>\"\n")));
    EXPECT_TRUE(commands.contains(text("set \"wireless_core-0\" \"enabled\" \"0\"\n")));
    EXPECT_LT(commands.indexOf(text("\"ap0_ssid\"")), commands.indexOf(text("\"ssid\"")));
}

TEST_F(WirelessBatch, IsSentThroughTheGenerationOfTheFirstRadio)
{
    auto olderFirst = of(lines({"wireless_core-0", "wireless-0"}));
    auto newerFirst = of(lines({"wireless-0", "wireless_core-0"}));
    gateway.reply(reply101({{"webapp", "error", "3"}}));
    cpe->getWirelessImplementor()->setRequestExecutor(boost::make_shared<Disconnected>());
    EXPECT_TRUE(olderFirst.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 29);
    EXPECT_TRUE(newerFirst.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 3);
}

TEST_F(WirelessBatch, IsDoneWhateverBecameOfTheRequest)
{
    auto manager = of(lines({"wireless_core-0"}));
    gateway.sendRaw(failedReply);
    EXPECT_TRUE(manager.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 29);
}

TEST_F(WirelessBatch, LeavesRecordsBeyondTheRadiosAside)
{
    auto manager = of(lines({"wireless_core-0"}));
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(manager.setWirelessSettings(twoRecords, error));
    EXPECT_FALSE(gateway.request(0).body.contains("5 GHz"));
}

TEST_F(WirelessBatch, SendsNothingWithFewerRecordsThanRadios)
{
    auto manager = of(lines({"wireless_core-0", "wireless_core-1"}));
    EXPECT_FALSE(manager.setWirelessSettings({wholeRecord("off")}, error));
    EXPECT_EQ(error, 0);
    EXPECT_FALSE(manager.setWirelessSettings(QList<AspWirelessSettings>(), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessBatch, SendsNothingWithoutRadios)
{
    auto manager = of({});
    EXPECT_FALSE(manager.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessBatch, SendsAnEmptyRequestInTheOlderDialect)
{
    build({{"XML_VERSION", "1.0.0"}, {"WIRELESS_VERSION", "1"}, {"WIRELESS_CORE_VERSION", "1"}});
    auto manager = of(lines({"wireless_core-0"}));
    gateway.reply(reply100({{"webapp", "error", "3"}}));
    EXPECT_TRUE(manager.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(gateway.request(0).path, "/cgi-bin/webapp");
    EXPECT_EQ(gateway.request(0).header("Content-Length"), "0");
    EXPECT_EQ(gateway.request(0).body, "");
}

TEST_F(WirelessBatch, RepeatsTheWholeRequestBehindAnExpiredSession)
{
    auto manager = of(lines({"wireless_core-0"}));
    gateway.reply(reply101({{"webapp", "error", "1"}}))
        .logIn("SID=2")
        .reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(manager.setWirelessSettings(twoRecords, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.request(2).body, gateway.request(0).body);
}

} // namespace quorvel::test
