#pragma once

#include <cstddef>
#include <string>
#include <utility>

namespace quorvel::simulator
{

/// A file descriptor that is closed when its owner goes.
class Socket
{
public:
    Socket() = default;
    explicit Socket(int descriptor) : fd(descriptor) {}
    Socket(Socket&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    Socket& operator=(Socket&& other) noexcept
    {
        close();
        fd = std::exchange(other.fd, -1);
        return *this;
    }
    ~Socket() { close(); }

    int descriptor() const { return fd; }
    bool isOpen() const { return fd >= 0; }
    void close();
    /// Closes with a reset instead of an orderly end.
    void reset();

private:
    int fd = -1;
};

/// A port of this machine that can stop listening and start again without losing its number.
class Port
{
public:
    /// Takes the port; 0 takes a free one.
    bool reserve(const std::string& address, int port, std::string& error);
    bool open(std::string& error);
    void close() { listener.close(); }

    bool isReserved() const { return holder.isOpen(); }
    bool isOpen() const { return listener.isOpen(); }
    int number() const { return port; }
    const std::string& address() const { return host; }
    int descriptor() const { return listener.descriptor(); }
    /// The next waiting connection; closed if there is none.
    Socket accept() const;

private:
    // Bound but never listening: nobody else gets the port while nothing answers on it.
    Socket holder;
    Socket listener;
    std::string host;
    int port = 0;
};

/// Both ends of a pipe, for waking a thread that waits for sockets.
struct Wake {
    Wake();
    void ring() const;
    void drain() const;

    Socket reader;
    Socket writer;
};

} // namespace quorvel::simulator
