#include "protocol/NetworkExchange.h"

#include "protocol/AbortSignal.h"

#include <QNetworkProxy>
#include <algorithm>

namespace quorvel
{

namespace
{

const int readAhead = 256 * 1024;

bool endsWithConnection(const QNetworkReply& reply)
{
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    return status.isValid() && status.toInt() < 400 && !reply.hasRawHeader("Content-Length") &&
           !reply.hasRawHeader("Transfer-Encoding");
}

} // namespace

void NetworkExchange::OneWayBody::setContent(const QByteArray& content)
{
    rest = content;
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 NetworkExchange::OneWayBody::bytesAvailable() const
{
    return rest.size() + QIODevice::bytesAvailable();
}

qint64 NetworkExchange::OneWayBody::readData(char* data, qint64 maxSize)
{
    const int size = static_cast<int>(qMin<qint64>(maxSize, rest.size()));
    if (size == 0)
        return -1;
    std::copy_n(rest.constData(), size, data);
    rest.remove(0, size);
    return size;
}

qint64 NetworkExchange::OneWayBody::writeData(const char*, qint64)
{
    return -1;
}

void NetworkExchange::Wait::exec(int limitMs)
{
    timer.start(limitMs, Qt::PreciseTimer, this);
    QEventLoop::exec();
    timer.stop();
}

void NetworkExchange::Wait::timerEvent(QTimerEvent*)
{
    timer.stop();
    timeUp = true;
    quit();
}

NetworkExchange::NetworkExchange(const AbortSignal* abortSignal)
    : abortSignal(abortSignal), abortsBefore(abortSignal ? abortSignal->timesRaised() : 0)
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
    sent.setContent(body);
    return waitFor(manager.post(request, &sent), limitMs);
}

QNetworkReply::NetworkError NetworkExchange::error() const
{
    const QNetworkReply::NetworkError error = pending->error();
    // Where the close of the connection is the end of the reply, Qt takes it now and then for a
    // reason to repeat the request, although it has handed out the reply already.
    if (error == QNetworkReply::ContentReSendError && endsWithConnection(*pending))
        return QNetworkReply::NoError;
    // For a connection that breaks under the request Qt has neither a name nor, unlike for the
    // errors that the system reports, words of its own.
    if (error == QNetworkReply::UnknownNetworkError && pending->errorString() == sent.errorString())
        return QNetworkReply::RemoteHostClosedError;
    return error;
}

NetworkExchange::Ending NetworkExchange::waitFor(QNetworkReply* reply, int limitMs)
{
    pending = reply;
    // Else Qt's thread reads ahead without bound while ours is busy. Queued, because Qt forgets it
    // if it comes before that thread has the request, which is queued too.
    QMetaObject::invokeMethod(
        reply, [reply] { reply->setReadBufferSize(readAhead); }, Qt::QueuedConnection);
    QObject::connect(reply, &QNetworkReply::finished, &wait, &QEventLoop::quit);
    QObject::connect(reply, &QNetworkReply::readyRead, &wait, [this] { receive(); });
    // By name: of a connection by pointer Qt loses the pointer's holder if it ends while the signal
    // is raised on another thread.
    if (abortSignal)
        QObject::connect(abortSignal, SIGNAL(raised()), &wait, SLOT(quit()));
    if (!isAborted())
        wait.exec(limitMs);

    const bool timedOut = wait.isTimeUp();
    const bool brokenOff = !reply->isFinished();
    if (!timedOut && !brokenOff)
        receive();
    else if (reply->error() == QNetworkReply::NoError) // it can't take a second error
        reply->abort();
    if (timedOut)
        return Ending::TimedOut;
    return brokenOff || received.size() > largestBody ? Ending::BrokenOff : Ending::Finished;
}

bool NetworkExchange::isAborted() const
{
    return abortSignal && abortSignal->timesRaised() != abortsBefore;
}

void NetworkExchange::receive()
{
    received += pending->read(pending->bytesAvailable());
    if (received.size() > largestBody)
        wait.quit();
}

} // namespace quorvel
