#pragma once

#include "../State.h"

#include <string>

namespace quorvel::simulator
{

/// What a WAN is connected by, from what is in effect, its line and its modem.
struct Uplink {
    bool connected = false;
    /// The address that the gateway has there; empty while it isn't connected, and for a bridge.
    std::string address = {};
    /// The entity that holds the connection, as `pppox-1`; empty for a bridge and for a modem.
    std::string entity = {};
};

/// The connection of a WAN in effect. A disabled WAN has none. `isconnected` and `localip` among
/// the WAN's run-time values stand in for what would otherwise follow from its entities.
Uplink uplinkOf(const State& state, const std::string& wan);

/// Whether a WAN can carry the default route: it is connected and doesn't merely bridge.
bool reachesInternet(const State& state, const std::string& wan);

/// The WAN that carries the default route: the one that `route-0` names if it can, otherwise the
/// first that can. Empty if none can.
std::string defaultGateway(const State& state);

/// Whether an entity is in use: the WAN that has it in effect is connected through it.
bool isInUse(const State& state, const std::string& entity);

/// The address that the provider gives an entity: the one among its run-time values, or one of the
/// entity's own.
std::string providedAddress(const State& state, const std::string& entity, const std::string& key);

/// Whether a WAN is of the newer kind, whose connection type is called `linktype`, not `type`.
bool isNewWan(const State& state, const std::string& wan);

} // namespace quorvel::simulator
