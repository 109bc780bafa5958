#include "ObjectKind.h"
#include "Uplink.h"

namespace quorvel::simulator
{

namespace
{

class Route : public ObjectKind
{
public:
    Values live(const State& state, const std::string& instance) const override
    {
        const char* const key = "internet_connection";
        if (!valueIn(state.status.read(), instance, key).empty())
            return {};
        return {{key, defaultGateway(state).empty() ? "0" : "1"}};
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        if (command.key != "def_gw_status")
            return ObjectKind::query(work, command);
        // One entry per candidate, all under the same key. At most one carries the route.
        const std::string carrier = defaultGateway(work.state);
        for (const std::string& candidate : work.state.instancesOf("wan")) {
            const char* state = candidate == carrier ? ":1" : ":0";
            work.answer(command, command.key, candidate + state);
            work.reply.back().repeats = true;
        }
        return ErrorCode::None;
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        if (command.key != "apply_default_gw")
            return ObjectKind::command(work, command);
        applyInstance(work.state, command.instance);
        return ErrorCode::None;
    }
};

} // namespace

const ObjectKind& route()
{
    static const Route kind;
    return kind;
}

} // namespace quorvel::simulator
