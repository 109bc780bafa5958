#include "support/GatewayConnection.h"

#include "support/ScriptedGateway.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::test
{

namespace
{

ReceivedRequest parseHead(const QByteArray& head)
{
    ReceivedRequest request;
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> first = lines.takeFirst().split(' ');
    request.method = first.value(0);
    request.path = first.value(1);
    for (const QByteArray& line : qAsConst(lines)) {
        const int colon = line.indexOf(':');
        if (colon > 0)
            request.headers.emplace_back(line.left(colon), line.mid(colon + 1).trimmed());
    }
    return request;
}

} // namespace

QByteArray ReceivedRequest::header(const QByteArray& name) const
{
    QByteArray joined;
    for (const auto& [key, value] : headers) {
        if (qstricmp(key.constData(), name.constData()) == 0)
            joined += (joined.isEmpty() ? QByteArray() : QByteArray(" | ")) + value;
    }
    return joined;
}

GatewayConnection::GatewayConnection(const ScriptedGateway& gateway, int socket)
    : gateway(gateway), socket(socket)
{
}

GatewayConnection::~GatewayConnection()
{
    reset();
}

ReceivedRequest GatewayConnection::readRequest()
{
    QByteArray bytes;
    int headEnd = -1;
    ReceivedRequest request;
    for (;;) {
        if (headEnd < 0 && (headEnd = bytes.indexOf("\r\n\r\n")) >= 0)
            request = parseHead(bytes.left(headEnd));
        const int bodyLength = request.header("Content-Length").toInt();
        request.isWhole = headEnd >= 0 && bytes.size() >= headEnd + 4 + bodyLength;
        if (request.isWhole)
            break;
        char buffer[65536];
        const ssize_t count = ::recv(socket, buffer, sizeof buffer, 0);
        if (count <= 0)
            break;
        bytes.append(buffer, static_cast<int>(count));
    }
    request.raw = bytes;
    if (headEnd >= 0)
        request.body = bytes.mid(headEnd + 4);
    return request;
}

bool GatewayConnection::send(const QByteArray& bytes)
{
    for (int sent = 0; sent < bytes.size();) {
        const ssize_t count = ::send(socket, bytes.constData() + sent,
                                     static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        sent += static_cast<int>(count);
    }
    return true;
}

bool GatewayConnection::pause(int milliseconds) const
{
    return !gateway.releasedWithin(std::chrono::milliseconds(milliseconds));
}

void GatewayConnection::waitForPeer() const
{
    pollfd peer{socket, POLLRDHUP, 0};
    while (::poll(&peer, 1, 0) == 0 && pause(2)) {
    }
}

void GatewayConnection::waitForRelease() const
{
    while (pause(1000)) {
    }
}

void GatewayConnection::reset()
{
    if (socket < 0)
        return;
    const linger now{1, 0};
    ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    ::close(socket);
    socket = -1;
}

void GatewayConnection::closeGently()
{
    if (socket < 0)
        return;
    ::shutdown(socket, SHUT_WR);
    pollfd peer{socket, POLLIN, 0};
    char rest[4096];
    while (::poll(&peer, 1, 2000) > 0 && ::recv(socket, rest, sizeof rest, 0) > 0) {
    }
    ::close(socket);
    socket = -1;
}

} // namespace quorvel::test
