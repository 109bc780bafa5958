#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvel::simulator
{

/// One object's keys and values.
using Values = std::map<std::string, std::string>;
/// The objects of a gateway by instance name, as `wan-0`.
using Objects = std::map<std::string, Values>;

/// What a gateway answered to one request, word for word.
struct RecordedReply {
    /// The XML of the request. The same request gets the reply also if it is spelled otherwise.
    std::string request;
    /// The HTTP status; 0 if there was no reply: the connection closes without a byte.
    int status = 200;
    /// The body.
    std::string body;
};

/// What a gateway is before anybody has touched it: its factory settings. Copies are cheap enough
/// to be passed by value.
struct Scenario {
    std::string name;
    std::string description;
    /// "1.0.0" or "1.0.1".
    std::string dialect;
    /// Who may log in. The password is the value of `password` of `webui-0`.
    std::string user;
    /// How many sessions live at once; the oldest makes room. 0 means any number.
    int sessionNumber = 0;
    /// How many requests a session answers before it expires. 0 means any number.
    int sessionRequests = 0;
    /// How long a restart keeps the gateway unreachable, in milliseconds.
    int rebootTime = 0;
    /// What `mngr_list` answers, in this order.
    std::vector<std::string> managers;
    /// The form of the keys with which `inst_list` answers, by manager, `%1` being the number; a
    /// manager without one uses its own name, ".inst" and the number.
    std::map<std::string, std::string> listKeys;
    /// What `getenv` answers.
    Values environment;
    /// The configuration: what `get` reads and transactions change.
    Objects configuration;
    /// Run-time values: what `query` reads besides, not part of the configuration.
    Objects status;
    /// The configuration of an object that `create_inst` has just made, by manager.
    Objects templates;
    /// Requests that the objects don't answer, but get these replies.
    std::vector<RecordedReply> replies;

    /// Reads a scenario by its name, as "modern", or from a file, if the text ends in ".json" or
    /// holds a "/". A name is looked for in the folder named by the environment variable
    /// QUORVEL_SCENARIO_DIR, then in the data folder installed beside the program, then among
    /// those built in. Nothing on failure, with the reason (which file, which key) in `error`.
    static std::optional<Scenario> load(const std::string& nameOrPath,
                                        std::string* error = nullptr);

    /// Reads the scenario that stands in a dump of a gateway: a JSON object that has it under the
    /// key `scenario`, among whatever else.
    static std::optional<Scenario> fromDump(const std::string& path, std::string* error = nullptr);

    /// Reads the text of a scenario file; `origin` is what a message calls it. A base that it names
    /// is looked for as `load` does.
    static std::optional<Scenario> fromJson(const std::string& json, const std::string& origin,
                                            std::string* error = nullptr);

    /// The names that `load` knows, in alphabetical order.
    static std::vector<std::string> names();
};

} // namespace quorvel::simulator
