#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <sys/types.h>
#include <vector>

namespace quorvel::bench
{

/// A server that answers every question for the firmware on a port with the same body, as fast as
/// one thread and epoll allow. It is a process of its own, so that what the measured process spends
/// is its own. On every port a login is answered with the session "SID=1", and any other question
/// with all that recognition looks for.
class FixedServer
{
public:
    /// One port of this machine per body. To be made before anything starts a thread.
    explicit FixedServer(const std::vector<QByteArray>& bodies);
    ~FixedServer();

    /// "127.0.0.1:" and the port that answers with the body of this index.
    QString address(std::size_t index) const;

    /// How many requests were answered so far, logins included, on all ports.
    std::uint64_t requests() const;
    /// The last request, head and body, that wasn't a login; its first 4 kB.
    QByteArray lastRequest() const;

private:
    FixedServer(const FixedServer&) = delete;
    FixedServer& operator=(const FixedServer&) = delete;

    struct Ledger;

    Ledger* ledger; // shared with the server's process
    std::vector<std::uint16_t> ports;
    pid_t process = -1;
};

} // namespace quorvel::bench
