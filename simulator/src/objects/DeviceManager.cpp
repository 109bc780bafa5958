#include "ObjectKind.h"

namespace quorvel::simulator
{

namespace
{

std::string numbered(std::string pattern, std::size_t number)
{
    if (const auto place = pattern.find("%1"); place != std::string::npos)
        pattern.replace(place, 2, std::to_string(number));
    return pattern;
}

std::string listKey(const Scenario& scenario, const std::string& manager, std::size_t number)
{
    const auto form = scenario.listKeys.find(manager);
    return numbered(form == scenario.listKeys.end() ? manager + ".inst%1" : form->second, number);
}

std::string freeInstance(const State& state, const std::string& manager)
{
    for (int number = 0;; ++number) {
        const std::string instance = manager + "-" + std::to_string(number);
        if (!state.exists(instance))
            return instance;
    }
}

void forget(State& state, const std::string& instance)
{
    for (Cow<Objects>* copy : {&state.configuration, &state.running, &state.status})
        copy->write().erase(instance);
    state.fresh.erase(instance);
    for (auto& [session, open] : state.transactions)
        open.erase(instance);
}

class DeviceManager : public ObjectKind
{
public:
    ErrorCode query(Work& work, const Command& command) const override
    {
        const bool managers = command.key == "mngr_list";
        if (!managers && command.key != "inst_list")
            return ObjectKind::query(work, command);
        const auto names =
            managers ? work.scenario.managers : work.state.instancesOf(command.value);
        for (std::size_t i = 0; i < names.size(); ++i) {
            work.answer(command,
                        managers ? numbered("mngr%1", i) : listKey(work.scenario, command.value, i),
                        names[i]);
        }
        return ErrorCode::None;
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        if (command.key == "create_inst")
            return create(work, command);
        const bool starts = command.key == "start_inst";
        const bool stops = command.key == "stop_inst";
        if (!starts && !stops && command.key != "delete_inst")
            return ErrorCode::UnknownCommand;
        // A client that found no entity to remove sends an empty name.
        if (command.value.empty())
            return ErrorCode::None;
        if (!work.state.exists(command.value))
            return ErrorCode::UnknownInstance;
        if (starts)
            applyInstance(work.state, command.value);
        else if (stops)
            work.state.running.write().erase(command.value);
        else
            forget(work.state, command.value);
        return ErrorCode::None;
    }

private:
    static ErrorCode create(Work& work, const Command& command)
    {
        const auto model = work.scenario.templates.find(command.value);
        if (model == work.scenario.templates.end())
            return ErrorCode::UnknownManager;
        const std::string instance = freeInstance(work.state, command.value);
        work.state.configuration.write()[instance] = model->second;
        work.state.fresh.try_emplace(instance);
        work.answer(command, "create_inst." + command.value, instance);
        return ErrorCode::None;
    }
};

} // namespace

const ObjectKind& deviceManager()
{
    static const DeviceManager kind;
    return kind;
}

} // namespace quorvel::simulator
