#pragma once

#include "quorvel-simulator/Exchange.h"
#include "quorvel-simulator/Fault.h"
#include "quorvel-simulator/Scenario.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace quorvel::simulator
{

/// A gateway that isn't there: an HTTP server on a real TCP port that answers as one does.
///
/// The server runs in a thread of its own, from `start` to `stop` or destruction. All operations
/// may be called from any thread, but for construction, `listenOn` and destruction. Texts are
/// UTF-8. A value that doesn't exist reads as the empty string.
///
/// Of each object the gateway holds three copies. The configuration is what `get` reads and what
/// a commit changes. The running copy is what is in effect: `apply` takes it over from the
/// configuration. The stored copy is what a restart comes back with: `save` takes it over.
class GatewaySimulator
{
public:
    /// Prepares a gateway with the scenario's factory settings. Nothing listens yet.
    explicit GatewaySimulator(Scenario scenario);
    /// Stops the server.
    ~GatewaySimulator();
    GatewaySimulator(const GatewaySimulator&) = delete;
    GatewaySimulator& operator=(const GatewaySimulator&) = delete;

    /// Where `start` listens: an IPv4 address of this machine and a port. 0, the default, takes
    /// a free port. Before `start` only.
    void listenOn(const std::string& address, int port);

    /// Starts listening. False if that isn't possible, with the reason in `error`. A gateway can
    /// be started again after `stop`, on the same port and with what it held then.
    bool start(std::string* error = nullptr);

    /// Ends all connections, then the thread. The state stays.
    void stop();

    /// Address and port without a scheme, as "127.0.0.1:40123". Empty before the first `start`.
    std::string address() const;
    /// The same with "http://" before it.
    std::string url() const;
    int port() const;

    /// @name Faults
    /// @{

    /// Puts one fault in force and ends all others. In force when the call returns.
    void setFault(const Fault& fault);
    /// Adds a fault to those in force; a request is hit by the first that fits.
    void addFault(const Fault& fault);
    /// Ends all faults. A reply that is already being spoilt stays so.
    void clearFaults();
    /// @}

    /// @name State
    /// @{

    /// What is in effect; for a run-time value that isn't configuration, that value.
    std::string value(const std::string& instance, const std::string& key) const;
    /// What a `get` would read: the last commit.
    std::string configuredValue(const std::string& instance, const std::string& key) const;
    /// What a restart would bring back: the last save.
    std::string storedValue(const std::string& instance, const std::string& key) const;
    /// The whole configuration, to compare before and after.
    Objects configuredObjects() const;
    /// The whole stored copy, to compare before and after.
    Objects storedObjects() const;

    /// Changes a key in all three copies, as if it had been written, saved and applied; makes
    /// the object if there is none.
    void setValue(const std::string& instance, const std::string& key, const std::string& value);
    /// Sets a run-time value, such as a link state, until the next restart; makes the object if
    /// there is none.
    void setStatus(const std::string& instance, const std::string& key, const std::string& value);

    /// A power cycle: ends all connections and sessions, drops what isn't saved, and is
    /// unreachable for the time of a restart.
    void restart();
    /// How long a restart keeps the gateway unreachable; the scenario's time unless set. Zero:
    /// it loses sessions and unsaved changes but goes on answering.
    void setRebootTime(std::chrono::milliseconds time);
    /// Whether connections are accepted: it is started, not restarting and not refusing.
    bool isReachable() const;
    /// Waits until `isReachable()` is as wanted; false when the time is over.
    bool waitUntilReachable(bool wanted, std::chrono::milliseconds timeout) const;
    /// @}

    /// @name Sessions
    /// @{

    /// Every session is unknown from now on.
    void expireSessions();
    /// How many requests a session answers before it expires, also those that live; 0: any
    /// number. The scenario's number unless set.
    void setSessionRequests(int requests);
    /// How long a session lives without a request; zero, the default: for ever.
    void setSessionIdleTime(std::chrono::milliseconds time);
    /// How many sessions live at once; a login beyond that ends the oldest. 0: any number.
    void setSessionNumber(int number);
    /// How many sessions live now.
    std::size_t sessionNumber() const;
    /// @}

    /// @name What happened
    /// @{

    /// The recorded exchanges, oldest first. One is recorded when its reply is ready to go out.
    std::vector<Exchange> exchanges() const;
    /// The recorded exchanges as masked text.
    std::string transcript() const;
    /// Forgets the recorded exchanges; the counts stay.
    void clearExchanges();
    /// How many exchanges are kept, the newest ones (1000). 0 records none.
    void setRecordLimit(std::size_t exchanges);
    /// All requests since construction that were complete, whatever was answered.
    std::size_t requestCount() const;
    /// All connections since construction that were accepted.
    std::size_t connectionCount() const;
    /// Waits until `requestCount()` is at least this; false when the time is over.
    bool waitForRequests(std::size_t count, std::chrono::milliseconds timeout) const;
    /// @}

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace quorvel::simulator
