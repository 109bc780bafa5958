#include "ObjectKind.h"

#include <unordered_map>

namespace quorvel::simulator
{

namespace
{

// Adds the key and those below it; false if there are none of them.
bool answerFrom(Work& work, const Values& values, const Command& command)
{
    if (command.key.empty())
        return false;
    const std::size_t before = work.reply.size();
    if (const auto value = values.find(command.key); value != values.end())
        work.answer(command, value->first, value->second);
    const std::string below = command.key + ".";
    for (auto value = values.lower_bound(below);
         value != values.end() && value->first.compare(0, below.size(), below) == 0; ++value)
        work.answer(command, value->first, value->second);
    return work.reply.size() > before;
}

bool answerFrom(Work& work, const Objects& objects, const Command& command)
{
    const auto object = objects.find(command.instance);
    return object != objects.end() && answerFrom(work, object->second, command);
}

bool answerRunTime(Work& work, const ObjectKind& kind, const Command& command)
{
    return answerFrom(work, kind.live(work.state, command.instance), command) ||
           answerFrom(work, work.state.status.read(), command);
}

} // namespace

Values ObjectKind::live(const State& /*state*/, const std::string& /*instance*/) const
{
    return {};
}

ErrorCode ObjectKind::get(Work& work, const Command& command) const
{
    if (!answerFrom(work, work.state.configuration.read(), command))
        answerRunTime(work, *this, command);
    return ErrorCode::None;
}

ErrorCode ObjectKind::query(Work& work, const Command& command) const
{
    if (!answerRunTime(work, *this, command))
        answerFrom(work, work.state.running.read(), command);
    return ErrorCode::None;
}

ErrorCode ObjectKind::command(Work& work, const Command& command) const
{
    if (command.key != "apply")
        return ErrorCode::UnknownCommand;
    applyInstance(work.state, command.instance);
    return ErrorCode::None;
}

ErrorCode ObjectKind::commit(Work& work, const std::string& instance, const Changes& changes) const
{
    for (const auto& [key, value] : changes) {
        if (const ErrorCode error = change(work, instance, key, value); error != ErrorCode::None)
            return error;
    }
    return ErrorCode::None;
}

ErrorCode ObjectKind::change(Work& work, const std::string& instance, const std::string& key,
                             const std::string& value) const
{
    work.state.configuration.write()[instance][key] = value;
    return ErrorCode::None;
}

ErrorCode ObjectKind::readNumbered(Work& work, const Command& command, const std::string& stem,
                                   Read read)
{
    static const ObjectKind plain;
    for (int i = 0;; ++i) {
        const std::size_t before = work.reply.size();
        Command one = command;
        one.key = stem + std::to_string(i);
        (plain.*read)(work, one);
        if (work.reply.size() == before)
            return ErrorCode::None;
    }
}

void applyInstance(State& state, const std::string& instance)
{
    state.running.write()[instance] = state.configuration.read().at(instance);
}

std::string runTimeValue(const State& state, const std::string& instance, const std::string& key)
{
    const Values live = kindOf(instance).live(state, instance);
    const auto value = live.find(key);
    return value == live.end() ? valueIn(state.status.read(), instance, key) : value->second;
}

const ObjectKind& kindOf(const std::string& instance)
{
    static const ObjectKind plain;
    static const std::unordered_map<std::string, const ObjectKind*> kinds{
        {"cfgmgr", &configManager()},    {"devmgr", &deviceManager()},
        {"dhcpc", &dhcpClient()},        {"dhcps", &dhcpServer()},
        {"pppox", &pppClient()},         {"route", &route()},
        {"serial", &settingsObject()},   {"static", &settingsObject()},
        {"sysmgr", &systemManager()},    {"wan", &wan()},
        {"usbhost_mngr", &usbHost()},    {"voice", &voice()},
        {"webui", &webInterface()},      {"wireless", &newerRadio()},
        {"wireless_ap", &accessPoint()}, {"wireless_core", &olderRadio()},
    };
    const auto kind = kinds.find(managerOf(instance));
    return kind == kinds.end() ? plain : *kind->second;
}

} // namespace quorvel::simulator
