#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Exchanges.h"
#include "support/BuiltGateway.h"
#include "support/Golden.h"
#include "support/Transcript.h"
#include "wan/WanSettingsImplementor.h"

namespace quorvel::test
{

namespace
{

/// The road of a request from an implementor to the gateway and back.
class RequestOnTheWire : public BuiltGateway
{
protected:
    RequestOnTheWire() { build({{"XML_VERSION", "1.0.1"}, {"WAN_VERSION", "2"}}); }

    bool askFirmware() { return cpe->getGeneralImplementor()->getFirmwareVersion(result); }

    void forgetSession() { AspCpeSessionStorage::getInstance()->removeSession(gateway.address()); }

    QStringList cookies() const
    {
        QStringList values;
        const QList<ReceivedRequest> requests = gateway.requests();
        for (const ReceivedRequest& request : requests)
            values.append(QString::fromUtf8(request.path + ' ' + request.header("Cookie")));
        return values;
    }

    const QString version = reply101({{"sysmgr-0", "fwversion", "1.2"}, {"webapp", "error", "0"}});
    const QString expired = reply101({{"webapp", "error", "1"}});
    ParamMap result;
};

} // namespace

TEST_F(RequestOnTheWire, OfTheNewDialectIsTheseBytes)
{
    gateway.reply(version);
    EXPECT_TRUE(askFirmware());
    EXPECT_TRUE(matchesGolden(text("protocol/newDialect"), rawText(gateway.request(0))));
}

TEST_F(RequestOnTheWire, OfTheOldDialectIsTheseBytes)
{
    build({{"XML_VERSION", "1.0.0"}});
    gateway.reply(reply100({{"sysmgr-0", "MAC_ETH_0", "00:11"}}));
    EXPECT_TRUE(cpe->getGeneralImplementor()->getEthMacAddress(result));
    EXPECT_TRUE(matchesGolden(text("protocol/oldDialect"), rawText(gateway.request(0))));
    EXPECT_EQ(entries(result), lines({"response=1.0.0", "sysmgr-0.MAC_ETH_0=00:11"}));
}

TEST_F(RequestOnTheWire, LogsInOnceAndKeepsTheSession)
{
    forgetSession();
    gateway.logIn("SID=2").reply(version).reply(version);
    EXPECT_TRUE(askFirmware());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=0", "response=1.0.1",
                                      "sysmgr-0.fwversion=1.2", "webapp.error=0"}));
    EXPECT_TRUE(askFirmware());
    EXPECT_EQ(cookies(),
              lines({"/cgi-bin/login ", "/cgi-bin/webapp SID=2", "/cgi-bin/webapp SID=2"}));
}

TEST_F(RequestOnTheWire, IsRepeatedWithAFreshSessionWhenTheOldOneHasExpired)
{
    gateway.reply(expired).logIn("SID=2").reply(version);
    EXPECT_TRUE(askFirmware());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=0", "response=1.0.1",
                                      "sysmgr-0.fwversion=1.2", "webapp.error=0"}));
    EXPECT_EQ(cookies(),
              lines({"/cgi-bin/webapp SID=1", "/cgi-bin/login ", "/cgi-bin/webapp SID=2"}));
    EXPECT_EQ(gateway.request(2).body, gateway.request(0).body);
}

TEST_F(RequestOnTheWire, IsRepeatedAsOftenAsTheGatewayTakesALoginAndRefusesTheSession)
{
    for (int round = 0; round < 30; ++round)
        gateway.reply(expired).logIn("SID=2");
    gateway.reply(expired).refuseLogin();
    EXPECT_FALSE(askFirmware());
    EXPECT_EQ(gateway.requests().size(), 62);
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=1"}));
}

TEST_F(RequestOnTheWire, SharesTheSessionOfAllFamiliesAndHandles)
{
    const auto first = cpe;
    build({{"XML_VERSION", "1.0.1"}, {"WAN_VERSION", "2"}});
    gateway.reply(expired).logIn("SID=2").reply(version).reply(version).reply(version);
    EXPECT_TRUE(askFirmware());
    EXPECT_TRUE(first->getGeneralImplementor()->getFirmwareVersion(result));
    EXPECT_TRUE(first->getWanImplementor()->executeRequest(text("<xmlrequest/>"), result, false));
    EXPECT_EQ(cookies(), lines({"/cgi-bin/webapp SID=1", "/cgi-bin/login ", "/cgi-bin/webapp SID=2",
                                "/cgi-bin/webapp SID=2", "/cgi-bin/webapp SID=2"}));
}

TEST_F(RequestOnTheWire, LogsInAgainWhenAnotherHandleHasRemovedTheSession)
{
    const auto first = cpe;
    build({{"XML_VERSION", "1.0.1"}});
    forgetSession();
    gateway.logIn("SID=2").reply(version).reply(version);
    EXPECT_TRUE(first->getGeneralImplementor()->getFirmwareVersion(result));
    EXPECT_TRUE(askFirmware());
    EXPECT_EQ(cookies(),
              lines({"/cgi-bin/login ", "/cgi-bin/webapp SID=2", "/cgi-bin/webapp SID=2"}));
}

TEST_F(RequestOnTheWire, LogsInAgainAfterACookieOfBlanks)
{
    forgetSession();
    gateway.sendRaw(httpReply("", "Set-Cookie:   \r\n"))
        .reply(version)
        .logIn("SID=2")
        .reply(version);
    EXPECT_TRUE(askFirmware());
    EXPECT_TRUE(askFirmware());
    EXPECT_EQ(cookies(), lines({"/cgi-bin/login ", "/cgi-bin/webapp ", "/cgi-bin/login ",
                                "/cgi-bin/webapp SID=2"}));
}

TEST_F(RequestOnTheWire, SendsTheLastOfSeveralCookiesInOneCleanLine)
{
    forgetSession();
    gateway
        .sendRaw(httpReply("", "Set-Cookie: SID=2; path=/\r\n"
                               "Set-Cookie: SID=3; path=/; HttpOnly\r\n"))
        .reply(version);
    EXPECT_TRUE(askFirmware());
    EXPECT_EQ(cookies(), lines({"/cgi-bin/login ", "/cgi-bin/webapp SID=3  HttpOnly"}));
}

TEST_F(RequestOnTheWire, SucceedsWithAWebPageWhereNoReplyIsExpected)
{
    gateway.reply(text("<html><br></html>")).sendRaw(httpReply("")).sendRaw("");
    EXPECT_TRUE(cpe->getGeneralImplementor()->rebootCpe(result));
    EXPECT_TRUE(cpe->getGeneralImplementor()->rebootCpe(result));
    EXPECT_EQ(entries(result), QStringList());
    EXPECT_FALSE(cpe->getGeneralImplementor()->rebootCpe(result));
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"}));
}

} // namespace quorvel::test
