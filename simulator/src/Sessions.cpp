#include "Sessions.h"

#include <algorithm>
#include <random>

namespace quorvel::simulator
{

namespace
{

std::string randomToken()
{
    std::random_device random;
    std::string token;
    for (int word = 0; word < 4; ++word) {
        unsigned int bits = random();
        for (int digit = 0; digit < 8; ++digit, bits >>= 4)
            token += "0123456789abcdef"[bits & 15];
    }
    return token;
}

} // namespace

std::string Sessions::open()
{
    const std::string token = randomToken();
    if (numberLimit > 0 && live.size() >= static_cast<std::size_t>(numberLimit))
        live.erase(live.begin(), live.end() - (numberLimit - 1));
    live.push_back({token, 0, Clock::now()});
    return token;
}

bool Sessions::use(const std::string& token)
{
    const auto session = std::find_if(
        live.begin(), live.end(), [&token](const Session& known) { return known.token == token; });
    if (session == live.end())
        return false;
    if (hasExpired(*session)) {
        live.erase(session);
        return false;
    }
    ++session->requests;
    session->lastUse = Clock::now();
    return true;
}

void Sessions::end(const std::string& token)
{
    live.erase(std::remove_if(live.begin(), live.end(),
                              [&token](const Session& known) { return known.token == token; }),
               live.end());
}

std::vector<std::string> Sessions::tokens() const
{
    std::vector<std::string> result;
    for (const Session& session : live) {
        if (!hasExpired(session))
            result.push_back(session.token);
    }
    return result;
}

bool Sessions::hasExpired(const Session& session) const
{
    return (requestLimit > 0 && session.requests >= requestLimit) ||
           (idleLimit.count() > 0 && Clock::now() - session.lastUse > idleLimit);
}

std::string tokenInCookie(const std::string& header)
{
    const std::string name = "SID=";
    for (std::size_t start = 0; start < header.size();) {
        const auto end = std::min(header.find(';', start), header.size());
        const auto first = header.find_first_not_of(" ", start);
        if (header.compare(first, name.size(), name) == 0) {
            const std::string token = header.substr(first + 4, end - first - 4);
            return token.substr(0, token.find(' '));
        }
        start = end + 1;
    }
    return {};
}

} // namespace quorvel::simulator
