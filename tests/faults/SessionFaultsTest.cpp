#include <quorvel/AspGeneralSettingsFacade.h>

#include "faults/Opponent.h"
#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/Resources.h"
#include "support/Text.h"

#include <boost/make_shared.hpp>
#include <chrono>

namespace quorvel::test
{

namespace
{

QString expired()
{
    return reply101({{"sysmgr-0", "fwversion", "stale"}, {"webapp", "error", "1"}});
}

/// What happens to the session, and what a read of the firmware version makes of it.
struct SessionFault {
    const char* name;
    std::function<void(ScriptedGateway&)> play;
    int error;
    const char* version;
    int requests;
    const char* lastCookie; ///< of the last request to the web application
    int limitMs = 20000;
    int rounds = 20;
};

void PrintTo(const SessionFault& fault, std::ostream* out)
{
    *out << fault.name;
}

class SessionFaults : public BuiltGateway, public testing::WithParamInterface<SessionFault>
{
protected:
    void SetUp() override { build({{"XML_VERSION", "1.0.1"}}); }

    /// A limit of its own is for the fault alone: on a busy machine a good exchange takes longer.
    void expectOutcome()
    {
        const auto general = cpe->getGeneralImplementor();
        const auto usual = general->getRequestExecutor();
        if (GetParam().limitMs != HttpRequestExecutor::defaultLimitMs)
            general->setRequestExecutor(
                boost::make_shared<HttpRequestExecutor>(GetParam().limitMs));
        expectVersion(GetParam().version, GetParam().error);
        general->setRequestExecutor(usual);
    }

    void expectVersion(const char* expected, int expectedError)
    {
        AspWebAppErrorCodes error = AspWebAppNoError;
        EXPECT_EQ(AspGeneralSettingsFacade(cpe).getFirmwareVersion(error), text(expected));
        EXPECT_EQ(error, expectedError);
    }

    QByteArray lastCookie() const
    {
        const QList<ReceivedRequest> requests = gateway.requests();
        for (auto request = requests.crbegin(); request != requests.crend(); ++request) {
            if (request->path == "/cgi-bin/webapp")
                return request->header("Cookie");
        }
        return QByteArray();
    }

