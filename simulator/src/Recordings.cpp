#include "Recordings.h"

namespace quorvel::simulator
{

namespace
{

// Each text with its length, so that no two requests look alike.
std::string spelled(const Request& request)
{
    std::string text;
    const auto append = [&text](const std::string& part) {
        text += std::to_string(part.size()) + ':' + part;
    };
    append(request.version);
    for (const Command& command : request.commands) {
        for (const std::string& part : {command.verb, command.instance, command.key, command.value})
            append(part);
    }
    return text;
}

} // namespace

Recordings::Recordings(const std::vector<RecordedReply>& recorded)
{
    for (const RecordedReply& reply : recorded) {
        Request request;
        if (readRequest(reply.request, request) == ErrorCode::None)
            replies[spelled(request)] = reply;
    }
}

const RecordedReply* Recordings::find(const Request& request) const
{
    const auto found = replies.find(spelled(request));
    return found == replies.end() ? nullptr : &found->second;
}

} // namespace quorvel::simulator
