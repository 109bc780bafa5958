#include "Http.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace quorvel::simulator
{

namespace
{

constexpr std::size_t headLimit = 64 * 1024;
constexpr std::size_t bodyLimit = 4 * 1024 * 1024;

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Where the body starts, or npos.
std::size_t headEnd(const std::string& bytes)
{
    const auto blankLine = bytes.find("\r\n\r\n");
    return blankLine == std::string::npos ? blankLine : blankLine + 4;
}

bool readRequestLine(const std::string& line, HttpRequest& request)
{
    const auto first = line.find(' ');
    const auto last = line.rfind(' ');
    if (first == std::string::npos || first == 0 || last <= first + 1)
        return false;
    request.method = line.substr(0, first);
    request.path = line.substr(first + 1, last - first - 1);
    request.version = line.substr(last + 1);
    return request.version == "HTTP/1.1" || request.version == "HTTP/1.0";
}

bool readHead(const std::string& head, HttpRequest& request)
{
    request = {};
    request.head = head.substr(0, head.size() - 2);
    std::size_t start = head.find("\r\n");
    if (!readRequestLine(head.substr(0, start), request))
        return false;
    for (start += 2; start + 2 < head.size();) {
        const auto end = head.find("\r\n", start);
        const std::string line = head.substr(start, end - start);
        const auto colon = line.find(':');
        if (colon == std::string::npos || colon == 0)
            return false;
        request.headers.emplace_back(line.substr(0, colon), trimmed(line.substr(colon + 1)));
        start = end + 2;
    }
    return true;
}

// The status to refuse the request with because of its body, or 0.
int bodySize(const HttpRequest& request, std::size_t& size)
{
    const std::string length = request.header("Content-Length");
    size = 0;
    if (!request.header("Transfer-Encoding").empty())
        return 501;
    if (length.empty())
        return request.method == "POST" ? 411 : 0;
    if (length.find_first_not_of("0123456789") != std::string::npos)
        return 400;
    if (length.size() > 9)
        return 413;
    size = std::stoul(length);
    return size > bodyLimit ? 413 : 0;
}

std::string reason(int status)
{
    static const std::map<int, std::string> reasons{
        {200, "OK"},
        {302, "Found"},
        {400, "Bad Request"},
        {404, "Not Found"},
        {405, "Method Not Allowed"},
        {411, "Length Required"},
        {413, "Payload Too Large"},
        {431, "Request Header Fields Too Large"},
        {500, "Internal Server Error"},
        {501, "Not Implemented"},
        {503, "Service Unavailable"},
    };
    const auto known = reasons.find(status);
    return known == reasons.end() ? "Status" : known->second;
}

} // namespace

std::string HttpRequest::header(const std::string& name) const
{
    const std::string wanted = lower(name);
    const auto found = std::find_if(headers.begin(), headers.end(), [&wanted](const auto& header) {
        return lower(header.first) == wanted;
    });
    return found == headers.end() ? std::string() : found->second;
}

bool HttpRequest::keepsAlive() const
{
    const std::string wish = lower(header("Connection"));
    return version == "HTTP/1.1" ? wish != "close" : wish == "keep-alive";
}

std::string HttpReply::head(long long announcedLength) const
{
    std::string text = "HTTP/1.1 " + std::to_string(status) + " " + reason(status) + "\r\n";
    for (const auto& [name, value] : headers)
        text += name + ": " + value + "\r\n";
    return text + "Content-Type: " + contentType +
           "\r\nContent-Length: " + std::to_string(announcedLength) + "\r\n";
}

HttpReader::Outcome HttpReader::take(std::string& bytes, HttpRequest& request, int& status) const
{
    const std::size_t bodyStart = headEnd(bytes);
    if (bodyStart == std::string::npos) {
        status = 431;
        return bytes.size() > headLimit ? Outcome::Bad : Outcome::Incomplete;
    }
    status = 400;
    if (!readHead(bytes.substr(0, bodyStart), request))
        return Outcome::Bad;
    std::size_t size = 0;
    status = bodySize(request, size);
    if (status != 0)
        return Outcome::Bad;
    if (bytes.size() - bodyStart < size)
        return Outcome::Incomplete;
    request.body = bytes.substr(bodyStart, size);
    bytes.erase(0, bodyStart + size);
    return Outcome::Complete;
}

bool HttpReader::wantsContinue(const std::string& bytes)
{
    HttpRequest request;
    const std::size_t bodyStart = headEnd(bytes);
    return bodyStart == bytes.size() && readHead(bytes, request) &&
           lower(request.header("Expect")) == "100-continue";
}

} // namespace quorvel::simulator
