#include "ObjectKind.h"

#include <unordered_map>

namespace quorvel::simulator
{

namespace
{

// Adds the key and those below it; false if the object has none of them.
bool answerFrom(Work& work, const Objects& objects, const Command& command)
{
    const auto object = objects.find(command.instance);
    if (object == objects.end() || command.key.empty())
        return false;
    const std::size_t before = work.reply.size();
    const Values& values = object->second;
    if (const auto value = values.find(command.key); value != values.end())
        work.answer(command, value->first, value->second);
    const std::string below = command.key + ".";
    for (auto value = values.lower_bound(below);
         value != values.end() && value->first.compare(0, below.size(), below) == 0; ++value)
        work.answer(command, value->first, value->second);
    return work.reply.size() > before;
}

} // namespace

ErrorCode ObjectKind::get(Work& work, const Command& command) const
{
    if (!answerFrom(work, work.state.configuration.read(), command))
        answerFrom(work, work.state.status.read(), command);
    return ErrorCode::None;
}

ErrorCode ObjectKind::query(Work& work, const Command& command) const
{
    if (!answerFrom(work, work.state.status.read(), command))
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

void applyInstance(State& state, const std::string& instance)
{
    state.running.write()[instance] = state.configuration.read().at(instance);
}

const ObjectKind& kindOf(const std::string& instance)
{
    static const ObjectKind plain;
    static const std::unordered_map<std::string, const ObjectKind*> kinds{
        {"cfgmgr", &configManager()}, {"devmgr", &deviceManager()}, {"dhcps", &dhcpServer()},
        {"route", &route()},          {"sysmgr", &systemManager()}, {"wan", &wan()},
        {"webui", &webInterface()},   {"usbhost_mngr", &usbHost()}, {"voice", &voice()},
    };
    const auto kind = kinds.find(managerOf(instance));
    return kind == kinds.end() ? plain : *kind->second;
}

} // namespace quorvel::simulator
