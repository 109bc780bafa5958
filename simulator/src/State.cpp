#include "State.h"

#include "objects/Modem.h"

#include <algorithm>

namespace quorvel::simulator
{

State::State(const Scenario& scenario)
    : configuration(scenario.configuration),
      running(configuration),
      stored(configuration),
      status(scenario.status)
{
}

bool State::exists(const std::string& instance) const
{
    return configuration.read().count(instance) > 0;
}

std::vector<std::string> State::instancesOf(const std::string& manager) const
{
    std::vector<std::string> instances;
    for (const auto& [instance, values] : configuration.read()) {
        if (managerOf(instance) == manager)
            instances.push_back(instance);
    }
    std::sort(instances.begin(), instances.end(),
              [](const auto& a, const auto& b) { return numberOf(a) < numberOf(b); });
    return instances;
}

void State::restart(const Scenario& scenario)
{
    configuration = stored;
    running = stored;
    const Objects before = status.read();
    status = Cow<Objects>(scenario.status);
    transactions.clear();
    fresh.clear();
    restartModems(*this, before);
}

std::string valueIn(const Objects& objects, const std::string& instance, const std::string& key)
{
    const auto object = objects.find(instance);
    if (object == objects.end())
        return {};
    const auto value = object->second.find(key);
    return value == object->second.end() ? std::string() : value->second;
}

std::string managerOf(const std::string& instance)
{
    return numberOf(instance) < 0 ? instance : instance.substr(0, instance.rfind('-'));
}

int numberOf(const std::string& instance)
{
    const auto hyphen = instance.rfind('-');
    if (hyphen == std::string::npos)
        return -1;
    const std::string digits = instance.substr(hyphen + 1);
    // Nine digits always fit.
    if (digits.empty() || digits.size() > 9 ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        return -1;
    return std::stoi(digits);
}

} // namespace quorvel::simulator
