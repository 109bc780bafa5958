#include "support/ScriptedGateway.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <arpa/inet.h>
#include <chrono>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::test
{

QByteArray httpReply(const QByteArray& body, const QByteArray& extraHeaders)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\n" + extraHeaders +
           "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

ScriptedGateway::ScriptedGateway()
{
    listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in where{};
    where.sin_family = AF_INET;
    where.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof where;
    const bool listening =
        ::bind(listener, reinterpret_cast<sockaddr*>(&where), sizeof where) == 0 &&
        ::listen(listener, 64) == 0 &&
        ::getsockname(listener, reinterpret_cast<sockaddr*>(&where), &size) == 0 &&
        ::pipe(wakeUp) == 0;
    if (!listening)
        ADD_FAILURE() << "The scripted gateway can't listen";
    port = ntohs(where.sin_port);
    server = std::thread([this] { serve(); });
}

ScriptedGateway::~ScriptedGateway()
{
    release();
    const char stop = 0;
    if (::write(wakeUp[1], &stop, 1) != 1)
        ADD_FAILURE() << "The scripted gateway can't be stopped";
    server.join();
    for (Player& player : players)
        player.thread.join();
    ::close(listener);
    ::close(wakeUp[0]);
    ::close(wakeUp[1]);
    EXPECT_EQ(script.size(), 0u) << "steps of the gateway's script were not played";
    EXPECT_TRUE(surprise.isEmpty()) << surprise.toStdString();
}

QString ScriptedGateway::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(port);
}

ScriptedGateway& ScriptedGateway::append(Step step)
{
    std::lock_guard<std::mutex> lock(mutex);
    script.push_back(std::move(step));
    return *this;
}

ScriptedGateway& ScriptedGateway::logIn(const QByteArray& session)
{
    return append({true,
                   "/cgi-bin/login",
                   httpReply("<html/>", "Set-Cookie: " + session + "; path=/\r\n"),
                   Ending::Close,
                   {}});
}

ScriptedGateway& ScriptedGateway::refuseLogin()
{
    return append({true, "/cgi-bin/login", httpReply("<html/>"), Ending::Close, {}});
}

ScriptedGateway& ScriptedGateway::reply(const QString& body)
{
    return append({true, "/cgi-bin/webapp", httpReply(body.toUtf8()), Ending::Close, {}});
}

ScriptedGateway& ScriptedGateway::sendRaw(const QByteArray& bytes)
{
    return append({true, {}, bytes, Ending::Close, {}});
}

ScriptedGateway& ScriptedGateway::sendAndReset(const QByteArray& bytes)
{
    return append({true, {}, bytes, Ending::Reset, {}});
}

ScriptedGateway& ScriptedGateway::sendAndHold(const QByteArray& bytes)
{
    return append({true, {}, bytes, Ending::Hold, {}});
}

ScriptedGateway& ScriptedGateway::closeOnAccept()
{
    return append({false, {}, {}, Ending::Close, {}});
}

ScriptedGateway& ScriptedGateway::resetOnAccept()
{
    return append({false, {}, {}, Ending::Reset, {}});
}

ScriptedGateway& ScriptedGateway::holdUnread()
{
    return append({false, {}, {}, Ending::Hold, {}});
}

ScriptedGateway& ScriptedGateway::answer(Behaviour behaviour)
{
    return append({true, {}, {}, Ending::Close, std::move(behaviour)});
}

void ScriptedGateway::answerAllOthers(Behaviour behaviour)
{
    std::lock_guard<std::mutex> lock(mutex);
    beyondScript = std::move(behaviour);
}

void ScriptedGateway::release()
{
    std::lock_guard<std::mutex> lock(mutex);
    released = true;
    changed.notify_all();
}

bool ScriptedGateway::waitForRequests(int count) const
{
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_for(lock, std::chrono::seconds(10),
                            [&] { return received.size() >= count; });
}

QList<ReceivedRequest> ScriptedGateway::requests() const
{
    std::lock_guard<std::mutex> lock(mutex);
    return received;
}

ReceivedRequest ScriptedGateway::request(int index) const
{
    std::lock_guard<std::mutex> lock(mutex);
    EXPECT_LT(index, received.size()) << "no such request was received";
    return received.value(index);
}

int ScriptedGateway::connections() const
{
    std::lock_guard<std::mutex> lock(mutex);
    return accepted;
}

void ScriptedGateway::serve()
{
    for (;;) {
        pollfd sources[] = {{listener, POLLIN, 0}, {wakeUp[0], POLLIN, 0}};
        if (::poll(sources, 2, -1) < 0 || (sources[1].revents & POLLIN))
            return;
        const int connection = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            continue;
        std::lock_guard<std::mutex> lock(mutex);
        ++accepted;
        startPlayer(connection);
    }
}

void ScriptedGateway::startPlayer(int socket)
{
    // Those that are done go now, so that thousands of connections don't need as many threads.
    const auto done = std::stable_partition(players.begin(), players.end(),
                                            [](const Player& player) { return !*player.done; });
    std::for_each(done, players.end(), [](Player& player) { player.thread.join(); });
    players.erase(done, players.end());
    const auto finished = std::make_shared<std::atomic<bool>>(false);
    players.push_back({std::thread([this, socket, finished] {
                           play(socket);
                           *finished = true;
                       }),
                       finished});
}

bool ScriptedGateway::wantsRequestFirst() const
{
    std::lock_guard<std::mutex> lock(mutex);
    return beyondScript && !script.empty() && script.front().reads;
}

bool ScriptedGateway::takeStep(Step& step)
{
    std::lock_guard<std::mutex> lock(mutex);
    if (!script.empty()) {
        step = script.front();
        script.pop_front();
        return true;
    }
    if (beyondScript) {
        step.behaviour = beyondScript;
        return true;
    }
    surprise = "a connection came that the gateway's script doesn't have";
    return false;
}

void ScriptedGateway::play(int socket)
{
    GatewayConnection connection(*this, socket);
    ReceivedRequest request;
    if (wantsRequestFirst()) {
        request = connection.readRequest();
        if (!request.isWhole)
            return; // it belongs to an exchange that is over, and the step to the next one
    }
    Step step;
    if (!takeStep(step))
        return;
    if (step.reads) {
        if (!request.isWhole)
            request = connection.readRequest();
        record(request, step.expectedPath);
    }
    connection.send(step.answer);
    if (step.behaviour)
        step.behaviour(request, connection);
    if (step.ending == Ending::Hold)
        connection.waitForPeer();
    if (step.ending == Ending::Close)
        connection.closeGently();
}

void ScriptedGateway::record(const ReceivedRequest& request, const QByteArray& expectedPath)
{
    std::lock_guard<std::mutex> lock(mutex);
    received.append(request);
    if (!expectedPath.isEmpty() && request.path != expectedPath)
        surprise = "a request to " + request.path + " came instead of " + expectedPath;
    changed.notify_all();
}

bool ScriptedGateway::releasedWithin(std::chrono::milliseconds time) const
{
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_for(lock, time, [this] { return released; });
}

} // namespace quorvel::test
