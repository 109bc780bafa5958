#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"

#include <quorvel/AspGeneralSettingsFacade.h>

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QTimer>

namespace quorvel::test
{

namespace
{

/// Another server, which the host's surroundings name as the one to ask everything through.
class Proxy : public testing::Test
{
protected:
    void expectNoByte()
    {
        for (int round = 0; round < 20; ++round) {
            gateway.sendRaw(httpReply("<r/>"));
            ParamMap result;
            EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 0);
        }
        EXPECT_EQ(proxy.connections(), 0);
    }

    ScriptedGateway proxy;
    ScriptedGateway gateway;
};

} // namespace

TEST_F(Proxy, OfTheEnvironmentGetsNoByte)
{
    for (const char* name : {"http_proxy", "HTTP_PROXY", "all_proxy"})
        qputenv(name, QByteArray("http://") + proxy.address().toUtf8());
    qunsetenv("no_proxy");
    expectNoByte();
}

TEST_F(Proxy, OfTheHostGetsNoByte)
{
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, text("127.0.0.1"),
         static_cast<quint16>(proxy.address().section(QLatin1Char(':'), 1).toInt())});
    expectNoByte();
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
    for (int round = 0; round < 20; ++round) {
        version = text("untouched");
        ask();
        EXPECT_EQ(error, 29);
        EXPECT_EQ(version, QString());
    }
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

} // namespace quorvel::test
