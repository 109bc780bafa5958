#pragma once

#include "WebApp.h"

namespace quorvel::simulator
{

/// The replies that a scenario has word for word, found by what they answer.
class Recordings
{
public:
    explicit Recordings(const std::vector<RecordedReply>& replies);

    /// Null if the request has none. Of several replies the last one counts.
    const RecordedReply* find(const Request& request) const;

private:
    std::map<std::string, RecordedReply> replies;
};

} // namespace quorvel::simulator
