#include "Wan.h"

#include <algorithm>

namespace quorvel::simulator
{

namespace
{

const char* const entityLevel = "entities.";

bool isEnabled(const State& state, const std::string& wan)
{
    return valueIn(state.running.read(), wan, "enabled") == "1";
}

class Wan : public ObjectKind
{
public:
    ErrorCode query(Work& work, const Command& command) const override
    {
        const bool connection = command.key == "isconnected" || command.key == "localip";
        if (!connection || isEnabled(work.state, command.instance))
            return ObjectKind::query(work, command);
        work.answer(command, command.key, command.key == "isconnected" ? "0" : "");
        return ErrorCode::None;
    }

protected:
    ErrorCode change(Work& work, const std::string& instance, const std::string& key,
                     const std::string& value) const override
    {
        Values& values = work.state.configuration.write()[instance];
        if (key == "add_entity" || key == "delete_entity")
            return changeEntity(values, key == "add_entity", value);
        if (key == "addIface" || key == "delIface") {
            changeInterface(values["ifaces"], key == "addIface", value);
            return ErrorCode::None;
        }
        return ObjectKind::change(work, instance, key, value);
    }

private:
    // `value` is a type and an instance, as `pppox:pppox-1`. The instance may be empty or gone by
    // the time that an entity is taken away.
    static ErrorCode changeEntity(Values& values, bool adds, const std::string& value)
    {
        const auto colon = value.find(':');
        if (colon == 0 || colon == std::string::npos)
            return ErrorCode::BadValue;
        const std::string key = entityLevel + value.substr(0, colon);
        const std::string entity = value.substr(colon + 1);
        if (adds)
            values[key] = entity;
        else if (const auto found = values.find(key);
                 found != values.end() && found->second == entity)
            values.erase(found);
        return ErrorCode::None;
    }

    // The interfaces stand in one value, separated by commas.
    static void changeInterface(std::string& list, bool adds, const std::string& interface)
    {
        const std::string fenced = "," + list + ",";
        const auto place = fenced.find("," + interface + ",");
        if (adds && place == std::string::npos)
            list += (list.empty() ? "" : ",") + interface;
        else if (!adds && place != std::string::npos)
            list.erase(place == 0 ? 0 : place - 1, std::min(interface.size() + 1, list.size()));
    }
};

} // namespace

bool isConnected(const State& state, const std::string& wan)
{
    return isEnabled(state, wan) && valueIn(state.status.read(), wan, "isconnected") == "1";
}

const ObjectKind& wan()
{
    static const Wan kind;
    return kind;
}

} // namespace quorvel::simulator
