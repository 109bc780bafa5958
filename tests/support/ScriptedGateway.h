#pragma once

#include "support/Printing.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace quorvel::test
{

/// What the gateway received on one connection.
struct ReceivedRequest {
    QByteArray raw; ///< every byte, head and body
    QByteArray method;
    QByteArray path;
    QByteArray body;
    std::vector<std::pair<QByteArray, QByteArray>> headers;

    /// All values of the header of that name, joined by " | "; empty if it is absent.
    QByteArray header(const QByteArray& name) const;
};

/// A gateway on real TCP that plays a script: each connection gets the next step. A test fails if
/// the script is not played to its end, or if a connection comes that it doesn't have.
class ScriptedGateway
{
public:
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
    /// Reads the request, sends these bytes and then nothing more until release or the test's end.
    ScriptedGateway& sendAndHold(const QByteArray& bytes);
    /// Closes the connection unread.
    ScriptedGateway& closeOnAccept();

    /// Lets held connections go.
    void release();

    /// Waits until so many requests have been received as a whole. False after 10 seconds.
    bool waitForRequests(int count) const;

    QList<ReceivedRequest> requests() const;
    ReceivedRequest request(int index) const;
    int connections() const;

private:
    Q_DISABLE_COPY(ScriptedGateway)

    enum class Ending { Close, Reset, Hold };

    struct Step {
        bool reads = true;
        QByteArray expectedPath; ///< empty for any
        QByteArray answer;
        Ending ending = Ending::Close;
    };

    ScriptedGateway& append(Step step);
    void serve();
    void play(int connection);
    void hold(int connection);

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
    std::vector<std::thread> players;
    std::thread server;
};

/// An HTTP reply with status 200, this body and its length.
QByteArray httpReply(const QByteArray& body, const QByteArray& extraHeaders = QByteArray());

} // namespace quorvel::test
