#include "support/BareExchange.h"

#include "support/BareDocuments.h"

#include <QBuffer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QTimer>
#include <cstdlib>
#include <cstring>

namespace quorvel::bench
{

const QByteArray firmwareRequest = "<xmlrequest version=\"1.0.1\">\n"
                                   " <query inst=\"sysmgr-0\">\n"
                                   "  <key>fwversion</key>\n"
                                   "  <value></value>\n"
                                   " </query>\n"
                                   "</xmlrequest>\n";

namespace
{

QNetworkRequest requestTo(const QString& address)
{
    QNetworkRequest request(
        QUrl(QLatin1String("http://") + address + QLatin1String("/cgi-bin/webapp")));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Host", request.url().host().toLocal8Bit());
    request.setRawHeader("Content-Type", "application/x-www-form-urlencoded");
    request.setRawHeader("Cookie", "SID=1");
    return request;
}

/// A body that can't be read twice, as the library's, so that Qt can't send it twice.
class OneWayBody : public QIODevice
{
public:
    explicit OneWayBody(const QByteArray& content) : rest(content) { open(ReadOnly | Unbuffered); }

    bool isSequential() const override { return true; }
    bool atEnd() const override { return rest.isEmpty(); }
    qint64 bytesAvailable() const override { return rest.size(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const int size = static_cast<int>(qMin<qint64>(maxSize, rest.size()));
        std::memcpy(data, rest.constData(), static_cast<std::size_t>(size));
        rest.remove(0, size);
        return size == 0 ? -1 : size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray rest;
};

void waitFor(QNetworkReply* reply, Qt::TimerType timerType)
{
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer timer;
    timer.setTimerType(timerType);
    timer.setSingleShot(true);
    timer.setInterval(20000);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start();
    loop.exec();
    timer.stop();
}

QString writtenRequest()
{
    return bareWrite({{QStringLiteral("query"), QStringLiteral("sysmgr-0"),
                       QStringLiteral("fwversion"), QString()}});
}

void finish(QNetworkReply* reply, const QByteArray& content)
{
    if (reply->error() != QNetworkReply::NoError || content.isEmpty())
        std::abort();
    reply->deleteLater();
}

} // namespace

QByteArray bareExchange(const QString& address, const QByteArray& content,
                        QMap<QString, QString>* headers)
{
    OneWayBody body(content);
    QNetworkAccessManager manager;
    manager.setProxy(QNetworkProxy::NoProxy);
    QNetworkRequest request = requestTo(address);
    request.setHeader(QNetworkRequest::ContentLengthHeader, content.size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    QNetworkReply* const reply = manager.post(request, &body);
    QMetaObject::invokeMethod(
        reply, [reply] { reply->setReadBufferSize(256 * 1024); }, Qt::QueuedConnection);
    QByteArray received;
    QObject::connect(reply, &QNetworkReply::readyRead, reply,
                     [&received, reply] { received += reply->readAll(); });
    waitFor(reply, Qt::PreciseTimer);
    received += reply->readAll();
    if (headers) {
        for (const auto& [name, value] : reply->rawHeaderPairs())
            headers->insert(QString::fromUtf8(name), QString::fromUtf8(value));
    }
    finish(reply, received);
    return received;
}

void plainestExchange(const QString& address)
{
    QBuffer body;
    body.setData(firmwareRequest);
    body.open(QIODevice::ReadOnly);
    QNetworkAccessManager manager;
    manager.setProxy(QNetworkProxy::NoProxy);
    QNetworkReply* const reply = manager.post(requestTo(address), &body);
    waitFor(reply, Qt::CoarseTimer);
    finish(reply, reply->readAll());
}

void bareCallWithDocuments(const QString& address)
{
    if (bareRead(QString::fromUtf8(bareExchange(address, writtenRequest().toUtf8()))) == 0)
        std::abort();
}

void bareCallWithMaps(const QString& address)
{
    const QMap<QString, QString> parameters{{QStringLiteral("method"), QStringLiteral("POST")},
                                            {QStringLiteral("address"), address},
                                            {QStringLiteral("path"), QStringLiteral("/path")},
                                            {QStringLiteral("session"), QStringLiteral("SID=1")},
                                            {QStringLiteral("content"), writtenRequest()}};
    QMap<QString, QString> content;
    const QByteArray body =
        bareExchange(parameters.value(QStringLiteral("address")),
                     parameters.value(QStringLiteral("content")).toUtf8(), &content);
    content.insert(QStringLiteral("result"), QString::fromUtf8(body));
    if (bareFlatten(content.value(QStringLiteral("result")))
            .value(QStringLiteral("sysmgr-0.fwversion"))
            .isEmpty())
        std::abort();
}

} // namespace quorvel::bench
