#pragma once

#include "Script.h"
#include "Socket.h"

#include <chrono>
#include <functional>
#include <optional>

namespace quorvel::simulator
{

/// One client of the gateway: reads requests and plays their scripts. Lives in the server's
/// thread.
class Connection
{
public:
    using Clock = std::chrono::steady_clock;
    using Answer = std::function<Script(const HttpRequest& request)>;

    explicit Connection(Socket client) : socket(std::move(client)) {}

    int descriptor() const { return socket.descriptor(); }
    /// What to wait for, as in `pollfd::events`.
    short events() const;
    /// When to go on without an event, if ever.
    std::optional<Clock::time_point> due() const;
    bool isOver() const { return !socket.isOpen(); }

    /// Goes on as far as it can without waiting; `ready` as in `pollfd::revents`.
    void proceed(short ready, const Answer& answer);
    /// The gateway goes down: ends the connection.
    void drop();

private:
    /// Whether the next byte has a time of its own.
    bool isTimed() const;

    enum class Phase { Reading, Sending, Holding };

    void receive();
    bool takeRequest(const Answer& answer);
    void play(const Script& next);
    /// False if it has to wait.
    bool send();
    void finish();

    Socket socket;
    Phase phase = Phase::Reading;
    std::string input;
    bool clientDone = false;
    bool continued = false;
    Script script;
    std::size_t sent = 0;
    Clock::time_point nextByte;
};

} // namespace quorvel::simulator
