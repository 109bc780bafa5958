#include "protocol/HttpRequestExecutor.h"
#include "wireless/AspWirelessImplementorV1.h"
#include "wireless/WirelessFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

using OlderRadioWrite = WirelessRadios;

const QString answered = reply101({{"webapp", "error", "0"}});

} // namespace

TEST_F(OlderRadioWrite, WritesTheFieldsThatCanBeWritten)
{
    for (const char* mode : {"off", "wpa_both", "wep"}) {
        gateway.reply(reply101({{"webapp", "error", "3"}}));
        EXPECT_TRUE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord(mode), error));
    }
    EXPECT_EQ(error, 3);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("wireless/older/facadeWrites"), transcript(gateway)));
}

TEST_F(OlderRadioWrite, IsSwitchedOffByEveryStatusButEnabled)
{
    gateway.reply(answered).reply(answered);
    for (const auto status : {AspWirelessDisabled, AspWirelessStatusUnknown}) {
        EXPECT_TRUE(older->setWirelessSettings(status, wholeRecord("off"), error));
        EXPECT_TRUE(
            transcript(gateway).contains(text("\nset \"wireless_core-0\" \"enabled\" \"0\"\n")));
    }
    EXPECT_FALSE(
        transcript(gateway).contains(text("\nset \"wireless_core-0\" \"enabled\" \"1\"\n")));
}

TEST_F(OlderRadioWrite, WritesAnEmptyStatusWithAnotherInstance)
{
    for (const char* instance : {"wireless_core-3", ""}) {
        gateway.reply(answered);
        older->setManager(text(instance));
        EXPECT_TRUE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
        EXPECT_TRUE(transcript(gateway.requests().last())
                        .contains(text("\nset \"wireless_core-0\" \"enabled\" \"\"\n")));
    }
}

TEST_F(OlderRadioWrite, CountsALostReplyToAWriteAsSuccess)
{
    cpe->getWirelessImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    gateway.sendAndHold(QByteArray());
    EXPECT_TRUE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 0);
}

TEST_F(OlderRadioWrite, CountsAFailureWithoutATraceAsSuccess)
{
    struct Failing : AspWirelessImplementorV1 {
        bool setWirelessSettings(const ParamMap&, const QString&, ParamMap& result) override
        {
            result = trace;
            return false;
        }
        ParamMap trace;
    };
    const auto failing = boost::make_shared<Failing>();
    cpe->setWirelessImplementor(failing);
    EXPECT_TRUE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 0);
    failing->trace = {{text("webapp.error"), text("0")}};
    EXPECT_FALSE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 0);
}

TEST_F(OlderRadioWrite, CountsAnUnreadableReplyToAWriteAsSuccess)
{
    gateway.reply(text("<html>"));
    EXPECT_TRUE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 0);
}

TEST_F(OlderRadioWrite, ReportsAWriteThatFails)
{
    gateway.sendRaw(failedReply);
    EXPECT_FALSE(older->setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 29);
}

TEST_F(OlderRadioWrite, GivesItsWriteAsTextAndSendsNothing)
{
    const QString query =
        older->getWirelessSettingsQuery(AspWirelessDisabled, wholeRecord("wep"), error);
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("wireless/older/facadeQuery"),
                              commandLines(text("<xmlrequest>") + query + text("</xmlrequest>"))));
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(OlderRadioWrite, SendsATextAsItStandsAndGivesNoneBack)
{
    gateway.reply(reply101({{"webapp", "error", "3"}}));
    EXPECT_EQ(older->setWirelessQuery(text("<get inst=\"a-0\"/> & more"), error), QString());
    EXPECT_EQ(error, 3);
    EXPECT_EQ(gateway.request(0).body,
              "<xmlrequest version=\"1.0.1\"><get inst=\"a-0\"/> & more</xmlrequest>");
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(OlderRadioWrite, CountsALostReplyToATextAsSuccess)
{
    cpe->getWirelessImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    gateway.sendAndHold(QByteArray()).reply(text("<html>"));
    EXPECT_EQ(older->setWirelessQuery(QString(), error), QString());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(older->setWirelessQuery(QString(), error), QString());
    EXPECT_EQ(error, 0);
}

} // namespace quorvel::test
