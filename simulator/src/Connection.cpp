#include "Connection.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>

namespace quorvel::simulator
{

namespace
{

// More than any request that is served.
constexpr std::size_t inputLimit = 8 * 1024 * 1024;

Script refusal(int status)
{
    HttpReply reply;
    reply.status = status;
    reply.contentType = "text/plain";
    HttpRequest request;
    request.version = "HTTP/1.0";
    return scriptOf(request, reply);
}

} // namespace

short Connection::events() const
{
    const bool reads = !clientDone && input.size() < inputLimit;
    const bool sends = phase == Phase::Sending && !isTimed();
    return static_cast<short>((reads ? POLLIN : 0) | (sends ? POLLOUT : 0));
}

std::optional<Connection::Clock::time_point> Connection::due() const
{
    if (phase == Phase::Sending && isTimed())
        return nextByte;
    return std::nullopt;
}

bool Connection::isTimed() const
{
    return script.pace.count() > 0 || (sent == 0 && script.delay.count() > 0);
}

void Connection::proceed(short ready, const Answer& answer)
{
    if (ready & (POLLIN | POLLHUP | POLLERR))
        receive();
    while (!isOver()) {
        if (phase == Phase::Sending ? !send() : !takeRequest(answer))
            break;
    }
    // Whoever closes while nothing is under way has gone.
    if (clientDone && phase != Phase::Sending)
        socket.close();
}

void Connection::drop()
{
    if (phase == Phase::Sending)
        socket.reset();
    else
        socket.close();
}

void Connection::receive()
{
    char bytes[16 * 1024];
    while (input.size() < inputLimit) {
        const auto size = recv(descriptor(), bytes, sizeof bytes, 0);
        if (size > 0) {
            input.append(bytes, static_cast<std::size_t>(size));
            continue;
        }
        const bool failed = size < 0 && errno != EAGAIN && errno != EINTR;
        clientDone = size == 0 || failed;
        if (failed)
            socket.close();
        return;
    }
}

bool Connection::takeRequest(const Answer& answer)
{
    if (phase == Phase::Holding || input.empty())
        return false;
    HttpRequest request;
    int status = 0;
    switch (HttpReader().take(input, request, status)) {
    case HttpReader::Outcome::Complete:
        continued = false;
        play(answer(request));
        return true;
    case HttpReader::Outcome::Bad:
        input.clear();
        play(refusal(status));
        return true;
    case HttpReader::Outcome::Incomplete:
        break;
    }
    if (continued || !HttpReader::wantsContinue(input))
        return false;
    continued = true;
    Script interim;
    interim.bytes = "HTTP/1.1 100 Continue\r\n\r\n";
    play(interim);
    return true;
}

void Connection::play(const Script& next)
{
    script = next;
    sent = 0;
    phase = Phase::Sending;
    nextByte = Clock::now() + script.delay;
}

bool Connection::send()
{
    while (sent < script.bytes.size()) {
        if (isTimed() && Clock::now() < nextByte)
            return false;
        const std::size_t size = script.pace.count() > 0 ? 1 : script.bytes.size() - sent;
        const auto gone = ::send(descriptor(), script.bytes.data() + sent, size, MSG_NOSIGNAL);
        if (gone < 0 && (errno == EAGAIN || errno == EINTR))
            return false;
        if (gone < 0) {
            socket.close();
            return false;
        }
        sent += static_cast<std::size_t>(gone);
        nextByte += script.pace;
    }
    finish();
    return true;
}

void Connection::finish()
{
    phase = Phase::Reading;
    if (script.end == Script::End::Hold)
        phase = Phase::Holding;
    else if (script.end == Script::End::Reset)
        socket.reset();
    else if (script.end == Script::End::Close || script.down)
        socket.close();
}

} // namespace quorvel::simulator
