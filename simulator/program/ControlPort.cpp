#include "ControlPort.h"

#include <cerrno>
#include <sys/socket.h>

namespace quorvel::simulator
{

namespace
{

constexpr std::size_t lineLimit = 64 * 1024;

// Clients are people and scripts on the same machine; one that doesn't read its answers holds up
// nobody but the other control clients, and that only until the kernel's buffer is full.
bool sendAll(const Socket& socket, const std::string& text)
{
    for (std::size_t sent = 0; sent < text.size();) {
        const auto size =
            send(socket.descriptor(), text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
        if (size >= 0) {
            sent += static_cast<std::size_t>(size);
            continue;
        }
        pollfd writable{socket.descriptor(), POLLOUT, 0};
        constexpr int patience = 5000;
        if (errno != EINTR && (errno != EAGAIN || poll(&writable, 1, patience) <= 0))
            return false;
    }
    return true;
}

} // namespace

bool ControlPort::listen(int wanted, std::string& error)
{
    return port.reserve("127.0.0.1", wanted, error) && port.open(error);
}

void ControlPort::poll(std::vector<pollfd>& polled) const
{
    if (!port.isOpen())
        return;
    polled.push_back({port.descriptor(), POLLIN, 0});
    for (const Client& client : clients)
        polled.push_back({client.socket.descriptor(), POLLIN, 0});
}

bool ControlPort::serve()
{
    if (!port.isOpen())
        return true;
    for (Socket socket = port.accept(); socket.isOpen(); socket = port.accept())
        clients.push_back({std::move(socket), {}});
    bool goesOn = true;
    for (Client& client : clients)
        goesOn = serve(client) && goesOn;
    clients.remove_if([](const Client& client) { return !client.socket.isOpen(); });
    return goesOn;
}

bool ControlPort::serve(Client& client)
{
    char bytes[4096];
    auto size = recv(client.socket.descriptor(), bytes, sizeof bytes, 0);
    for (; size > 0; size = recv(client.socket.descriptor(), bytes, sizeof bytes, 0))
        client.input.append(bytes, static_cast<std::size_t>(size));
    const bool waits = size < 0 && (errno == EAGAIN || errno == EINTR);
    bool quits = false;
    for (auto end = client.input.find('\n'); end != std::string::npos && !quits;
         end = client.input.find('\n')) {
        std::string line = client.input.substr(0, end);
        client.input.erase(0, end + 1);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!sendAll(client.socket, runControlLine(gateway, line, quits)))
            client.input.assign(lineLimit + 1, ' ');
    }
    if (!waits || client.input.size() > lineLimit)
        client.socket.close();
    return !quits;
}

} // namespace quorvel::simulator
