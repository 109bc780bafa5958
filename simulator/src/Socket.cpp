#include "Socket.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::simulator
{

namespace
{

Socket boundTo(const sockaddr_in& where)
{
    Socket socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const int yes = 1;
    setsockopt(socket.descriptor(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    if (bind(socket.descriptor(), reinterpret_cast<const sockaddr*>(&where), sizeof where) != 0)
        return Socket();
    return socket;
}

sockaddr_in place(const std::string& address, int port)
{
    sockaddr_in where{};
    where.sin_family = AF_INET;
    where.sin_port = htons(static_cast<uint16_t>(port));
    if (inet_pton(AF_INET, address.c_str(), &where.sin_addr) != 1)
        where.sin_family = AF_UNSPEC;
    return where;
}

} // namespace

void Socket::close()
{
    if (isOpen())
        ::close(std::exchange(fd, -1));
}

void Socket::reset()
{
    const linger now{1, 0};
    setsockopt(fd, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    close();
}

bool Port::reserve(const std::string& address, int wanted, std::string& error)
{
    const sockaddr_in where = place(address, wanted);
    if (where.sin_family != AF_INET || wanted < 0 || wanted > 65535) {
        error = "'" + address + "' and " + std::to_string(wanted) + " are no address and port";
        return false;
    }
    holder = boundTo(where);
    if (!holder.isOpen()) {
        error = "cannot listen on " + address + ":" + std::to_string(wanted) + ": " +
                std::strerror(errno);
        return false;
    }
    sockaddr_in got{};
    socklen_t size = sizeof got;
    getsockname(holder.descriptor(), reinterpret_cast<sockaddr*>(&got), &size);
    host = address;
    port = ntohs(got.sin_port);
    return true;
}

bool Port::open(std::string& error)
{
    Socket socket = boundTo(place(host, port));
    if (!socket.isOpen() || listen(socket.descriptor(), SOMAXCONN) != 0) {
        error =
            "cannot listen on " + host + ":" + std::to_string(port) + ": " + std::strerror(errno);
        return false;
    }
    listener = std::move(socket);
    return true;
}

Socket Port::accept() const
{
    Socket connection(
        accept4(listener.descriptor(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    // A drip is one of single bytes only if the kernel doesn't collect them.
    const int yes = 1;
    if (connection.isOpen())
        setsockopt(connection.descriptor(), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    return connection;
}

Wake::Wake()
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_NONBLOCK | O_CLOEXEC) == 0) {
        reader = Socket(ends[0]);
        writer = Socket(ends[1]);
    }
}

void Wake::ring() const
{
    // A full pipe wakes as well as one more byte would.
    [[maybe_unused]] const auto written = write(writer.descriptor(), "!", 1);
}

void Wake::drain() const
{
    char bytes[64];
    while (read(reader.descriptor(), bytes, sizeof bytes) > 0) {
    }
}

} // namespace quorvel::simulator