    void expectGoodExchange()
    {
        AspCpeSessionStorage::getInstance()->setSession(gateway.address(), text("SID=1"));
        gateway.sendRaw(httpReply(goodBody()));
        expectVersion("1.2", 0);
    }
};

/// Hands out a session in these headers.
void logIn(ScriptedGateway& gateway, const QByteArray& headers)
{
    gateway.sendRaw(httpReply("", headers));
}

const SessionFault faults[] = {
    {"ExpiresOnce",
     [](ScriptedGateway& gateway) {
         gateway.reply(expired()).logIn("SID=2").sendRaw(httpReply(goodBody()));
     },
     0, "1.2", 3, "SID=2"},
    {"ExpiresThreeTimes",
     [](ScriptedGateway& gateway) {
         for (const char* session : {"SID=2", "SID=3", "SID=4"})
             gateway.reply(expired()).logIn(session);
         gateway.sendRaw(httpReply(goodBody()));
     },
     0, "1.2", 7, "SID=4"},
    {"ExpiresAndTheLoginIsRefused",
     [](ScriptedGateway& gateway) { gateway.reply(expired()).refuseLogin(); }, 25, "", 2, "SID=1"},
    // A login that fails in transport names no error.
    {"ExpiresAndTheLoginHangs",
     [](ScriptedGateway& gateway) { gateway.reply(expired()).sendAndHold({}); }, 0, "", 2, "SID=1",
     1000, 5},
    {"ExpiresAndTheLoginIsCut",
     [](ScriptedGateway& gateway) { gateway.reply(expired()).sendRaw("HTTP/1.1 200 OK\r\nSet-"); },
     0, "", 2, "SID=1"},
    {"ExpiresAndTheRepeatedRequestIsCut",
     [](ScriptedGateway& gateway) { gateway.reply(expired()).logIn("SID=2").sendRaw(""); }, 29, "",
     3, "SID=2"},
    {"TwoCookies",
     [](ScriptedGateway& gateway) {
         gateway.reply(expired());
         logIn(gateway, "Set-Cookie: A=1; path=/\r\nSet-Cookie: SID=2; path=/\r\n");
         gateway.sendRaw(httpReply(goodBody()));
     },
     0, "1.2", 3, "SID=2"},
    {"CookieWithAttributes",
     [](ScriptedGateway& gateway) {
         gateway.reply(expired());
         logIn(gateway, "Set-Cookie: SID=2; path=/; HttpOnly\r\n");
         gateway.sendRaw(httpReply(goodBody()));
     },
     0, "1.2", 3, "SID=2  HttpOnly"},
    {"CookieOnTwoLines",
     [](ScriptedGateway& gateway) {
         gateway.reply(expired());
         logIn(gateway, "Set-Cookie: SID=2;\r\n X-Evil: 1\r\n");
         gateway.sendRaw(httpReply(goodBody()));
     },
     0, "1.2", 3, "SID=2 X-Evil: 1"}};

} // namespace

TEST_P(SessionFaults, AreRecoveredFromOrReported)
{
    expectGoodExchange();
    const Resources before;
    for (int round = 0; round < GetParam().rounds; ++round) {
        SCOPED_TRACE(round);
        const int requests = gateway.requests().size();
        const int connections = gateway.connections();
        GetParam().play(gateway);
        expectOutcome();
        EXPECT_EQ(gateway.requests().size() - requests, GetParam().requests);
        EXPECT_EQ(gateway.connections() - connections, GetParam().requests);
        EXPECT_EQ(lastCookie(), QByteArray(GetParam().lastCookie));
        expectGoodExchange();
    }
    EXPECT_TRUE(before.areBack());
}

INSTANTIATE_TEST_SUITE_P(All, SessionFaults, testing::ValuesIn(faults),
                         [](const auto& info) { return std::string(info.param.name); });

namespace
{

void expectRestartSurvived(simulator::GatewaySimulator& gateway,
                           const AspGeneralSettingsFacade& kept)
{
    AspGeneralSettingsFacade facade(kept);
    AspWebAppErrorCodes error = AspWebAppNoError;
    gateway.restart();
    while (!gateway.isReachable()) {
        const QString version = facade.getFirmwareVersion(error);
        if (!version.isEmpty())
            break; // it has come back meanwhile
        EXPECT_EQ(error, 29);
    }
    EXPECT_TRUE(gateway.waitUntilReachable(true, std::chrono::seconds(10)));
    EXPECT_NE(facade.getFirmwareVersion(error), QString());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.sessionNumber(), 1u);
}

void expectRestartsSurvived(std::chrono::milliseconds time, int number)
{
    std::string failure;
    simulator::GatewaySimulator gateway(*simulator::Scenario::load("modern", &failure));
    gateway.setValue("webui-0", "password", "secret");
    gateway.setRebootTime(time);
    ASSERT_TRUE(gateway.start(&failure)) << failure;
    const auto cpe =
        builtCpe(QString::fromStdString(gateway.address()), {{"XML_VERSION", "1.0.1"}});
    const AspGeneralSettingsFacade facade(cpe);
    expectRestartSurvived(gateway, facade);
    const Resources before;
    for (int i = 1; i < number; ++i)
        expectRestartSurvived(gateway, facade);
    EXPECT_TRUE(before.areBack());
}

} // namespace

TEST(Restart, OfThreeSecondsIsSurvivedByTheSameObjects)
{
    expectRestartsSurvived(std::chrono::seconds(3), 1);
}

TEST(Restart, IsSurvivedTwentyTimes)
{
    expectRestartsSurvived(std::chrono::milliseconds(50), 20);
}

} // namespace quorvel::test
