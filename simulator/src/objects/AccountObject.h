#pragma once

#include "ObjectKind.h"

namespace quorvel::simulator
{

/// An object that keeps a password, which can be written and checked, but not read.
class AccountObject : public ObjectKind
{
public:
    ErrorCode get(Work& work, const Command& command) const override
    {
        return isSecret(command) ? ErrorCode::None : ObjectKind::get(work, command);
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        return isSecret(command) ? ErrorCode::None : ObjectKind::query(work, command);
    }

private:
    static bool isSecret(const Command& command) { return command.key == "password"; }
};

} // namespace quorvel::simulator
