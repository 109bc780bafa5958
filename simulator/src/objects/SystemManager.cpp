#include "AccountObject.h"

namespace quorvel::simulator
{

namespace
{

class SystemManager : public AccountObject
{
public:
    ErrorCode query(Work& work, const Command& command) const override
    {
        if (command.key != "getenv")
            return AccountObject::query(work, command);
        const auto variable = work.scenario.environment.find(command.value);
        if (variable != work.scenario.environment.end())
            work.answer(command, variable->first, variable->second);
        return ErrorCode::None;
    }

    ErrorCode command(Work& work, const Command& command) const override
    {
        if (command.key == "reboot") {
            work.aftermath = Aftermath::Restart;
            return ErrorCode::None;
        }
        if (command.key != "apply_user_info")
            return AccountObject::command(work, command);
        for (const char* holder : {"webui-0", "sysmgr-0"})
            applyInstance(work.state, holder);
        return ErrorCode::None;
    }
};

} // namespace

const ObjectKind& systemManager()
{
    static const SystemManager kind;
    return kind;
}

} // namespace quorvel::simulator
