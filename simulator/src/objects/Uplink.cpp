#include "Uplink.h"

#include "Modem.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace quorvel::simulator
{

namespace
{

struct ConnectionType {
    const char* name;
    const char* entity;
    /// What the entity must hold for the provider to let the gateway in.
    std::array<const char*, 3> needed;
};

constexpr std::array types{
    ConnectionType{"pppoe", "pppox", {"username", "password"}},
    ConnectionType{"pppoa", "pppox", {"username", "password"}},
    ConnectionType{"russian_pppoe", "pppox", {"username", "password"}},
    ConnectionType{"vpn", "vpn", {"server", "username-0", "password-0"}},
    ConnectionType{"l2tp", "l2tp", {"server", "username-0", "password-0"}},
    ConnectionType{"dhcp", "dhcpc", {}},
    ConnectionType{"static", "static", {"ip", "mask"}},
};

const char* const bridge = "bridge";

std::string inEffect(const State& state, const std::string& instance, const std::string& key)
{
    return valueIn(state.running.read(), instance, key);
}

std::string typeOf(const State& state, const std::string& wan)
{
    return inEffect(state, wan, isNewWan(state, wan) ? "linktype" : "type");
}

// A scenario without that line has none that could be down.
bool isUp(const State& state, const char* line, const char* key, const std::string& up)
{
    std::string value = valueIn(state.status.read(), line, key);
    std::transform(value.begin(), value.end(), value.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return value.empty() || value == up;
}

bool lineIsUp(const State& state, const std::string& wan)
{
    const std::string kind = inEffect(state, wan, "l2type");
    if (kind == "dsl")
        return isUp(state, "dsl-0", "dslLinkStatus", "UP");
    return kind != "eth" || isUp(state, "eth-0", "linkstate", "1");
}

bool isComplete(const State& state, const std::string& entity, const ConnectionType& type)
{
    return state.running.read().count(entity) > 0 &&
           std::all_of(type.needed.begin(), type.needed.end(), [&](const char* key) {
               return !key || !inEffect(state, entity, key).empty();
           });
}

std::string addressOf(const State& state, const std::string& entity)
{
    if (managerOf(entity) == "static")
        return inEffect(state, entity, "ip");
    return providedAddress(state, entity,
                           managerOf(entity) == "pppox" ? "state.localIP" : "localip");
}

Uplink uplinkByType(const State& state, const std::string& wan)
{
    const std::string name = typeOf(state, wan);
    if (!lineIsUp(state, wan))
        return {};
    if (name == bridge)
        return {true};
    for (const ConnectionType& type : types) {
        const std::string entity = inEffect(state, wan, std::string("entities.") + type.entity);
        if (name == type.name && isComplete(state, entity, type))
            return {true, addressOf(state, entity), entity};
    }
    return {};
}

} // namespace

bool isNewWan(const State& state, const std::string& wan)
{
    return valueIn(state.status.read(), wan, "isnewwan") == "1";
}

Uplink uplinkOf(const State& state, const std::string& wan)
{
    if (inEffect(state, wan, "enabled") != "1")
        return {};
    Uplink uplink = isModem(state, wan) ? Uplink{isOnline(state, wan)} : uplinkByType(state, wan);
    const std::string told = valueIn(state.status.read(), wan, "isconnected");
    if (!told.empty())
        uplink.connected = told == "1";
    if (!uplink.connected)
        return {};
    const std::string address = valueIn(state.status.read(), wan, "localip");
    if (!address.empty())
        uplink.address = address;
    return uplink;
}

bool reachesInternet(const State& state, const std::string& wan)
{
    return uplinkOf(state, wan).connected && typeOf(state, wan) != bridge;
}

std::string defaultGateway(const State& state)
{
    const std::string chosen = inEffect(state, "route-0", "default_gw");
    if (reachesInternet(state, chosen))
        return chosen;
    for (const std::string& wan : state.instancesOf("wan")) {
        if (reachesInternet(state, wan))
            return wan;
    }
    return {};
}

bool isInUse(const State& state, const std::string& entity)
{
    const auto wans = state.instancesOf("wan");
    return std::any_of(wans.begin(), wans.end(), [&](const std::string& wan) {
        const std::string holder = uplinkOf(state, wan).entity;
        // A tunnel runs through what the provider's DHCP server gave.
        const bool under = managerOf(holder) == "vpn" || managerOf(holder) == "l2tp";
        return holder == entity || (under && inEffect(state, wan, "entities.dhcpc") == entity);
    });
}

std::string providedAddress(const State& state, const std::string& entity, const std::string& key)
{
    const std::string given = valueIn(state.status.read(), entity, key);
    if (!given.empty())
        return given;
    constexpr std::array<const char*, 4> kinds{"pppox", "dhcpc", "vpn", "l2tp"};
    const auto kind = std::find(kinds.begin(), kinds.end(), managerOf(entity));
    return "203.0.113." + std::to_string((kind - kinds.begin()) * 50 + 1 + numberOf(entity) % 50);
}

} // namespace quorvel::simulator
