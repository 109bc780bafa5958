#include "Script.h"

#include <algorithm>

namespace quorvel::simulator
{

namespace
{

Script sent(const HttpReply& reply, const std::string& body, long long announcedLength,
            Script::End end)
{
    Script script;
    const std::string head = reply.head(announcedLength);
    script.headSize = head.size();
    script.bytes = head + "\r\n" + body;
    script.end = end;
    return script;
}

Script cut(Script script, const Fault& fault)
{
    const std::size_t half = script.bytes.size() / 2;
    const std::size_t size = fault.argument ? static_cast<std::size_t>(*fault.argument) : half;
    script.bytes.resize(std::min(script.bytes.size(), size));
    script.headSize = std::min(script.headSize, script.bytes.size());
    script.end = Script::End::Reset;
    return script;
}

// Bytes that are no reply, or none at all.
Script ending(Script::End end, const std::string& bytes = {})
{
    Script script;
    script.bytes = bytes;
    script.end = end;
    return script;
}

HttpReply page(const std::string& contentType, const std::string& body)
{
    HttpReply reply;
    reply.contentType = contentType;
    reply.body = body;
    return reply;
}

std::string response(const std::string& dialect, const std::string& content)
{
    return "<response version=\"" + dialect + "\">" + content +
           "<webapp><error>0</error></webapp></response>\n";
}

std::string repeated(const std::string& text, int times)
{
    std::string result;
    result.reserve(text.size() * static_cast<std::size_t>(std::max(times, 0)));
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

// The response itself is the first level.
std::string nested(const std::string& dialect, int levels)
{
    return response(dialect, repeated("<a>", levels - 1) + repeated("</a>", levels - 1));
}

std::string noise(int size)
{
    std::string bytes;
    unsigned int state = 2463534242U;
    for (int i = 0; i < size; ++i) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        bytes += static_cast<char>(state);
    }
    return bytes;
}

// The reply that another one is replaced by, or nothing if the fault lets its content stand.
std::optional<HttpReply> replacement(const HttpReply& reply, const Fault& fault,
                                     const std::string& dialect)
{
    const int argument = argumentOf(fault);
    switch (fault.kind) {
    case FaultKind::Html:
        return page("text/html", "<!DOCTYPE html><html><head><title>Gateway</title></head>"
                                 "<body><p>Please log in.<br></body></html>\n");
    case FaultKind::Empty:
        return page(reply.contentType, {});
    case FaultKind::InvalidUtf8:
        return page("text/xml",
                    response(dialect, "<webui-0><note>\xC3\x28 \xFF\xFE</note></webui-0>"));
    case FaultKind::Oversized:
        return page("text/xml", response(dialect, "<webui-0><note>" + std::string(argument, 'x') +
                                                      "</note></webui-0>"));
    case FaultKind::TooDeep:
        return page("text/xml", nested(dialect, argument));
    case FaultKind::HttpStatus: {
        HttpReply other = reply;
        other.status = argument;
        if (argument >= 301 && argument <= 308)
            other.headers.emplace_back("Location", "/");
        return other;
    }
    default:
        return std::nullopt;
    }
}

} // namespace

Script scriptOf(const HttpRequest& request, const HttpReply& reply)
{
    const bool headOnly = request.method == "HEAD";
    return sent(reply, headOnly ? std::string() : reply.body,
                static_cast<long long>(reply.body.size()),
                request.keepsAlive() ? Script::End::KeepOpen : Script::End::Close);
}

Script spoiltScript(const HttpRequest& request, const HttpReply& reply, const Fault& fault,
                    const std::string& dialect)
{
    if (const auto other = replacement(reply, fault, dialect))
        return scriptOf(request, *other);
    const auto size = static_cast<long long>(reply.body.size());
    Script script = scriptOf(request, reply);
    switch (fault.kind) {
    case FaultKind::Close:
        return ending(Script::End::Close);
    case FaultKind::Hang:
        return ending(Script::End::Hold);
    case FaultKind::Garbage:
        return ending(Script::End::Close, noise(argumentOf(fault)));
    case FaultKind::Truncate:
        return sent(reply, reply.body.substr(0, reply.body.size() / 2), size, Script::End::Close);
    case FaultKind::WrongLength:
        return sent(reply, reply.body, size + argumentOf(fault), Script::End::Close);
    case FaultKind::Reset:
        return cut(script, fault);
    case FaultKind::RadioRestart:
        script = ending(Script::End::Close);
        script.down = std::chrono::milliseconds(argumentOf(fault));
        return script;
    case FaultKind::Delay:
        script.delay = std::chrono::milliseconds(argumentOf(fault));
        return script;
    case FaultKind::Drip:
        script.pace = std::chrono::milliseconds(argumentOf(fault));
        return script;
    default:
        return script;
    }
}

} // namespace quorvel::simulator
