#include "ObjectKind.h"

#include <array>

namespace quorvel::simulator
{

namespace
{

// The changes of an open transaction: the session's own, or those of an object just created.
Changes* openTransaction(Work& work, const std::string& instance)
{
    auto& own = work.state.transactions[work.session];
    if (const auto found = own.find(instance); found != own.end())
        return &found->second;
    const auto fresh = work.state.fresh.find(instance);
    return fresh == work.state.fresh.end() ? nullptr : &fresh->second;
}

ErrorCode begin(Work& work, const std::string& instance)
{
    const bool opened = work.state.transactions[work.session].try_emplace(instance).second;
    return opened ? ErrorCode::None : ErrorCode::TransactionOpen;
}

ErrorCode commit(Work& work, const std::string& instance)
{
    Changes* changes = openTransaction(work, instance);
    if (!changes)
        return ErrorCode::NoTransaction;
    const Changes taken = std::exchange(*changes, {});
    return kindOf(instance).commit(work, instance, taken);
}

ErrorCode end(Work& work, const std::string& instance)
{
    const auto ended =
        work.state.transactions[work.session].erase(instance) + work.state.fresh.erase(instance);
    return ended > 0 ? ErrorCode::None : ErrorCode::NoTransaction;
}

struct TransactionStep {
    const char* key;
    ErrorCode (*run)(Work& work, const std::string& instance);
};

constexpr std::array steps{TransactionStep{"begin_transaction", begin},
                           TransactionStep{"commit", commit},
                           TransactionStep{"end_transaction", end}};

class ConfigManager : public ObjectKind
{
public:
    ErrorCode command(Work& work, const Command& command) const override
    {
        for (const TransactionStep& step : steps) {
            if (command.key == step.key)
                return onInstance(work, command, step);
        }
        if (command.key == "save")
            work.state.stored = work.state.configuration;
        else if (command.key == "apply")
            work.state.running = work.state.configuration;
        else if (command.key == "factory_default")
            work.aftermath = Aftermath::FactoryReset;
        else
            return ErrorCode::UnknownCommand;
        return ErrorCode::None;
    }

private:
    // Clients send the steps of a write also for an entity that the connection hasn't got, with
    // an empty name.
    static ErrorCode onInstance(Work& work, const Command& command, const TransactionStep& step)
    {
        if (command.value.empty())
            return ErrorCode::None;
        if (!work.state.exists(command.value))
            return ErrorCode::UnknownInstance;
        return step.run(work, command.value);
    }
};

ErrorCode set(Work& work, const Command& command)
{
    Changes* changes = openTransaction(work, command.instance);
    if (!changes)
        return ErrorCode::NoTransaction;
    changes->emplace_back(command.key, command.value);
    return ErrorCode::None;
}

} // namespace

const ObjectKind& configManager()
{
    static const ConfigManager kind;
    return kind;
}

ErrorCode runCommand(Work& work, const Command& command)
{
    const bool isGet = command.verb == "get";
    const bool isSet = command.verb == "set";
    const bool isQuery = command.verb == "query";
    if (!isGet && !isSet && !isQuery && command.verb != "command")
        return ErrorCode::UnknownVerb;
    if (command.instance.empty())
        return ErrorCode::None;
    if (!work.state.exists(command.instance))
        return ErrorCode::UnknownInstance;
    const ObjectKind& kind = kindOf(command.instance);
    if (isSet)
        return set(work, command);
    if (isGet)
        return kind.get(work, command);
    return isQuery ? kind.query(work, command) : kind.command(work, command);
}

} // namespace quorvel::simulator
