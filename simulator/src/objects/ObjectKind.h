#pragma once

#include "../WebApp.h"

namespace quorvel::simulator
{

/// How the objects of a manager behave. This base serves every object that does nothing but hold
/// values; a manager with a behaviour of its own derives from it and stands in the table of
/// ObjectKind.cpp. The instance of a command exists when an operation here is called.
class ObjectKind
{
public:
    virtual ~ObjectKind() = default;

    /// Reads the configuration, run-time values where that has none. A key stands for itself and
    /// for all keys below it: `entities` reads `entities.pppox` as well. A key that the object
    /// hasn't got is no error and has no entry in the reply.
    virtual ErrorCode get(Work& work, const Command& command) const;

    /// Reads run-time values, what is in effect where there is none; otherwise as `get`.
    virtual ErrorCode query(Work& work, const Command& command) const;

    /// Does `apply`; refuses every other command.
    virtual ErrorCode command(Work& work, const Command& command) const;

    /// Takes the sets of a transaction into the configuration, one `change` after the other.
    ErrorCode commit(Work& work, const std::string& instance, const Changes& changes) const;

protected:
    /// Takes over one set: the key gets the value, also if the object hadn't got it. Real
    /// gateways swallow keys that they don't know, and clients of several generations rely on
    /// that.
    virtual ErrorCode change(Work& work, const std::string& instance, const std::string& key,
                             const std::string& value) const;
};

/// Takes the configuration of one object into effect.
void applyInstance(State& state, const std::string& instance);

/// The behaviour of an instance's manager.
const ObjectKind& kindOf(const std::string& instance);

/// @name The managers with a behaviour of their own
/// @{
const ObjectKind& configManager();
const ObjectKind& deviceManager();
const ObjectKind& dhcpServer();
const ObjectKind& route();
const ObjectKind& systemManager();
const ObjectKind& usbHost();
const ObjectKind& voice();
const ObjectKind& wan();
const ObjectKind& webInterface();
/// @}

} // namespace quorvel::simulator
