#include "support/DeafPort.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::test
{

namespace
{

int openSocket(int flags)
{
    return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | flags, 0);
}

} // namespace

DeafPort::DeafPort()
{
    sockets.push_back(openSocket(0));
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof name;
    EXPECT_EQ(::bind(sockets[0], where(), size), 0);
    EXPECT_EQ(::getsockname(sockets[0], where(), &size), 0);
}

DeafPort::~DeafPort()
{
    for (const int socket : sockets)
        ::close(socket);
}

void DeafPort::fillBacklog()
{
    EXPECT_EQ(::listen(sockets[0], 0), 0);
    for (int i = 0; i < 8; ++i) {
        sockets.push_back(openSocket(SOCK_NONBLOCK));
        const bool begun = ::connect(sockets.back(), where(), sizeof name) == 0;
        EXPECT_TRUE(begun || errno == EINPROGRESS);
    }
}

QString DeafPort::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(ntohs(name.sin_port));
}

sockaddr* DeafPort::where()
{
    return reinterpret_cast<sockaddr*>(&name);
}

} // namespace quorvel::test
