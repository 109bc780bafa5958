#pragma once

#include "State.h"

#include <string>
#include <vector>

namespace quorvel::simulator
{

/// What the web application reports in `webapp.error`. 19 is left out: clients take it for no
/// error.
enum class ErrorCode {
    None = 0,
    UnknownSession = 1,
    Malformed = 2,
    WrongDialect = 3,
    UnknownVerb = 4,
    UnknownInstance = 5,
    UnknownCommand = 6,
    NoTransaction = 7,
    TransactionOpen = 8,
    BadValue = 9,
    UnknownManager = 10,
    Failed = 11
};

/// One element of a request.
struct Command {
    std::string verb;
    std::string instance;
    std::string key;
    std::string value;
};

struct Request {
    std::string version;
    std::vector<Command> commands;
};

/// Reads the XML of a request. `None` on success, otherwise what is wrong with it.
ErrorCode readRequest(const std::string& xml, Request& request);

/// One value of a reply.
struct Entry {
    std::string instance;
    std::string key;
    std::string value;
    /// Whether the key stands for several values, each of which counts.
    bool repeats = false;
};

/// The XML of a reply: one element per object in dialect 1.0.0, one per value in 1.0.1. In 1.0.0
/// a value whose key can't be an element's name is left out, and those of a key that repeats have
/// the form of 1.0.1, the only one that clients take several from.
std::string writeReply(const std::string& dialect, const std::vector<Entry>& entries,
                       ErrorCode error);

/// The text with the characters that are special in XML escaped; those that XML can't carry are
/// dropped.
std::string escaped(const std::string& text);

/// What a request leads to besides a reply and a changed state.
enum class Aftermath { None, Restart, FactoryReset };

/// A request on its way through the objects.
struct Work {
    const Scenario& scenario;
    State& state;
    /// The session that asks, and all that live.
    const std::string& session;
    const std::vector<std::string>& sessions;
    std::vector<Entry> reply = {};
    std::vector<std::string> endedSessions = {};
    Aftermath aftermath = Aftermath::None;

    void answer(const Command& command, const std::string& key, const std::string& value)
    {
        reply.push_back({command.instance, key, value});
    }
};

/// Runs one command. Whatever it returns but `None` means that the whole request is refused.
ErrorCode runCommand(Work& work, const Command& command);

} // namespace quorvel::simulator
