#pragma once

#include <QString>
#include <netinet/in.h>
#include <vector>

namespace quorvel::test
{

/// A port of this machine that is taken and that nobody serves: connections to it are refused.
class DeafPort
{
public:
    DeafPort();
    ~DeafPort();

    /// Listens, and fills the queue of connections that wait to be accepted: further ones hang.
    void fillBacklog();

    /// "127.0.0.1:" and the port.
    QString address() const;

private:
    Q_DISABLE_COPY(DeafPort)

    sockaddr* where();

    std::vector<int> sockets;
    sockaddr_in name{};
};

} // namespace quorvel::test
