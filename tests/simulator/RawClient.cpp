#include "RawClient.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::simulator::tests
{

using Clock = std::chrono::steady_clock;

RawClient::RawClient(int port) : fd(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in where{};
    where.sin_family = AF_INET;
    where.sin_port = htons(static_cast<uint16_t>(port));
    where.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(fd, reinterpret_cast<const sockaddr*>(&where), sizeof where) == 0)
        return;
    end = errno == ECONNREFUSED ? Ending::Refused : Ending::Reset;
    close(fd);
    fd = -1;
}

RawClient::~RawClient()
{
    if (fd >= 0)
        close(fd);
}

void RawClient::send(const std::string& text)
{
    for (std::size_t sent = 0; sent < text.size();) {
        const auto size = ::send(fd, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
        if (size < 0)
            return;
        sent += static_cast<std::size_t>(size);
    }
}

void RawClient::endSending()
{
    shutdown(fd, SHUT_WR);
}

void RawClient::readReply(std::chrono::milliseconds patience)
{
    const auto deadline = Clock::now() + patience;
    while (!hasWholeReply() && readSome(deadline)) {
    }
}

bool RawClient::readUntil(const std::string& text, std::chrono::milliseconds patience)
{
    const auto deadline = Clock::now() + patience;
    while (bytes.find(text) == std::string::npos && readSome(deadline)) {
    }
    return bytes.find(text) != std::string::npos;
}

void RawClient::readToEnd(std::chrono::milliseconds patience)
{
    const auto deadline = Clock::now() + patience;
    while (readSome(deadline)) {
    }
}

bool RawClient::readSome(Clock::time_point deadline)
{
    if (end != Ending::Open)
        return false;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    pollfd readable{fd, POLLIN, 0};
    if (left.count() <= 0 || poll(&readable, 1, static_cast<int>(left.count())) <= 0)
        return false;
    char part[16 * 1024];
    const auto size = recv(fd, part, sizeof part, 0);
    if (size > 0)
        bytes.append(part, static_cast<std::size_t>(size));
    else
        end = size == 0 ? Ending::Closed : Ending::Reset;
    return size > 0;
}

bool RawClient::hasWholeReply() const
{
    const auto head = bytes.find("\r\n\r\n");
    const std::string length = header("Content-Length");
    return head != std::string::npos && !length.empty() &&
           bytes.size() >= head + 4 + std::stoul(length);
}

int RawClient::status() const
{
    return bytes.compare(0, 9, "HTTP/1.1 ") == 0 ? std::stoi(bytes.substr(9, 3)) : -1;
}

std::string RawClient::header(const std::string& name) const
{
    const std::string label = "\r\n" + name + ": ";
    const auto start = bytes.find(label);
    if (start == std::string::npos)
        return {};
    const auto value = start + label.size();
    return bytes.substr(value, bytes.find("\r\n", value) - value);
}

std::string RawClient::body() const
{
    const auto head = bytes.find("\r\n\r\n");
    return head == std::string::npos ? std::string() : bytes.substr(head + 4);
}

} // namespace quorvel::simulator::tests
