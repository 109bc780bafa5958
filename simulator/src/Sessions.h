#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace quorvel::simulator
{

/// The sessions that the gateway honours, the one that logged in first at the front.
class Sessions
{
public:
    /// What `GatewaySimulator` says of them; 0 means no limit.
    int requestLimit = 0;
    std::chrono::milliseconds idleLimit{0};
    int numberLimit = 0;

    /// Opens one, under a token that nobody can guess.
    std::string open();
    /// Counts a request of the session. False if there is no such session (any more).
    bool use(const std::string& token);
    void end(const std::string& token);
    void endAll() { live.clear(); }
    std::vector<std::string> tokens() const;
    std::size_t number() const { return live.size(); }

private:
    using Clock = std::chrono::steady_clock;

    struct Session {
        std::string token;
        int requests;
        Clock::time_point lastUse;
    };

    bool hasExpired(const Session& session) const;

    std::vector<Session> live;
};

/// The token in a `Cookie` header, or empty.
std::string tokenInCookie(const std::string& header);

} // namespace quorvel::simulator
