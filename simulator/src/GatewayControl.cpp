// What the outside does to a gateway and learns of it, beside the protocol.
#include "Gateway.h"

namespace quorvel::simulator
{

Gateway::Gateway(Scenario factorySettings)
    : scenario(std::move(factorySettings)),
      recordings(scenario.replies),
      current(scenario),
      downTime(scenario.rebootTime)
{
    sessions.numberLimit = scenario.sessionNumber;
    sessions.requestLimit = scenario.sessionRequests;
}

bool Gateway::accept()
{
    const std::lock_guard lock(mutex);
    ++connections;
    return faults.resetsConnection();
}

bool Gateway::closesPort() const
{
    const std::lock_guard lock(mutex);
    return faults.closesPort();
}

void Gateway::addFault(const Fault& fault, bool only)
{
    const std::lock_guard lock(mutex);
    if (only)
        faults.clear();
    faults.add(fault);
}

void Gateway::clearFaults()
{
    const std::lock_guard lock(mutex);
    faults.clear();
}

void Gateway::readState(const std::function<void(const State&)>& read) const
{
    const std::lock_guard lock(mutex);
    read(current);
}

void Gateway::changeState(const std::function<void(State&)>& change)
{
    const std::lock_guard lock(mutex);
    change(current);
}

void Gateway::losePower()
{
    const std::lock_guard lock(mutex);
    current.restart(scenario);
    sessions.endAll();
}

void Gateway::changeSessions(const std::function<void(Sessions&)>& change)
{
    const std::lock_guard lock(mutex);
    change(sessions);
    forgetEndedTransactions();
}

std::size_t Gateway::sessionNumber() const
{
    const std::lock_guard lock(mutex);
    return sessions.tokens().size();
}

std::chrono::milliseconds Gateway::rebootTime() const
{
    const std::lock_guard lock(mutex);
    return downTime;
}

void Gateway::setRebootTime(std::chrono::milliseconds time)
{
    const std::lock_guard lock(mutex);
    downTime = time;
}

std::vector<Exchange> Gateway::exchanges() const
{
    const std::lock_guard lock(mutex);
    return {recorded.begin(), recorded.end()};
}

void Gateway::clearExchanges()
{
    const std::lock_guard lock(mutex);
    recorded.clear();
}

void Gateway::setRecordLimit(std::size_t limit)
{
    const std::lock_guard lock(mutex);
    recordLimit = limit;
    while (recorded.size() > limit)
        recorded.pop_front();
}

std::size_t Gateway::requestCount() const
{
    const std::lock_guard lock(mutex);
    return requests;
}

std::size_t Gateway::connectionCount() const
{
    const std::lock_guard lock(mutex);
    return connections;
}

bool Gateway::waitForRequests(std::size_t count, std::chrono::milliseconds timeout) const
{
    std::unique_lock lock(mutex);
    return counted.wait_for(lock, timeout, [this, count] { return requests >= count; });
}

void Gateway::record(const HttpRequest& request, const Script& script,
                     const std::optional<Fault>& fault)
{
    if (recordLimit == 0)
        return;
    Exchange exchange{request.method, request.path, request.head, request.body, {}, {}, {}};
    exchange.replyHead = script.bytes.substr(0, script.headSize);
    if (script.bytes.size() > script.headSize + 2)
        exchange.replyBody = script.bytes.substr(script.headSize + (script.headSize > 0 ? 2 : 0));
    if (fault)
        exchange.fault = Fault::name(fault->kind);
    recorded.push_back(std::move(exchange));
    if (recorded.size() > recordLimit)
        recorded.pop_front();
}

} // namespace quorvel::simulator
