#pragma once

#include "support/Replies.h"
#include "support/ScriptedGateway.h"

#include <QString>
#include <functional>
#include <memory>
#include <quorvel-simulator/GatewaySimulator.h>

namespace quorvel::test
{

/// How a gateway misbehaves in one exchange: the simulator by one of its faults, or else a scripted
/// gateway by what it is told.
struct Misbehaviour {
    const char* injected = nullptr;
    std::function<void(ScriptedGateway&)> play;
};

/// A fault of the simulator's, as its texts name it.
Misbehaviour injected(const char* fault);
Misbehaviour playing(std::function<void(ScriptedGateway&)> play);
/// Reads the request, sends these bytes and closes.
Misbehaviour sending(const QByteArray& bytes);
/// Reads the request, sends these bytes and resets the connection.
Misbehaviour resetting(const QByteArray& bytes);
/// Reads the request, sends these bytes and then nothing more.
Misbehaviour holding(const QByteArray& bytes);
/// Reads the request, and sends `more` behind `start` again and again until the peer goes away.
Misbehaviour streaming(const QByteArray& start, const QByteArray& more);
/// Reads the request and sends these bytes one by one.
Misbehaviour dripping(const QByteArray& bytes, int millisecondsEach);

/// The body of a good reply: the firmware version 1.2.
QByteArray goodBody();
QByteArray withHeaders(const QByteArray& headers, const QByteArray& body = goodBody());
QByteArray withStatus(const QByteArray& status, const QByteArray& body = QByteArray());

/// Whom the library talks to.
class Opponent
{
public:
    explicit Opponent(const Misbehaviour& way);
    ~Opponent();

    QString address() const;
    /// In the next exchange.
    void misbehave();
    /// From the next exchange on.
    void behave();
    /// Lets go what it still holds or sends.
    void release();
    /// Requests that have reached it, be it in part.
    int requests() const;
    int connections() const;

private:
    Q_DISABLE_COPY(Opponent)

    Misbehaviour way;
    std::unique_ptr<simulator::GatewaySimulator> simulated;
    std::unique_ptr<ScriptedGateway> scripted;
};

} // namespace quorvel::test
