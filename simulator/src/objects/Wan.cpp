#include "Modem.h"
#include "ObjectKind.h"
#include "Uplink.h"

#include <algorithm>

namespace quorvel::simulator
{

namespace
{

const char* const entityLevel = "entities.";
const char* const modeList = "prefmodelist";

class Wan : public ObjectKind
{
public:
    Values live(const State& state, const std::string& instance) const override
    {
        Values values;
        if (isModem(state, instance))
            values = networkOf(state, instance);
        const Uplink uplink = uplinkOf(state, instance);
        const std::string told = valueIn(state.status.read(), instance, "internet_connection");
        const bool internet = told.empty() ? reachesInternet(state, instance) : told == "1";
        values["isconnected"] = uplink.connected ? "1" : "0";
        values["localip"] = uplink.address;
        values["internet_connection"] = uplink.connected && internet ? "1" : "0";
        return values;
    }

    ErrorCode get(Work& work, const Command& command) const override
    {
        if (command.key == modeList)
            return readNumbered(work, command, modeList, &ObjectKind::get);
        // Clients ask every WAN for its `type` and take it from whichever key comes back.
        Command asked = command;
        if (command.key == "type" && isNewWan(work.state, command.instance))
            asked.key = "linktype";
        return ObjectKind::get(work, asked);
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        if (command.key != "SupportedLinkTypes")
            return ObjectKind::query(work, command);
        const std::string stem = command.key + "." + command.value;
        for (int i = 0;; ++i) {
            const std::string number = std::to_string(i);
            const std::string type =
                valueIn(work.state.status.read(), command.instance, stem + number);
            if (type.empty())
                return ErrorCode::None;
            work.answer(command, "linktype" + number, type);
        }
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        const ErrorCode error = ObjectKind::command(work, command);
        if (error == ErrorCode::None && isModem(work.state, command.instance))
            tryPin(work.state, command.instance);
        return error;
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
        // Clients that don't know which kind of WAN this is write the type under both names.
        if (key == (isNewWan(work.state, instance) ? "type" : "linktype"))
            return ErrorCode::None;
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

const ObjectKind& wan()
{
    static const Wan kind;
    return kind;
}

} // namespace quorvel::simulator
