#include "Server.h"

#include <algorithm>
#include <future>
#include <poll.h>

namespace quorvel::simulator
{

bool Server::start(const std::string& address, int port, std::string& error)
{
    const std::lock_guard only(control);
    if (thread.joinable())
        return true;
    if (!listening.isReserved() && !listening.reserve(address, port, error))
        return false;
    if (!listening.open(error))
        return false;
    {
        const std::lock_guard lock(mutex);
        where = listening.address();
        number = listening.number();
    }
    stopping = false;
    downUntil = Clock::now();
    openOrClose();
    thread = std::thread([this] { run(); });
    return true;
}

void Server::stop()
{
    const std::lock_guard only(control);
    if (!thread.joinable())
        return;
    inThread([this] { stopping = true; });
    thread.join();
    listening.close();
    connections.clear();
    setReachable(false);
}

void Server::refresh()
{
    const std::lock_guard only(control);
    inThread([this] { openOrClose(); });
}

void Server::goDown()
{
    const std::lock_guard only(control);
    inThread([this] { closeFor(gateway.rebootTime(), nullptr); });
}

std::string Server::address() const
{
    const std::lock_guard lock(mutex);
    return where;
}

int Server::port() const
{
    const std::lock_guard lock(mutex);
    return number;
}

bool Server::isReachable() const
{
    const std::lock_guard lock(mutex);
    return reachable;
}

bool Server::waitUntilReachable(bool wanted, std::chrono::milliseconds timeout) const
{
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, timeout, [this, wanted] { return reachable == wanted; });
}

void Server::run()
{
    while (!stopping) {
        openOrClose();
        std::vector<pollfd> polled{{wake.reader.descriptor(), POLLIN, 0},
                                   {listening.descriptor(), POLLIN, 0}};
        for (const Connection& connection : connections)
            polled.push_back({connection.descriptor(), connection.events(), 0});
        poll(polled.data(), polled.size(), timeout());
        std::vector<short> ready;
        for (std::size_t i = 2; i < polled.size(); ++i)
            ready.push_back(polled[i].revents);
        serveAll(ready);
        if (polled[1].revents & POLLIN)
            acceptAll();
        runTasks();
    }
}

void Server::inThread(const std::function<void()>& task)
{
    if (!thread.joinable())
        return;
    // Shared, since the waiting side may be gone before the other has left `set_value`.
    const auto done = std::make_shared<std::promise<void>>();
    {
        const std::lock_guard lock(mutex);
        tasks.push_back([&task, done] {
            task();
            done->set_value();
        });
    }
    wake.ring();
    done->get_future().wait();
}

void Server::runTasks()
{
    wake.drain();
    std::vector<std::function<void()>> due;
    {
        const std::lock_guard lock(mutex);
        due.swap(tasks);
    }
    for (const auto& task : due)
        task();
}

void Server::closeFor(std::chrono::milliseconds time, const Connection* survivor)
{
    if (time.count() <= 0)
        return;
    downUntil = Clock::now() + time;
    openOrClose();
    for (Connection& connection : connections) {
        if (&connection != survivor)
            connection.drop();
    }
}

void Server::openOrClose()
{
    const bool open = !gateway.closesPort() && Clock::now() >= downUntil;
    std::string error;
    if (open && !listening.isOpen())
        listening.open(error);
    else if (!open)
        listening.close();
    setReachable(listening.isOpen());
}

void Server::setReachable(bool now)
{
    const std::lock_guard lock(mutex);
    reachable = now;
    changed.notify_all();
}

int Server::timeout() const
{
    std::optional<Clock::time_point> next;
    if (!listening.isOpen() && Clock::now() < downUntil)
        next = downUntil;
    for (const Connection& connection : connections) {
        const auto due = connection.due();
        if (due && (!next || *due < *next))
            next = due;
    }
    if (!next)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now()).count();
    return static_cast<int>(std::clamp<long long>(left, 0, 60000));
}

void Server::acceptAll()
{
    for (Socket client = listening.accept(); client.isOpen(); client = listening.accept()) {
        if (gateway.accept())
            client.reset();
        else
            connections.emplace_back(std::move(client));
    }
}

void Server::serveAll(const std::vector<short>& ready)
{
    std::size_t i = 0;
    // A connection that has gone down with the others has nothing left to do.
    for (Connection& connection : connections) {
        const short events = ready[i++];
        if (connection.isOver() || (events == 0 && !connection.due()))
            continue;
        connection.proceed(events, [this, &connection](const HttpRequest& request) {
            Script script = gateway.answer(request);
            // The port closes before the reply is out: whoever has the reply finds it closed.
            if (script.down)
                closeFor(*script.down, &connection);
            return script;
        });
    }
    connections.remove_if([](const Connection& connection) { return connection.isOver(); });
}

} // namespace quorvel::simulator
