#include "Wan.h"

namespace quorvel::simulator
{

namespace
{

class Route : public ObjectKind
{
public:
    ErrorCode query(Work& work, const Command& command) const override
    {
        if (command.key != "def_gw_status")
            return ObjectKind::query(work, command);
        // One entry per candidate, all under the same key.
        for (const std::string& candidate : work.state.instancesOf("wan")) {
            const char* state = isConnected(work.state, candidate) ? ":1" : ":0";
            work.answer(command, command.key, candidate + state);
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
