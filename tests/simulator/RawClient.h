#pragma once

#include <chrono>
#include <string>

namespace quorvel::simulator::tests
{

/// How a conversation over TCP stood when it was looked at.
enum class Ending { Open, Closed, Reset, Refused };

/// A client that knows nothing but bytes, so that nothing between it and the server repairs what
/// a fault has broken.
class RawClient
{
public:
    explicit RawClient(int port);
    ~RawClient();
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;

    bool isConnected() const { return fd >= 0; }
    void send(const std::string& bytes);
    /// Ends the sending direction only.
    void endSending();
    /// Reads until a whole HTTP reply is there, the connection ends, or the time is over.
    void readReply(std::chrono::milliseconds patience = std::chrono::seconds(10));
    /// Reads until `text` has arrived, the connection ends, or the time is over.
    bool readUntil(const std::string& text,
                   std::chrono::milliseconds patience = std::chrono::seconds(10));
    /// Reads until the connection ends or the time is over.
    void readToEnd(std::chrono::milliseconds patience = std::chrono::seconds(10));

    const std::string& received() const { return bytes; }
    Ending ending() const { return end; }
    /// Forgets what has been received, for the next reply.
    void forget() { bytes.clear(); }

    /// @name The parts of a received HTTP reply
    /// @{
    int status() const;
    std::string header(const std::string& name) const;
    std::string body() const;
    /// @}

private:
    bool readSome(std::chrono::steady_clock::time_point deadline);
    bool hasWholeReply() const;

    int fd = -1;
    std::string bytes;
    Ending end = Ending::Open;
};

} // namespace quorvel::simulator::tests
