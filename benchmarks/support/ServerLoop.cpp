#include "support/ServerLoop.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::bench
{

namespace
{

const QByteArray loginAnswer = "HTTP/1.1 200 OK\r\nSet-Cookie: SID=1; path=/\r\n"
                               "Content-Type: text/html\r\nContent-Length: 0\r\n\r\n";

struct Connection {
    const FixedPort* port;
    QByteArray received;
    QByteArray answer;
    int sent = 0; ///< how much of the answer is on its way
};

/// The length of the whole request that `bytes` begin with, 0 as long as it isn't complete.
int requestLength(const QByteArray& bytes)
{
    const int headEnd = bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return 0;
    const QByteArray head = bytes.left(headEnd).toLower();
    const int field = head.indexOf("content-length:");
    const int body = field < 0 ? 0 : std::atoi(head.constData() + field + 15);
    return bytes.size() < headEnd + 4 + body ? 0 : headEnd + 4 + body;
}

class Loop
{
public:
    Loop(const std::vector<FixedPort>& ports, RequestLedger& ledger) : ledger(ledger)
    {
        for (const FixedPort& port : ports) {
            listeners[port.listener] = &port;
            watch(port.listener, EPOLLIN, EPOLL_CTL_ADD);
        }
    }

    [[noreturn]] void run()
    {
        std::array<epoll_event, 256> events;
        for (;;) {
            const int count =
                ::epoll_wait(poll, events.data(), static_cast<int>(events.size()), -1);
            for (int i = 0; i < count; ++i)
                handle(events[static_cast<std::size_t>(i)].data.fd);
        }
    }

private:
    void watch(int socket, std::uint32_t what, int operation) const
    {
        epoll_event event{};
        event.events = what;
        event.data.fd = socket;
        ::epoll_ctl(poll, operation, socket, &event);
    }

    void handle(int socket)
    {
        const auto listener = listeners.find(socket);
        if (listener != listeners.end())
            accept(*listener->second);
        else if (const auto found = connections.find(socket);
                 found != connections.end() && !serve(socket, found->second)) {
            ::close(socket);
            connections.erase(found);
        }
    }

    void accept(const FixedPort& port)
    {
        const int on = 1;
        for (;;) {
            const int socket = ::accept4(port.listener, nullptr, nullptr, SOCK_NONBLOCK);
            if (socket < 0)
                return;
            ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
            connections[socket] = {&port, {}, {}, 0};
            watch(socket, EPOLLIN, EPOLL_CTL_ADD);
        }
    }

    /// False when the peer is gone. A peer has one request under way at a time.
    bool serve(int socket, Connection& connection)
    {
        char buffer[65536];
        const ssize_t count = ::recv(socket, buffer, sizeof buffer, 0);
        if (count == 0 || (count < 0 && errno != EAGAIN))
            return false;
        if (count > 0)
            connection.received.append(buffer, static_cast<int>(count));
        if (const int length = requestLength(connection.received)) {
            answer(connection, connection.received.left(length));
            connection.received.remove(0, length);
        }
        return flush(socket, connection);
    }

    void answer(Connection& connection, const QByteArray& request)
    {
        const bool isLogin = request.startsWith("POST /cgi-bin/login");
        if (!isLogin) {
            const std::size_t size =
                std::min<std::size_t>(sizeof ledger.last, static_cast<std::size_t>(request.size()));
            std::memcpy(ledger.last, request.constData(), size);
            ledger.lastSize = size;
        }
        ++ledger.requests;
        connection.answer = isLogin                         ? loginAnswer
                            : request.contains("fwversion") ? connection.port->firmware
                                                            : connection.port->managers;
        connection.sent = 0;
    }

    bool flush(int socket, Connection& connection)
    {
        const int left = connection.answer.size() - connection.sent;
        if (left == 0)
            return true;
        const ssize_t count = ::send(socket, connection.answer.constData() + connection.sent,
                                     static_cast<std::size_t>(left), MSG_NOSIGNAL);
        if (count < 0 && errno != EAGAIN)
            return false;
        connection.sent += count > 0 ? static_cast<int>(count) : 0;
        const bool isWhole = connection.sent == connection.answer.size();
        watch(socket, isWhole ? EPOLLIN : EPOLLIN | EPOLLOUT, EPOLL_CTL_MOD);
        return true;
    }

    RequestLedger& ledger;
    const int poll = ::epoll_create1(EPOLL_CLOEXEC);
    std::map<int, const FixedPort*> listeners;
    std::map<int, Connection> connections;
};

} // namespace

QByteArray answerWith(const QByteArray& body)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nContent-Length: " +
           QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

void serveForEver(const std::vector<FixedPort>& ports, RequestLedger& ledger)
{
    Loop(ports, ledger).run();
}

} // namespace quorvel::bench
