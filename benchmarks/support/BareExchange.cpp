#include "support/BareExchange.h"

#include "support/BareDocuments.h"

#include <QBuffer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QTimer>
#include <cstdlib>

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

} // namespace

QByteArray bareExchange(const QString& address, const QByteArray& request)
{
    QBuffer body;
    body.setData(request);
    body.open(QIODevice::ReadOnly);
    QNetworkAccessManager manager;
    manager.setProxy(QNetworkProxy::NoProxy);
    QEventLoop loop;
    QNetworkReply* const reply = manager.post(requestTo(address), &body);
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer timer;
    timer.setSingleShot(true);
    timer.setInterval(20000);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start();
    loop.exec();
    timer.stop();
    const QByteArray content = reply->readAll();
    if (reply->error() != QNetworkReply::NoError || content.isEmpty())
        std::abort();
    reply->deleteLater();
    return content;
}

void bareCallWithDocuments(const QString& address)
{
    const QString request = bareWrite({{QStringLiteral("query"), QStringLiteral("sysmgr-0"),
                                        QStringLiteral("fwversion"), QString()}});
    if (bareRead(QString::fromUtf8(bareExchange(address, request.toUtf8()))) == 0)
        std::abort();
}

} // namespace quorvel::bench
