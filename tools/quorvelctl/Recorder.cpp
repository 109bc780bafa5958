#include "Recorder.h"

#include "Failure.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QRegularExpression>
#include <QTcpSocket>

namespace quorvelctl
{

namespace
{

/// Passes on what arrives at one end, and its end.
void forward(QTcpSocket& from, QTcpSocket& to, const std::shared_ptr<void>& owner, QByteArray& kept)
{
    QObject::connect(&from, &QTcpSocket::readyRead, &to, [&from, &to, owner, &kept] {
        const QByteArray bytes = from.readAll();
        kept += bytes;
        to.write(bytes);
    });
    QObject::connect(&from, &QTcpSocket::disconnected, &to, [&to] { to.disconnectFromHost(); });
}

/// Where the head of a message ends and its body begins; -1 if it doesn't.
int bodyStart(const QByteArray& message)
{
    const int end = message.indexOf("\r\n\r\n");
    return end < 0 ? -1 : end + 4;
}

QString header(const QByteArray& head, const char* name)
{
    const QRegularExpression line(QStringLiteral("^%1: *(.*?) *\r?$").arg(QLatin1String(name)),
                                  QRegularExpression::CaseInsensitiveOption |
                                      QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(head)).captured(1);
}

/// The content of a body that comes in chunks; false if its end is missing.
bool joinChunks(QByteArray& body)
{
    QByteArray content;
    for (int place = 0;;) {
        const int lineEnd = body.indexOf("\r\n", place);
        bool isNumber = false;
        const int size = body.mid(place, lineEnd - place).split(';').first().toInt(&isNumber, 16);
        if (lineEnd < 0 || !isNumber || size < 0 || size > body.size() - lineEnd - 2)
            return false;
        if (size == 0)
            break;
        content += body.mid(lineEnd + 2, size);
        place = lineEnd + 2 + size + 2;
    }
    body = content;
    return true;
}

void takeReply(const QByteArray& received, WebExchange& exchange)
{
    static const QRegularExpression statusLine(QStringLiteral("^HTTP/1\\.\\d (\\d{3})"));
    const int start = bodyStart(received);
    const QByteArray head = received.left(start);
    const auto status = statusLine.match(QString::fromLatin1(head));
    if (start < 0 || !status.hasMatch())
        return;
    QByteArray body = received.mid(start);
    const QString length = header(head, "Content-Length");
    const bool chunked = header(head, "Transfer-Encoding").toLower() == QLatin1String("chunked");
    if (chunked ? !joinChunks(body) : !length.isEmpty() && length.toInt() != body.size())
        return;
    exchange.status = status.captured(1).toInt();
    exchange.reply = QString::fromUtf8(body);
}

} // namespace

Recorder::Recorder(const QString& gatewayAddress)
    : gateway(QLatin1String("http://") + gatewayAddress)
{
    server.setProxy(QNetworkProxy::NoProxy);
    if (!server.listen(QHostAddress::LocalHost))
        throw Failure{GatewayFailed, QStringLiteral("can't record: %1").arg(server.errorString())};
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
        while (QTcpSocket* library = server.nextPendingConnection())
            relay(*library);
    });
}

QString Recorder::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(server.serverPort());
}

void Recorder::relay(QTcpSocket& library)
{
    const auto bytes = std::make_shared<Bytes>();
    recorded.append(bytes);
    auto* there = new QTcpSocket(&library);
    there->setProxy(QNetworkProxy::NoProxy);
    forward(library, *there, bytes, bytes->sent);
    forward(*there, library, bytes, bytes->received);
    QObject::connect(&library, &QTcpSocket::disconnected, &library, &QObject::deleteLater);
    // A gateway that can't be reached any more never gets to disconnect.
    QObject::connect(there, &QTcpSocket::errorOccurred, &library,
                     [&library] { library.disconnectFromHost(); });
    there->connectToHost(gateway.host(), static_cast<quint16>(gateway.port(80)));
}

QList<WebExchange> Recorder::exchanges() const
{
    QList<WebExchange> exchanges;
    for (const auto& bytes : recorded) {
        const int start = bodyStart(bytes->sent);
        if (start < 0 || !bytes->sent.startsWith("POST /cgi-bin/webapp "))
            continue;
        WebExchange exchange{QString::fromUtf8(bytes->sent.mid(start)), 0, QString()};
        takeReply(bytes->received, exchange);
        exchanges.append(exchange);
    }
    return exchanges;
}

} // namespace quorvelctl
