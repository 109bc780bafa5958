#include "protocol/NetworkExchange.h"

#include "protocol/AbortSignal.h"

#include <QNetworkProxy>
#include <QTimer>
#include <algorithm>

namespace quorvel
{

void NetworkExchange::OneWayBody::load(const QByteArray& content)
{
    bytes = content;
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 NetworkExchange::OneWayBody::readData(char* data, qint64 most)
{
    const qint64 count = qMin(most, bytesAvailable());
    if (count == 0)
        return -1;
    std::copy_n(bytes.constData() + taken, count, data);
    taken += count;
    return count;
}

NetworkExchange::NetworkExchange(const AbortSignal* abortSignal) : abortSignal(abortSignal)
{
    manager.setProxy(QNetworkProxy::NoProxy);
}

QNetworkRequest NetworkExchange::request(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    // Unless an encoding is asked for by hand, Qt asks for gzip and unpacks it without bound.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

NetworkExchange::Ending NetworkExchange::get(const QNetworkRequest& request, int limitMs)
{
    return waitFor(manager.get(request), limitMs);
}

NetworkExchange::Ending NetworkExchange::post(QNetworkRequest request, const QByteArray& body,
                                              int limitMs)
{
    // A sequential body goes out without being copied first only if its length is known.
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    outgoing.load(body);
    return waitFor(manager.post(request, &outgoing), limitMs);
}

NetworkExchange::Ending NetworkExchange::waitFor(QNetworkReply* reply, int limitMs)
{
    pending = reply;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(reply, &QNetworkReply::readyRead, &loop, [this] { receive(); });
    if (abortSignal)
        QObject::connect(abortSignal, &AbortSignal::raised, &loop, [this] { pending->abort(); });

    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    timer.setInterval(limitMs);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start();
    loop.exec();

    const bool timedOut = !timer.isActive();
    timer.stop();
    const bool brokenOff = !reply->isFinished();
    if (timedOut || brokenOff)
        reply->abort();
    else
        receive();
    reply->deleteLater();
    if (timedOut)
        return Ending::TimedOut;
    return brokenOff ? Ending::BrokenOff : Ending::Finished;
}

void NetworkExchange::receive()
{
    received += pending->readAll();
    if (received.size() > largestBody && pending->isRunning())
        pending->abort();
}

} // namespace quorvel
