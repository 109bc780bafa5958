#include "ObjectKind.h"

namespace quorvel::simulator
{

namespace
{

const char* const station = "station";
const char* const stationList = "sta_list";
const char* const capabilities = "wireless_capabilities";

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

Values startingWith(const Objects& objects, const std::string& instance, const std::string& start)
{
    Values found;
    const auto object = objects.find(instance);
    if (object == objects.end())
        return found;
    for (auto value = object->second.lower_bound(start);
         value != object->second.end() && startsWith(value->first, start); ++value)
        found.insert(*value);
    return found;
}

// The devices are in their network as long as its radio is on.
ErrorCode answerStations(Work& work, const Command& command, const std::string& radio)
{
    if (valueIn(work.state.running.read(), radio, "enabled") != "1")
        return ErrorCode::None;
    for (const auto& [key, value] :
         startingWith(work.state.status.read(), command.instance, station))
        work.answer(command, key, value);
    return ErrorCode::None;
}

// Puts an object into effect whose keys from `start` on describe a network. Devices that know the
// network as it was don't find their way into the new one.
void applyNetwork(State& state, const std::string& instance, const std::string& start)
{
    const Values before = startingWith(state.running.read(), instance, start);
    applyInstance(state, instance);
    if (startingWith(state.running.read(), instance, start) == before)
        return;
    for (const auto& [key, value] : startingWith(state.status.read(), instance, station))
        state.status.write()[instance].erase(key);
}

// The older generation's network.
class AccessPoint : public ObjectKind
{
public:
    ErrorCode query(Work& work, const Command& command) const override
    {
        if (command.key != stationList)
            return ObjectKind::query(work, command);
        const auto number = std::to_string(numberOf(command.instance));
        return answerStations(work, command, "wireless_core-" + number);
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        if (command.key != "apply")
            return ObjectKind::command(work, command);
        applyNetwork(work.state, command.instance, {});
        return ErrorCode::None;
    }
};

class Radio : public ObjectKind
{
protected:
    ErrorCode change(Work& work, const std::string& instance, const std::string& key,
                     const std::string& value) const override
    {
        // An order for a new identity in WPS; there is nothing to read of it.
        if (key == "wps_config_uuid_update")
            return ErrorCode::None;
        return ObjectKind::change(work, instance, key, value);
    }
};

class OlderRadio : public Radio
{
public:
    // Clients apply the radio also where they changed nothing but its network.
    ErrorCode command(Work& work, const Command& command) const override
    {
        const ErrorCode error = ObjectKind::command(work, command);
        const auto network = "wireless_ap-" + std::to_string(numberOf(command.instance));
        if (error == ErrorCode::None && work.state.exists(network))
            applyNetwork(work.state, network, {});
        return error;
    }
};

// What the first network's values are called where a request doesn't name the network.
std::string inNetwork(const std::string& key)
{
    static const Values keys{
        {"security_mode", "ap0_security_mode"}, {"ssid", "ap0_ssid"},
        {"wep_auth_type", "ap0_wep_authtype"},  {"wep_key1", "ap0_wep_key1"},
        {"wep_key_index", "ap0_wep_keyindex"},  {"wep_key_type", "ap0_wep_keytype"},
        {"wpa_password", "ap0_wpa_password"}};
    const auto found = keys.find(key);
    return found == keys.end() ? key : found->second;
}

class NewerRadio : public Radio
{
public:
    Values live(const State& state, const std::string& instance) const override
    {
        const std::string document = valueIn(state.status.read(), instance, capabilities);
        // These gateways send one character behind the document.
        return document.empty() ? Values() : Values{{capabilities, document + ";"}};
    }

    ErrorCode get(Work& work, const Command& command) const override
    {
        const std::size_t before = work.reply.size();
        Command asked = command;
        asked.key = inNetwork(command.key);
        const ErrorCode error = ObjectKind::get(work, asked);
        // The answer comes under the name that was asked for.
        if (work.reply.size() > before)
            work.reply[before].key = command.key;
        return error;
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        return command.key == stationList ? answerStations(work, command, command.instance)
                                          : ObjectKind::query(work, command);
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        if (command.key != "apply")
            return ObjectKind::command(work, command);
        applyNetwork(work.state, command.instance, "ap0_");
        return ErrorCode::None;
    }

protected:
    ErrorCode change(Work& work, const std::string& instance, const std::string& key,
                     const std::string& value) const override
    {
        const std::string known = inNetwork(key);
        // Clients that write a WEP key leave empty what these gateways call otherwise.
        if (value.empty() && startsWith(key, "wep_") && key != "wep_key1")
            return ErrorCode::None;
        return Radio::change(work, instance, known, value);
    }
};

} // namespace

const ObjectKind& accessPoint()
{
    static const AccessPoint kind;
    return kind;
}

const ObjectKind& newerRadio()
{
    static const NewerRadio kind;
    return kind;
}

const ObjectKind& olderRadio()
{
    static const OlderRadio kind;
    return kind;
}

} // namespace quorvel::simulator
