#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"

#include <quorvel/AspGeneralSettingsFacade.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QTimer>

namespace quorvel::test
{

namespace
{

struct RedirectStatus {
    const char* line;
    int outcome;
};

class Redirection : public testing::TestWithParam<RedirectStatus>
{
};

} // namespace

TEST_P(Redirection, IsNotFollowed)
{
    ScriptedGateway target;
    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    const QString targets[] = {
        text("/cgi-bin/webapp"), text("http://") + target.address() + text("/"),
        text("//") + target.address() + text("/"), text("file:///etc/passwd")};
    for (const QString& location : targets) {
        gateway.sendRaw(QByteArray("HTTP/1.1 ") + GetParam().line +
                        "\r\nLocation: " + location.toUtf8() + "\r\nContent-Length: 4\r\n\r\n<r/>");
        ParamMap result;
        EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), GetParam().outcome);
        EXPECT_EQ(bodyOf(result), GetParam().outcome == 0 ? text("<r/>") : QString());
    }
    EXPECT_EQ(gateway.connections(), 4);
    EXPECT_EQ(target.connections(), 0);
}

// The latter two ask for the same request once more, and that Qt can't send.
INSTANTIATE_TEST_SUITE_P(Statuses, Redirection,
                         testing::Values(RedirectStatus{"301 Moved", 0},
                                         RedirectStatus{"302 Found", 0},
                                         RedirectStatus{"303 See Other", 0},
                                         RedirectStatus{"307 Temporary", 1},
                                         RedirectStatus{"308 Permanent", 1}));

TEST(ProxyTest, OfTheEnvironmentGetsNoByte)
{
    ScriptedGateway proxy;
    ScriptedGateway gateway;
    for (const char* name : {"http_proxy", "HTTP_PROXY", "all_proxy"})
        qputenv(name, QByteArray("http://") + proxy.address().toUtf8());
    qunsetenv("no_proxy");
    gateway.sendRaw(httpReply("<r/>"));
    ParamMap result;
    EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 0);
    EXPECT_EQ(proxy.connections(), 0);
}

TEST(ProxyTest, OfTheHostGetsNoByte)
{
    ScriptedGateway proxy;
    ScriptedGateway gateway;
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, text("127.0.0.1"),
         static_cast<quint16>(proxy.address().section(QLatin1Char(':'), 1).toInt())});
    gateway.sendRaw(httpReply("<r/>"));
    ParamMap result;
    EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 0);
    EXPECT_EQ(proxy.connections(), 0);
}

namespace
{

class QuittingApplication : public BuiltGateway
{
protected:
    /// Runs the application until it is told to quit, which `duringWait` does while a facade waits.
    void ask()
    {
        build({{"XML_VERSION", "1.0.1"}});
        gateway.answerAllOthers([](const ReceivedRequest&, GatewayConnection& peer) {
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
            peer.waitForRelease();
        });
        AspGeneralSettingsFacade facade(cpe);
        QTimer::singleShot(0, [&] { version = facade.getFirmwareVersion(error); });
        QCoreApplication::exec();
    }

    AspWebAppErrorCodes error = AspWebAppNoError;
    QString version = text("untouched");
};

} // namespace

TEST_F(QuittingApplication, MakesTheRequestFail)
{
    ask();
    EXPECT_EQ(error, 29);
    EXPECT_EQ(version, QString());
}

TEST_F(QuittingApplication, MakesLaterRequestsFailUntilItRunsAgain)
{
    ask();
    ParamMap result;
    HttpRequestExecutor executor;
    EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 1);
    ScriptedGateway second;
    second.sendRaw(httpReply("<r/>"));
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(executor.execute(requestTo(second.address()), result), 0);
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    EXPECT_EQ(bodyOf(result), text("<r/>"));
}

TEST(WaitLimit, Is20SecondsForTheWholeExchange)
{
    ScriptedGateway gateway;
    gateway.answer([](const ReceivedRequest&, GatewayConnection& peer) {
        peer.send("HTTP/1.1 200 OK\r\n\r\n");
        while (peer.send("x") && peer.pause(100)) {
        }
    });
    ParamMap result{{text("old"), text("1")}};
    HttpRequestExecutor executor;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 2);
    EXPECT_GE(clock.elapsed(), 19990);
    EXPECT_LT(clock.elapsed(), 40000);
    EXPECT_EQ(entries(result), lines({"old=1"}));
}

} // namespace quorvel::test
