#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quorvel::simulator
{

struct HttpRequest {
    std::string method;
    std::string path;
    std::string version;
    std::vector<std::pair<std::string, std::string>> headers;
    /// Request line and headers as they came.
    std::string head;
    std::string body;

    /// The first header of that name, whatever its case; empty if there is none.
    std::string header(const std::string& name) const;
    bool keepsAlive() const;
};

struct HttpReply {
    int status = 200;
    std::string contentType = "text/xml";
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    std::string head(long long announcedLength) const;
};

/// Takes one request from the bytes that have arrived.
class HttpReader
{
public:
    enum class Outcome {
        Incomplete,
        Complete,
        /// No sense can be made of what follows; `status` is what to answer before closing.
        Bad
    };

    /// Removes a complete request from the front of `bytes`.
    Outcome take(std::string& bytes, HttpRequest& request, int& status) const;
    /// Whether the client waits for an interim reply before it sends its body.
    static bool wantsContinue(const std::string& bytes);
};

} // namespace quorvel::simulator
