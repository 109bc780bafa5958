#pragma once

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace quorvel::test
{

/// What happened, counted.
struct Figures {
    long reads = 0;
    long readsAnswered = 0;
    long writes = 0;
    long writesConfirmed = 0;
    long aborts = 0;
    /// Operations that ended with each error; 0 stands for a login that failed in transport.
    std::map<int, long> failures;

    // As the gateways saw it.
    long exchanges = 0;
    long logins = 0;
    long expiredSessions = 0;
    long withoutSession = 0;
    std::map<std::string, long> faults;

    Figures& operator+=(const Figures& other);
    /// For people, a line each.
    std::string text() const;
};

/// What must not happen. Callers and audits may complain at the same time.
class Complaints
{
public:
    void add(const std::string& complaint);
    /// The first twenty, and how many more there are.
    std::vector<std::string> all() const;

private:
    mutable std::mutex mutex;
    std::vector<std::string> first;
    long number = 0;
};

} // namespace quorvel::test
