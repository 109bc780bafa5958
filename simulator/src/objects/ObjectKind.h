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

    /// The run-time values that follow from other things than the object itself, as whether a
    /// connection is up; they stand before those that the object keeps. Must hold all keys below
    /// a key, or none.
    virtual Values live(const State& state, const std::string& instance) const;

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
    using Read = ErrorCode (ObjectKind::*)(Work&, const Command&) const;

    /// Reads `<stem>0`, `<stem>1` and so on, up to the first that isn't there.
    static ErrorCode readNumbered(Work& work, const Command& command, const std::string& stem,
                                  Read read);

    /// Takes over one set: the key gets the value, also if the object hadn't got it. Real
    /// gateways swallow keys that they don't know, and clients of several generations rely on
    /// that.
    virtual ErrorCode change(Work& work, const std::string& instance, const std::string& key,
                             const std::string& value) const;
};

/// Takes the configuration of one object into effect.
void applyInstance(State& state, const std::string& instance);

/// A run-time value, whether it is kept or follows from something else; empty if there is none.
std::string runTimeValue(const State& state, const std::string& instance, const std::string& key);

/// The behaviour of an instance's manager.
const ObjectKind& kindOf(const std::string& instance);

/// @name The managers with a behaviour of their own
/// @{
const ObjectKind& accessPoint();
const ObjectKind& configManager();
const ObjectKind& deviceManager();
const ObjectKind& dhcpClient();
const ObjectKind& dhcpServer();
const ObjectKind& newerRadio();
const ObjectKind& olderRadio();
const ObjectKind& pppClient();
const ObjectKind& route();
const ObjectKind& settingsObject();
const ObjectKind& systemManager();
const ObjectKind& usbHost();
const ObjectKind& voice();
const ObjectKind& wan();
const ObjectKind& webInterface();
/// @}

} // namespace quorvel::simulator
