#include <quorvel/AspCpeFacadeObject.h>

#include "support/LogCapture.h"
#include "support/ScriptedGateway.h"
#include "support/Text.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QTimerEvent>
#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

class DeviceAvailability : public testing::Test
{
protected:
    bool isAvailable(const QString& prefix = QString()) const
    {
        return AspCpeFacadeObject::isDeviceAvailable(prefix + gateway.address());
    }

    LogCapture log;
    ScriptedGateway gateway;
};

QByteArray statusReply(const QByteArray& status, const QByteArray& headers = QByteArray())
{
    return "HTTP/1.1 " + status + "\r\n" + headers + "Content-Length: 2\r\n\r\nok";
}

/// Sends everything to a proxy that does not ask for it to be sent elsewhere.
class ApplicationProxy
{
public:
    explicit ApplicationProxy(const ScriptedGateway& proxy)
    {
        const QStringList address = proxy.address().split(QLatin1Char(':'));
        QNetworkProxy::setApplicationProxy(
            {QNetworkProxy::HttpProxy, address[0], static_cast<quint16>(address[1].toUInt())});
    }
    ~ApplicationProxy() { QNetworkProxy::setApplicationProxy(QNetworkProxy::DefaultProxy); }
};

} // namespace

TEST_F(DeviceAvailability, IsFoundByAPlainGetOfTheStartPage)
{
    gateway.sendRaw(statusReply("200 OK"));
    EXPECT_TRUE(isAvailable());
    const ReceivedRequest request = gateway.request(0);
    EXPECT_EQ(request.method, QByteArray("GET"));
    EXPECT_EQ(request.path, QByteArray("/"));
    EXPECT_EQ(request.body, QByteArray());
    EXPECT_EQ(request.header("Cookie"), QByteArray());
    EXPECT_EQ(request.header("Authorization"), QByteArray());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(DeviceAvailability, IsFoundUnderAnAddressWithScheme)
{
    gateway.sendRaw(statusReply("200 OK"));
    EXPECT_TRUE(isAvailable(text("http://")));
}

TEST_F(DeviceAvailability, KeepsNoCookieFromOneProbeToTheNext)
{
    gateway.sendRaw(statusReply("200 OK", "Set-Cookie: SID=1; path=/\r\n"))
        .sendRaw(statusReply("200 OK"));
    EXPECT_TRUE(isAvailable());
    EXPECT_TRUE(isAvailable());
    EXPECT_EQ(gateway.request(1).header("Cookie"), QByteArray());
}

TEST_F(DeviceAvailability, IsNotFoundIfTheStatusIsAnError)
{
    for (const char* status : {"404 Not Found", "400 Bad Request", "500 Internal Server Error",
                               "503 Service Unavailable"}) {
        gateway.sendRaw(statusReply(status));
        EXPECT_FALSE(isAvailable()) << status;
    }
}

TEST_F(DeviceAvailability, IsNotFoundIfCredentialsAreAskedFor)
{
    gateway.sendRaw(statusReply("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"));
    EXPECT_FALSE(isAvailable());
}

TEST_F(DeviceAvailability, IsFoundByARedirectThatIsNotFollowed)
{
    const ScriptedGateway target;
    gateway.sendRaw(
        statusReply("302 Found", "Location: http://" + target.address().toLatin1() + "/\r\n"));
    EXPECT_TRUE(isAvailable());
    EXPECT_EQ(target.connections(), 0);
}

TEST_F(DeviceAvailability, IsNotFoundIfTheReplyBreaksOff)
{
    gateway.sendRaw("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nok");
    EXPECT_FALSE(isAvailable());
}

TEST_F(DeviceAvailability, IsNotFoundWithASchemeInCapitals)
{
    EXPECT_FALSE(isAvailable(text("HTTP://")));
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(DeviceAvailability, IsNotFoundWithTheSchemeOfAnEncryptedConnection)
{
    EXPECT_FALSE(isAvailable(text("https://")));
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(DeviceAvailability, IsNotFoundWithoutAnAddress)
{
    EXPECT_FALSE(AspCpeFacadeObject::isDeviceAvailable(QString()));
}

TEST_F(DeviceAvailability, IsProbedPastTheProxy)
{
    // An address of this machine would never be asked of a proxy.
    const QString address = text("gateway.invalid");
    ScriptedGateway proxy;
    const ApplicationProxy everywhere(proxy);
    proxy.sendRaw(statusReply("200 OK"));
    QNetworkAccessManager other;
    QEventLoop loop;
    QNetworkReply* reply = other.get(QNetworkRequest(QUrl(text("http://") + address)));
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_EQ(proxy.connections(), 1);

    EXPECT_FALSE(AspCpeFacadeObject::isDeviceAvailable(address));
    EXPECT_EQ(proxy.connections(), 1);
}

TEST_F(DeviceAvailability, IsProbedFromAThreadWithoutEventLoop)
{
    gateway.sendRaw(statusReply("200 OK"));
    bool available = false;
    std::thread([&] { available = isAvailable(); }).join();
    EXPECT_TRUE(available);
}

TEST_F(DeviceAvailability, LetsQueuedEventsRunMeanwhile)
{
    gateway.sendRaw(statusReply("200 OK"));
    QObject here;
    bool served = false;
    QMetaObject::invokeMethod(
        &here, [&] { served = true; }, Qt::QueuedConnection);
    EXPECT_TRUE(isAvailable());
    EXPECT_TRUE(served);
}

TEST_F(DeviceAvailability, IsNotFoundIfTheApplicationQuitsMeanwhile)
{
    gateway.sendAndHold({});
    std::thread quitter([this] {
        EXPECT_TRUE(gateway.waitForRequests(1));
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    EXPECT_FALSE(isAvailable());
    quitter.join();
    // Only a whole run of the application takes the quitting back.
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

namespace
{

/// The intervals, in ms, of the timers of this thread that have fired while it lives. What a clock
/// shows when a wait is over depends on how busy the machine is.
class FiredTimers : public QObject
{
public:
    FiredTimers() { qApp->installEventFilter(this); }

    QList<int> intervals;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Timer)
            append(receiver, static_cast<QTimerEvent*>(event)->timerId());
        return false;
    }

private:
    void append(QObject* receiver, int id)
    {
        for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(receiver)) {
            if (timer.timerId == id)
                intervals.append(timer.interval);
        }
    }
};

} // namespace

// Takes the 15 seconds that a probe may take.
TEST_F(DeviceAvailability, IsNotFoundIfNothingComesFor15Seconds)
{
    gateway.sendAndHold({});
    FiredTimers timers;
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(isAvailable());
    EXPECT_GE(clock.elapsed(), 14990);
    EXPECT_EQ(timers.intervals, QList<int>({15000}));
}

} // namespace quorvel::test
