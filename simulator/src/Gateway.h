#pragma once

#include "FaultPlan.h"
#include "Recordings.h"
#include "Script.h"
#include "Sessions.h"
#include "WebApp.h"
#include "quorvel-simulator/Exchange.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace quorvel::simulator
{

/// The gateway behind the port: state, sessions, faults and the record. Every operation may be
/// called from any thread.
class Gateway
{
public:
    explicit Gateway(Scenario scenario);

    /// Serves one request and says what the connection has to do about it.
    Script answer(const HttpRequest& request);
    /// Counts an accepted connection; true if a fault resets it.
    bool accept();
    bool closesPort() const;

    void addFault(const Fault& fault, bool only);
    void clearFaults();

    /// The state is read and changed under the gateway's lock: copies of it share values without
    /// a lock of their own.
    void readState(const std::function<void(const State&)>& read) const;
    void changeState(const std::function<void(State&)>& change);
    /// Loses what isn't saved, and all sessions.
    void losePower();

    void changeSessions(const std::function<void(Sessions&)>& change);
    std::size_t sessionNumber() const;

    std::chrono::milliseconds rebootTime() const;
    void setRebootTime(std::chrono::milliseconds time);

    std::vector<Exchange> exchanges() const;
    void clearExchanges();
    void setRecordLimit(std::size_t limit);
    std::size_t requestCount() const;
    std::size_t connectionCount() const;
    bool waitForRequests(std::size_t count, std::chrono::milliseconds timeout) const;

private:
    struct Served {
        HttpReply reply;
        bool goesDown = false;
        bool unanswered = false;
    };

    Script serve(const HttpRequest& request, FaultTarget target, const std::optional<Fault>& fault);
    Served process(const HttpRequest& request, FaultTarget target,
                   const std::optional<Fault>& fault);
    static Served replayed(const RecordedReply& recorded);
    HttpReply logIn(const HttpRequest& request);
    Served runWebApp(const HttpRequest& request, const std::optional<Fault>& fault);
    ErrorCode runRequest(const Request& request, const std::string& token,
                         const std::optional<Fault>& fault, Served& served);
    void settle(Work& work, State&& changed, Served& served);
    void forgetEndedTransactions();
    HttpReply webAppReply(const std::vector<Entry>& entries, ErrorCode error) const;
    void record(const HttpRequest& request, const Script& script,
                const std::optional<Fault>& fault);

    mutable std::mutex mutex;
    mutable std::condition_variable counted;
    const Scenario scenario;
    const Recordings recordings;
    State current;
    Sessions sessions;
    FaultPlan faults;
    std::chrono::milliseconds downTime;
    std::deque<Exchange> recorded;
    std::size_t recordLimit = 1000;
    std::size_t requests = 0;
    std::size_t connections = 0;
};

} // namespace quorvel::simulator
