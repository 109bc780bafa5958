#pragma once

#include "Connection.h"
#include "Gateway.h"

#include <functional>
#include <list>
#include <thread>

namespace quorvel::simulator
{

/// The gateway's port and its connections, served by one thread.
class Server
{
public:
    explicit Server(Gateway& gateway) : gateway(gateway) {}
    ~Server() { stop(); }

    /// @name From any thread but the server's own
    /// @{
    bool start(const std::string& address, int port, std::string& error);
    void stop();
    /// Returns once the port is open or closed as the gateway's faults want it.
    void refresh();
    /// Ends all connections and closes the port for the time of a restart.
    void goDown();
    /// @}

    std::string address() const;
    int port() const;
    bool isReachable() const;
    bool waitUntilReachable(bool wanted, std::chrono::milliseconds timeout) const;

private:
    using Clock = Connection::Clock;

    void run();
    void inThread(const std::function<void()>& task);
    void runTasks();
    void closeFor(std::chrono::milliseconds time, const Connection* survivor);
    void openOrClose();
    void setReachable(bool reachable);
    int timeout() const;
    void acceptAll();
    void serveAll(const std::vector<short>& ready);

    Gateway& gateway;
    /// Held by those who start, stop and interrupt the thread.
    std::mutex control;
    Wake wake;
    std::thread thread;
    Port listening;

    // The server's thread alone, while it runs.
    std::list<Connection> connections;
    Clock::time_point downUntil;
    bool stopping = false;

    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    std::vector<std::function<void()>> tasks;
    bool reachable = false;
    std::string where;
    int number = 0;
};

} // namespace quorvel::simulator
