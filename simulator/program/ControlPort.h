#pragma once

#include "Socket.h"
#include "quorvel-simulator/GatewaySimulator.h"

#include <list>
#include <poll.h>
#include <string>
#include <vector>

namespace quorvel::simulator
{

/// Carries out one line of the control protocol and returns the answer, its line ends included:
/// "ok", "ok" and a value, or "error" and a reason. `quits` becomes true if the line says so.
std::string runControlLine(GatewaySimulator& gateway, const std::string& line, bool& quits);

/// A port for control commands, a line each. Serves its clients when the program's own wait finds
/// them ready.
class ControlPort
{
public:
    explicit ControlPort(GatewaySimulator& gateway) : gateway(gateway) {}

    bool listen(int port, std::string& error);
    int number() const { return port.number(); }
    /// Adds what to wait for.
    void poll(std::vector<pollfd>& polled) const;
    /// Reads and answers whatever has arrived. False if a client wants the program to end.
    bool serve();

private:
    struct Client {
        Socket socket;
        std::string input;
    };

    bool serve(Client& client);

    GatewaySimulator& gateway;
    Port port;
    std::list<Client> clients;
};

} // namespace quorvel::simulator
