#pragma once

#include "Cow.h"
#include "quorvel-simulator/Scenario.h"

#include <string>
#include <utility>
#include <vector>

namespace quorvel::simulator
{

/// The sets of a transaction in the order of their arrival: some keys, such as `add_entity`, may
/// come twice and mean something each time.
using Changes = std::vector<std::pair<std::string, std::string>>;

/// Everything that a gateway holds but its sessions. Copying it is cheap, so that a request can
/// work on a copy that is thrown away if a command is refused.
struct State {
    explicit State(const Scenario& scenario);

    Cow<Objects> configuration;
    Cow<Objects> running;
    Cow<Objects> stored;
    Cow<Objects> status;
    /// Open transactions by session and instance.
    std::map<std::string, std::map<std::string, Changes>> transactions;
    /// Objects that `create_inst` has just made. They take sets without a transaction, from
    /// whatever session, until their first `end_transaction`.
    std::map<std::string, Changes> fresh;

    bool exists(const std::string& instance) const;
    /// The instances of a manager in the order of their numbers.
    std::vector<std::string> instancesOf(const std::string& manager) const;

    /// What is left after a loss of power.
    void restart(const Scenario& scenario);
};

/// The value, or an empty string.
std::string valueIn(const Objects& objects, const std::string& instance, const std::string& key);

/// The manager of an instance, as `wan_vlan` of `wan_vlan-0`.
std::string managerOf(const std::string& instance);

/// The number of an instance, or -1 if its name ends in none.
int numberOf(const std::string& instance);

} // namespace quorvel::simulator
