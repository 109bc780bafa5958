#pragma once

#include "operations/Operations.h"
#include "quorvel-simulator/GatewaySimulator.h"

#include <memory>
#include <string>

namespace quorvel::test
{

/// The simulator's `dual` gateway and the library on it. Every password, key, PIN and token that
/// it holds has the word "secret" in it. It restarts at once.
class SimulatedHome
{
public:
    SimulatedHome();

    /// One fault, which strikes once.
    void inject(const std::string& fault);
    /// Whether a fault has struck since the exchanges were forgotten.
    bool wasStruck() const;

    const simulator::Scenario scenario;
    simulator::GatewaySimulator gateway;
    std::unique_ptr<AskedGateway> asked;
};

} // namespace quorvel::test
