#include "support/FixedServer.h"

#include "support/FixedReplies.h"
#include "support/ServerLoop.h"

#include <arpa/inet.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <netinet/in.h>
#include <new>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvel::bench
{

namespace
{

[[noreturn]] void giveUp(const char* step)
{
    std::perror(step);
    std::exit(1);
}

int listenOnAnyPort(std::uint16_t& port)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof name;
    auto* const where = reinterpret_cast<sockaddr*>(&name);
    if (listener < 0 || ::bind(listener, where, length) != 0 || ::listen(listener, 1024) != 0 ||
        ::getsockname(listener, where, &length) != 0)
        giveUp("listen");
    port = ntohs(name.sin_port);
    return listener;
}

} // namespace

struct FixedServer::Ledger : RequestLedger {
};

FixedServer::FixedServer(const std::vector<QByteArray>& bodies)
{
    void* const shared =
        ::mmap(nullptr, sizeof(Ledger), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        giveUp("mmap");
    ledger = new (shared) Ledger;
    std::vector<FixedPort> served;
    for (const QByteArray& body : bodies) {
        std::uint16_t port = 0;
        const int listener = listenOnAnyPort(port);
        ports.push_back(port);
        served.push_back({listener, answerWith(body), answerWith(recognitionReply)});
    }
    const pid_t parent = ::getpid();
    process = ::fork();
    if (process < 0)
        giveUp("fork");
    if (process == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() == parent)
            serveForEver(served, *ledger);
        ::_exit(1);
    }
    for (const FixedPort& port : served)
        ::close(port.listener);
}

FixedServer::~FixedServer()
{
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    ::munmap(ledger, sizeof(Ledger));
}

QString FixedServer::address(std::size_t index) const
{
    return QStringLiteral("127.0.0.1:%1").arg(ports.at(index));
}

std::uint64_t FixedServer::requests() const
{
    return ledger->requests;
}

QByteArray FixedServer::lastRequest() const
{
    return QByteArray(ledger->last, static_cast<int>(ledger->lastSize.load()));
}

} // namespace quorvel::bench
