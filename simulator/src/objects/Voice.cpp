#include "ObjectKind.h"

#include <algorithm>
#include <optional>

namespace quorvel::simulator
{

namespace
{

const char* const lineList = "AllLineList.";
const char* const lineStatus = "Voip_Status_";

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

std::optional<int> numberIn(const std::string& text)
{
    // Nine digits always fit.
    if (text.empty() || text.size() > 9 ||
        text.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    return std::stoi(text);
}

std::vector<std::string> split(const std::string& text)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (auto colon = text.find(':'); colon != std::string::npos; colon = text.find(':', start)) {
        parts.push_back(text.substr(start, colon - start));
        start = colon + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

// `SIP:5551000@example.net` is 5551000.
std::string userPart(const std::string& uri)
{
    const std::size_t start = startsWith(uri, "SIP:") ? 4 : 0;
    return uri.substr(start, uri.find('@', start) - start);
}

// The run-time values whose keys begin with `start`, without that start.
Values statusBelow(const Work& work, const std::string& instance, const std::string& start)
{
    Values found;
    const Objects& objects = work.state.status.read();
    const auto object = objects.find(instance);
    if (object == objects.end())
        return found;
    for (auto value = object->second.lower_bound(start);
         value != object->second.end() && startsWith(value->first, start); ++value)
        found[value->first.substr(start.size())] = value->second;
    return found;
}

// The calls of one line stand among those of the others: `call0.line`, `call1.line` and so on.
std::vector<std::string> callsOf(const Work& work, const std::string& instance,
                                 const std::string& line)
{
    std::vector<std::string> calls;
    for (int i = 0;; ++i) {
        const std::string call = "call" + std::to_string(i) + ".";
        const std::string made = valueIn(work.state.status.read(), instance, call + "line");
        if (made.empty())
            return calls;
        if (made == line)
            calls.push_back(call);
    }
}

// What the gateway says of its lines follows from the accounts that are in effect.
class Line
{
public:
    Line(const Work& work, const Command& command, const std::string& number)
        : values(work.state.running.read()),
          instance(command.instance),
          path("VoiceService.VoiceProfile.Line[" + number + "].")
    {
    }

    std::string sip(const std::string& name) const { return read("SIP." + name); }

    // Older gateways keep the switch among the values of the account.
    bool isInService() const
    {
        const std::string own = read("Enable");
        return valueIn(values, instance, "Enable") == "1" &&
               (own.empty() ? sip("Enable") : own) == "1";
    }

private:
    std::string read(const std::string& name) const
    {
        return valueIn(values, instance, path + name);
    }

    const Objects& values;
    const std::string instance;
    const std::string path;
};

void answerStatus(Work& work, const Command& command)
{
    work.answer(command, "Enable", valueIn(work.state.running.read(), command.instance, "Enable"));
    for (const auto& [number, status] : statusBelow(work, command.instance, lineStatus)) {
        const Line line(work, command, number);
        work.answer(command, lineStatus + number, line.isInService() ? status : "0");
        work.answer(command, "User_Name_" + number, line.sip("AuthUserName"));
        work.answer(command, "Phone_Number_" + number, userPart(line.sip("URI")));
    }
}

// `bounds` are the first and the last call asked for. A page numbers its calls from 0.
void answerCalls(Work& work, const Command& command, const std::vector<std::string>& bounds)
{
    const auto first = numberIn(bounds[1]);
    const auto last = numberIn(bounds[2]);
    if (!first || !last)
        return;
    const auto calls = callsOf(work, command.instance, bounds[3]);
    const int end = std::min(*last + 1, static_cast<int>(calls.size()));
    for (int i = *first; i < end; ++i) {
        const std::string number = std::to_string(i - *first);
        for (const char* field :
             {"time", "destination", "callerid", "duration", "direction", "callType", "status"}) {
            work.answer(command, field + number,
                        valueIn(work.state.status.read(), command.instance,
                                calls[static_cast<std::size_t>(i)] + field));
        }
    }
}

class Voice : public ObjectKind
{
public:
    ErrorCode get(Work& work, const Command& command) const override
    {
        if (command.key + "." != lineList)
            return ObjectKind::get(work, command);
        // Clients tell the kind of a line from its key, which the list's own name would spoil.
        for (const auto& [kind, line] : statusBelow(work, command.instance, lineList))
            work.answer(command, kind, line);
        return ErrorCode::None;
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        const auto parts = split(command.key);
        if (command.key == "status") {
            answerStatus(work, command);
        } else if (parts.size() == 4 && parts[0] == "callhistory") {
            answerCalls(work, command, parts);
        } else if (parts.size() == 2 && parts[0] == "loglength") {
            const auto calls = callsOf(work, command.instance, parts[1]);
            work.answer(command, "numcallentries:", std::to_string(calls.size()));
        } else {
            return ObjectKind::query(work, command);
        }
        return ErrorCode::None;
    }
};

} // namespace

const ObjectKind& voice()
{
    static const Voice kind;
    return kind;
}

} // namespace quorvel::simulator
