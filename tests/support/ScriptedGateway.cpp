#include "support/ScriptedGateway.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <chrono>
#include <netinet/in.h>
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

/// Reads one request; incomplete if the peer goes away.
ReceivedRequest readRequest(int connection)
{
    QByteArray bytes;
    int headEnd = -1;
    ReceivedRequest request;
    for (;;) {
        if (headEnd < 0 && (headEnd = bytes.indexOf("\r\n\r\n")) >= 0)
            request = parseHead(bytes.left(headEnd));
        const int bodyLength = request.header("Content-Length").toInt();
        if (headEnd >= 0 && bytes.size() >= headEnd + 4 + bodyLength)
            break;
        char buffer[65536];
        const ssize_t count = ::recv(connection, buffer, sizeof buffer, 0);
        if (count <= 0)
            break;
        bytes.append(buffer, static_cast<int>(count));
    }
    request.raw = bytes;
    if (headEnd >= 0)
        request.body = bytes.mid(headEnd + 4);
    return request;
}

void sendAll(int connection, const QByteArray& bytes)
{
    for (int sent = 0; sent < bytes.size();) {
        const ssize_t count = ::send(connection, bytes.constData() + sent,
                                     static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            return;
        sent += static_cast<int>(count);
    }
}

void resetOnClose(int connection)
{
    const linger now{1, 0};
    ::setsockopt(connection, SOL_SOCKET, SO_LINGER, &now, sizeof now);
}

/// Closes so that bytes on their way still arrive.
void closeGently(int connection)
{
    ::shutdown(connection, SHUT_WR);
    pollfd peer{connection, POLLIN, 0};
    char rest[4096];
    while (::poll(&peer, 1, 2000) > 0 && ::recv(connection, rest, sizeof rest, 0) > 0) {
    }
    ::close(connection);
}

} // namespace

QByteArray httpReply(const QByteArray& body, const QByteArray& extraHeaders)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\n" + extraHeaders +
           "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray ReceivedRequest::header(const QByteArray& name) const
{
    QByteArray joined;
    for (const auto& [key, value] : headers) {
        if (qstricmp(key.constData(), name.constData()) == 0)
            joined += (joined.isEmpty() ? QByteArray() : QByteArray(" | ")) + value;
    }
    return joined;
}

ScriptedGateway::ScriptedGateway()
{
    listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in where{};
    where.sin_family = AF_INET;
    where.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof where;
    const bool listening =
        ::bind(listener, reinterpret_cast<sockaddr*>(&where), sizeof where) == 0 &&
        ::listen(listener, 64) == 0 &&
        ::getsockname(listener, reinterpret_cast<sockaddr*>(&where), &size) == 0 &&
        ::pipe(wakeUp) == 0;
    if (!listening)
        ADD_FAILURE() << "The scripted gateway can't listen";
    port = ntohs(where.sin_port);
    server = std::thread([this] { serve(); });
}

ScriptedGateway::~ScriptedGateway()
{
    release();
    const char stop = 0;
    if (::write(wakeUp[1], &stop, 1) != 1)
        ADD_FAILURE() << "The scripted gateway can't be stopped";
    server.join();
    for (std::thread& player : players)
        player.join();
    ::close(listener);
    ::close(wakeUp[0]);
    ::close(wakeUp[1]);
    EXPECT_EQ(script.size(), 0u) << "steps of the gateway's script were not played";
    EXPECT_TRUE(surprise.isEmpty()) << surprise.toStdString();
}

QString ScriptedGateway::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(port);
}

ScriptedGateway& ScriptedGateway::append(Step step)
{
    std::lock_guard<std::mutex> lock(mutex);
    script.push_back(std::move(step));
    return *this;
}

ScriptedGateway& ScriptedGateway::logIn(const QByteArray& session)
{
    return append({true, "/cgi-bin/login",
                   httpReply("<html/>", "Set-Cookie: " + session + "; path=/\r\n"), Ending::Close});
}

ScriptedGateway& ScriptedGateway::refuseLogin()
{
    return append({true, "/cgi-bin/login", httpReply("<html/>"), Ending::Close});
}

ScriptedGateway& ScriptedGateway::reply(const QString& body)
{
    return append({true, "/cgi-bin/webapp", httpReply(body.toUtf8()), Ending::Close});
}

ScriptedGateway& ScriptedGateway::sendRaw(const QByteArray& bytes)
{
    return append({true, {}, bytes, Ending::Close});
}

ScriptedGateway& ScriptedGateway::sendAndReset(const QByteArray& bytes)
{
    return append({true, {}, bytes, Ending::Reset});
}

ScriptedGateway& ScriptedGateway::sendAndHold(const QByteArray& bytes)
{
    return append({true, {}, bytes, Ending::Hold});
}

ScriptedGateway& ScriptedGateway::closeOnAccept()
{
    return append({false, {}, {}, Ending::Close});
}

void ScriptedGateway::release()
{
    std::lock_guard<std::mutex> lock(mutex);
    released = true;
    changed.notify_all();
}

bool ScriptedGateway::waitForRequests(int count) const
{
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_for(lock, std::chrono::seconds(10),
                            [&] { return received.size() >= count; });
}

QList<ReceivedRequest> ScriptedGateway::requests() const
{
    std::lock_guard<std::mutex> lock(mutex);
    return received;
}

ReceivedRequest ScriptedGateway::request(int index) const
{
    std::lock_guard<std::mutex> lock(mutex);
    EXPECT_LT(index, received.size()) << "no such request was received";
    return received.value(index);
}

int ScriptedGateway::connections() const
{
    std::lock_guard<std::mutex> lock(mutex);
    return accepted;
}

void ScriptedGateway::serve()
{
    for (;;) {
        pollfd sources[] = {{listener, POLLIN, 0}, {wakeUp[0], POLLIN, 0}};
        if (::poll(sources, 2, -1) < 0 || (sources[1].revents & POLLIN))
            return;
        const int connection = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            continue;
        std::lock_guard<std::mutex> lock(mutex);
        ++accepted;
        players.emplace_back([this, connection] { play(connection); });
    }
}

void ScriptedGateway::play(int connection)
{
    Step step;
    {
        std::lock_guard<std::mutex> lock(mutex);
        if (script.empty()) {
            surprise = "a connection came that the gateway's script doesn't have";
            ::close(connection);
            return;
        }
        step = script.front();
        script.pop_front();
    }
    if (step.reads) {
        const ReceivedRequest request = readRequest(connection);
        std::lock_guard<std::mutex> lock(mutex);
        received.append(request);
        if (!step.expectedPath.isEmpty() && request.path != step.expectedPath)
            surprise = "a request to " + request.path + " came instead of " + step.expectedPath;
        changed.notify_all();
    }
    sendAll(connection, step.answer);
    if (step.ending == Ending::Hold)
        hold(connection);
    if (step.ending == Ending::Close) {
        closeGently(connection);
        return;
    }
    resetOnClose(connection);
    ::close(connection);
}

void ScriptedGateway::hold(int)
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return released; });
}

} // namespace quorvel::test
