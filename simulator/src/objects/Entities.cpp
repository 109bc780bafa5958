#include "ObjectKind.h"
#include "Uplink.h"

#include <array>

namespace quorvel::simulator
{

namespace
{

// An object whose values are written one by one and read together: `username` is read as
// `settings.username`, by a `get` of `settings`.
class SettingsObject : public ObjectKind
{
public:
    ErrorCode get(Work& work, const Command& command) const override
    {
        if (command.key != "settings")
            return ObjectKind::get(work, command);
        for (const auto& [key, value] : work.state.configuration.read().at(command.instance)) {
            // Whether the object is switched on is no setting of it.
            if (key != "enabled")
                work.answer(command, "settings." + key, value);
        }
        return ErrorCode::None;
    }
};

class PppClient : public SettingsObject
{
public:
    Values live(const State& state, const std::string& instance) const override
    {
        constexpr std::array keys{"interface",    "localIP",   "remoteIP", "primaryDNS",
                                  "secondaryDNS", "sessionId", "nasDevice"};
        const bool up = isInUse(state, instance);
        const std::string told = valueIn(state.status.read(), instance, "state.status");
        Values values{{"state.status", !told.empty() ? told : up ? "connected" : "disconnected"}};
        for (const char* name : keys) {
            const std::string key = std::string("state.") + name;
            values[key] = up ? valueIn(state.status.read(), instance, key) : "";
        }
        if (up)
            values["state.localIP"] = providedAddress(state, instance, "state.localIP");
        return values;
    }
};

class DhcpClient : public ObjectKind
{
public:
    Values live(const State& state, const std::string& instance) const override
    {
        if (!isInUse(state, instance))
            return {{"localip", ""}, {"netmask", ""}};
        const std::string mask = valueIn(state.status.read(), instance, "netmask");
        return {{"localip", providedAddress(state, instance, "localip")},
                {"netmask", mask.empty() ? "255.255.255.0" : mask}};
    }
};

} // namespace

const ObjectKind& settingsObject()
{
    static const SettingsObject kind;
    return kind;
}

const ObjectKind& pppClient()
{
    static const PppClient kind;
    return kind;
}

const ObjectKind& dhcpClient()
{
    static const DhcpClient kind;
    return kind;
}

} // namespace quorvel::simulator
