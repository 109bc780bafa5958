#pragma once

#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

/// @name Writes as clients send them
/// Each is the lines of one request. Both gateways know the entities by the same names: `wan-0`
/// is the one over DSL, `wan-1` the one over Ethernet.
/// @{

/// The blocks one behind the other.
Lines joined(std::initializer_list<Lines> blocks);

/// A transaction of sets ("enabled 1") on one object, and its `apply`.
Lines block(const std::string& instance, const Lines& sets);

/// The type of a connection, under both names that it may have.
Lines linkType(const std::string& wan, const std::string& type);

/// An Ethernet connection of the type: the VLAN, and the block of the entity that it needs.
Lines overEthernet(const std::string& type, const Lines& entity = {});
Lines pppoeOverEthernet();
/// `entity` is `vpn-0` or `l2tp-0`.
Lines tunnelOverEthernet(const std::string& type, const std::string& entity);
Lines staticOverEthernet();

Lines pppoeOverDsl();
Lines staticOverDsl();

/// Makes a WAN the default gateway and switches it on, to stay.
Lines defaultGateway(const std::string& wan);
/// Moves the connection to `wan-0`, until the next restart.
Lines switchToDsl();

/// The second request of adding an entity: `fresh` is what the first one made.
Lines addedEntity(const std::string& wan, const std::string& type, const std::string& fresh);
Lines deletedEntity(const std::string& wan, const std::string& type, const std::string& old);

Lines modemSettings(const std::string& pin, const std::string& puk);
/// @}

} // namespace quorvel::simulator::tests
