#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTcpServer>
#include <QUrl>
#include <memory>

class QTcpSocket;

namespace quorvelctl
{

/// A request to the web application of a gateway, and what came back.
struct WebExchange {
    QString request;
    int status = 0; ///< of the reply; 0 if no complete reply came
    QString reply;
};

/// Stands between the library and a gateway and writes down what passes, byte by byte: so also what
/// the library makes nothing of. It relays while its thread waits in an event loop, which is what
/// the library does during a request.
class Recorder
{
public:
    /// Of a gateway at this address. Fails if there is no port to be had.
    explicit Recorder(const QString& gatewayAddress);

    /// Where to reach the gateway by way of the recorder.
    QString address() const;
    /// What went to the web application so far, and came from it; no logins.
    QList<WebExchange> exchanges() const;

private:
    struct Bytes {
        QByteArray sent;
        QByteArray received;
    };

    void relay(QTcpSocket& library);

    const QUrl gateway;
    QTcpServer server;
    QList<std::shared_ptr<Bytes>> recorded;
};

} // namespace quorvelctl
