#pragma once

#include <QBasicTimer>
#include <QByteArray>
#include <QEventLoop>
#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace quorvel
{

class AbortSignal;

/// One HTTP request and the blocking wait for its reply, by the rules that hold for all that the
/// library sends: one request on the wire, no proxy, no redirect, no compression, a precise limit
/// of time and one of size. Its network manager lives for just this exchange, so no connection,
/// cookie or cache survives it. Needs a QCoreApplication.
class NetworkExchange
{
public:
    /// How the wait ended.
    enum class Ending {
        Finished, ///< the reply is complete or failed, as error() tells
        TimedOut, ///< the limit has passed
        BrokenOff ///< aborted, too large, or the host's event loop was told to quit
    };

    /// A reply body of more bytes breaks the exchange off.
    static constexpr int largestBody = 4 * 1024 * 1024;

    /// The exchange is broken off when `abortSignal` is raised from now on; null for never.
    explicit NetworkExchange(const AbortSignal* abortSignal = nullptr);

    static QNetworkRequest request(const QUrl& url);

    Ending get(const QNetworkRequest& request, int limitMs);
    Ending post(QNetworkRequest request, const QByteArray& body, int limitMs);

    /// Valid after get or post, as long as the exchange lives.
    const QNetworkReply& reply() const { return *pending; }
    const QByteArray& body() const { return received; }
    /// The reply's error, but for those that Qt finds by mistake or can't name.
    QNetworkReply::NetworkError error() const;

private:
    /// Can't be read twice, so that Qt can't send the request a second time by itself, which it
    /// does when the connection closes early. No QBuffer: Qt goes past its back and rewinds it.
    class OneWayBody : public QIODevice
    {
    public:
        void setContent(const QByteArray& content);

        bool isSequential() const override { return true; }
        qint64 bytesAvailable() const override;
        bool atEnd() const override { return bytesAvailable() == 0; }
        bool reset() override { return false; }

    protected:
        qint64 readData(char* data, qint64 maxSize) override;
        qint64 writeData(const char* data, qint64 maxSize) override;

    private:
        QByteArray rest;
    };

    /// The event loop of the wait.
    class Wait : public QEventLoop
    {
    public:
        /// Returns when quit is called or the time is up.
        void exec(int limitMs);
        bool isTimeUp() const { return timeUp; }

    protected:
        void timerEvent(QTimerEvent*) override;

    private:
        QBasicTimer timer;
        bool timeUp = false;
    };

    Ending waitFor(QNetworkReply* reply, int limitMs);
    void receive();

    bool isAborted() const;

    const AbortSignal* abortSignal;
    const int abortsBefore;
    QByteArray received;
    OneWayBody sent;
    QNetworkAccessManager manager;
    Wait wait;
    QNetworkReply* pending = nullptr;
};

} // namespace quorvel
