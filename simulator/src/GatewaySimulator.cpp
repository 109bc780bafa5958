#include "quorvel-simulator/GatewaySimulator.h"

#include "Gateway.h"
#include "Server.h"
#include "objects/ObjectKind.h"

namespace quorvel::simulator
{

class GatewaySimulator::Private
{
public:
    explicit Private(Scenario scenario) : gateway(std::move(scenario)), server(gateway) {}

    std::string valueOf(Cow<Objects> State::*copy, const std::string& instance,
                        const std::string& key) const
    {
        std::string result;
        gateway.readState(
            [&](const State& state) { result = valueIn((state.*copy).read(), instance, key); });
        return result;
    }

    Objects objectsOf(Cow<Objects> State::*copy) const
    {
        Objects objects;
        gateway.readState([&](const State& state) { objects = (state.*copy).read(); });
        return objects;
    }

    Gateway gateway;
    Server server;
    std::string wantedAddress = "127.0.0.1";
    int wantedPort = 0;
};

GatewaySimulator::GatewaySimulator(Scenario scenario)
    : d(std::make_unique<Private>(std::move(scenario)))
{
}

GatewaySimulator::~GatewaySimulator() = default;

void GatewaySimulator::listenOn(const std::string& address, int port)
{
    d->wantedAddress = address;
    d->wantedPort = port;
}

bool GatewaySimulator::start(std::string* error)
{
    std::string reason;
    const bool started = d->server.start(d->wantedAddress, d->wantedPort, reason);
    if (!started && error)
        *error = reason;
    return started;
}

void GatewaySimulator::stop()
{
    d->server.stop();
}

std::string GatewaySimulator::address() const
{
    const std::string host = d->server.address();
    return host.empty() ? host : host + ":" + std::to_string(port());
}

std::string GatewaySimulator::url() const
{
    return "http://" + address();
}

int GatewaySimulator::port() const
{
    return d->server.port();
}

void GatewaySimulator::setFault(const Fault& fault)
{
    d->gateway.addFault(fault, true);
    d->server.refresh();
}

void GatewaySimulator::addFault(const Fault& fault)
{
    d->gateway.addFault(fault, false);
    d->server.refresh();
}

void GatewaySimulator::clearFaults()
{
    d->gateway.clearFaults();
    d->server.refresh();
}

std::string GatewaySimulator::value(const std::string& instance, const std::string& key) const
{
    std::string result;
    d->gateway.readState([&](const State& state) {
        result = valueIn(state.running.read(), instance, key);
        if (result.empty())
            result = runTimeValue(state, instance, key);
    });
    return result;
}

std::string GatewaySimulator::configuredValue(const std::string& instance,
                                              const std::string& key) const
{
    return d->valueOf(&State::configuration, instance, key);
}

std::string GatewaySimulator::storedValue(const std::string& instance, const std::string& key) const
{
    return d->valueOf(&State::stored, instance, key);
}

Objects GatewaySimulator::configuredObjects() const
{
    return d->objectsOf(&State::configuration);
}

Objects GatewaySimulator::storedObjects() const
{
    return d->objectsOf(&State::stored);
}

void GatewaySimulator::setValue(const std::string& instance, const std::string& key,
                                const std::string& value)
{
    d->gateway.changeState([&](State& state) {
        for (Cow<Objects>* copy : {&state.configuration, &state.running, &state.stored})
            copy->write()[instance][key] = value;
    });
}

void GatewaySimulator::setStatus(const std::string& instance, const std::string& key,
                                 const std::string& value)
{
    d->gateway.changeState([&](State& state) {
        for (Cow<Objects>* copy : {&state.configuration, &state.running, &state.stored})
            copy->write()[instance];
        state.status.write()[instance][key] = value;
    });
}

void GatewaySimulator::restart()
{
    d->gateway.losePower();
    d->server.goDown();
}

void GatewaySimulator::setRebootTime(std::chrono::milliseconds time)
{
    d->gateway.setRebootTime(time);
}

bool GatewaySimulator::isReachable() const
{
    return d->server.isReachable();
}

bool GatewaySimulator::waitUntilReachable(bool wanted, std::chrono::milliseconds timeout) const
{
    return d->server.waitUntilReachable(wanted, timeout);
}

void GatewaySimulator::expireSessions()
{
    d->gateway.changeSessions([](Sessions& sessions) { sessions.endAll(); });
}

void GatewaySimulator::setSessionRequests(int requests)
{
    d->gateway.changeSessions([requests](Sessions& all) { all.requestLimit = requests; });
}

void GatewaySimulator::setSessionIdleTime(std::chrono::milliseconds time)
{
    d->gateway.changeSessions([time](Sessions& all) { all.idleLimit = time; });
}

void GatewaySimulator::setSessionNumber(int number)
{
    d->gateway.changeSessions([number](Sessions& all) { all.numberLimit = number; });
}

std::size_t GatewaySimulator::sessionNumber() const
{
    return d->gateway.sessionNumber();
}

std::vector<Exchange> GatewaySimulator::exchanges() const
{
    return d->gateway.exchanges();
}

std::string GatewaySimulator::transcript() const
{
    return toTranscript(exchanges());
}

void GatewaySimulator::clearExchanges()
{
    d->gateway.clearExchanges();
}

void GatewaySimulator::setRecordLimit(std::size_t exchanges)
{
    d->gateway.setRecordLimit(exchanges);
}

std::size_t GatewaySimulator::requestCount() const
{
    return d->gateway.requestCount();
}

std::size_t GatewaySimulator::connectionCount() const
{
    return d->gateway.connectionCount();
}

bool GatewaySimulator::waitForRequests(std::size_t count, std::chrono::milliseconds timeout) const
{
    return d->gateway.waitForRequests(count, timeout);
}

} // namespace quorvel::simulator
