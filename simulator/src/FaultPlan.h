#pragma once

#include "quorvel-simulator/Fault.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvel::simulator
{

/// The faults in force, and how often each has struck.
class FaultPlan
{
public:
    void add(const Fault& fault) { active.push_back({fault}); }
    void clear() { active.clear(); }

    /// The fault that hits this request, counted as used.
    std::optional<Fault> forRequest(FaultTarget target, const std::string& body);
    /// Whether the port is to be closed.
    bool closesPort() const;
    /// Whether the connection just accepted is to be reset; counted as used.
    bool resetsConnection();

private:
    struct Active {
        Fault fault;
        int passed = 0;
        int used = 0;
    };

    static bool strikes(Active& active);
    void dropSpent();

    std::vector<Active> active;
};

/// What a fault's number is when it has none of its own.
int argumentOf(const Fault& fault);

} // namespace quorvel::simulator
