#pragma once

#include "support/Printing.h"

#include <QByteArray>
#include <utility>
#include <vector>

namespace quorvel::test
{

class ScriptedGateway;

/// What the gateway received on one connection.
struct ReceivedRequest {
    QByteArray raw; ///< every byte, head and body
    QByteArray method;
    QByteArray path;
    QByteArray body;
    std::vector<std::pair<QByteArray, QByteArray>> headers;
    bool isWhole = false; ///< the connection didn't end before the announced length

    /// All values of the header of that name, joined by " | "; empty if it is absent.
    QByteArray header(const QByteArray& name) const;
};

/// The gateway's end of a connection. What isn't closed gently is reset.
class GatewayConnection
{
public:
    GatewayConnection(const ScriptedGateway& gateway, int socket);
    ~GatewayConnection();

    /// Reads one request; incomplete if the peer goes away.
    ReceivedRequest readRequest();
    /// False when the peer takes nothing more.
    bool send(const QByteArray& bytes);
    /// Lets time pass between two bytes. False when the test is over or the gateway released.
    bool pause(int milliseconds) const;
    /// Reads and says nothing until the peer goes away, the gateway is released or the test ends.
    void waitForPeer() const;
    /// Says nothing until the gateway is released or the test ends.
    void waitForRelease() const;
    void reset();
    /// Closes so that bytes on their way still arrive.
    void closeGently();

private:
    Q_DISABLE_COPY(GatewayConnection)

    const ScriptedGateway& gateway;
    int socket;
};

} // namespace quorvel::test
