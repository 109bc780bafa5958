#pragma once

#include "support/GatewayConnection.h"
#include "support/Printing.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace quorvel::test
{

/// A gateway on real TCP that plays a script: each connection gets the next step. A test fails if
/// the script is not played to its end, or if a connection comes that it doesn't have.
class ScriptedGateway
{
public:
    /// What a connection does once its request is read.
    using Behaviour = std::function<void(const ReceivedRequest& request, GatewayConnection& peer)>;

    ScriptedGateway();
    ~ScriptedGateway();

    /// "127.0.0.1:" and the port.
    QString address() const;

    // The script. Each call appends the step of one connection.

    /// Expects the login form and hands out a session.
    ScriptedGateway& logIn(const QByteArray& session = "SID=1");
    /// Expects the login form and hands out nothing.
    ScriptedGateway& refuseLogin();
    /// Answers with status 200 and this body.
    ScriptedGateway& reply(const QString& body);
    /// Reads the request, sends these bytes and closes.
    ScriptedGateway& sendRaw(const QByteArray& bytes);
    /// Reads the request, sends these bytes and resets the connection.
    ScriptedGateway& sendAndReset(const QByteArray& bytes);
    /// Reads the request, sends these bytes and then nothing more until the peer goes away, release
    /// or the test's end.
    ScriptedGateway& sendAndHold(const QByteArray& bytes);
    /// Closes the connection unread.
    ScriptedGateway& closeOnAccept();

    /// Resets the connection unread.
    ScriptedGateway& resetOnAccept();
    /// Reads nothing and sends nothing until the peer goes away, release or the test's end.
    ScriptedGateway& holdUnread();
    /// Reads the request and lets `behaviour` answer it, then closes.
    ScriptedGateway& answer(Behaviour behaviour);

    /// Lets `behaviour` answer every connection for which the script has no step, on a thread each.
    void answerAllOthers(Behaviour behaviour);

    /// Lets held connections go.
    void release();

    /// Waits until so many requests have been received as a whole. False after 10 seconds.
    bool waitForRequests(int count) const;

    QList<ReceivedRequest> requests() const;
    ReceivedRequest request(int index) const;
    int connections() const;

private:
    Q_DISABLE_COPY(ScriptedGateway)

    friend class GatewayConnection;

    enum class Ending { Close, Reset, Hold };

    struct Step {
        bool reads = true;
        QByteArray expectedPath; ///< empty for any
        QByteArray answer;
        Ending ending = Ending::Close;
        Behaviour behaviour; ///< speaks behind the answer
    };

    struct Player {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };

    ScriptedGateway& append(Step step);
    void serve();
    void startPlayer(int socket);
    void play(int socket);
    /// Whether the next step is for a request while connections without one may come, too.
    bool wantsRequestFirst() const;
    bool takeStep(Step& step);
    void record(const ReceivedRequest& request, const QByteArray& expectedPath);
    bool releasedWithin(std::chrono::milliseconds time) const;

    int listener = -1;
    int wakeUp[2] = {-1, -1};
    quint16 port = 0;

    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    std::deque<Step> script;
    QList<ReceivedRequest> received;
    QByteArray surprise;
    int accepted = 0;
    bool released = false;
    Behaviour beyondScript;
    std::vector<Player> players;
    std::thread server;
};

/// An HTTP reply with status 200, this body and its length.
QByteArray httpReply(const QByteArray& body, const QByteArray& extraHeaders = QByteArray());

} // namespace quorvel::test
