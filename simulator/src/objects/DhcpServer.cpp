#include "ObjectKind.h"

namespace quorvel::simulator
{

namespace
{

// `client0.mac`, `client1.mac` and so on are what `clients` reads, `lease0.mac` what `leases` does.
class DhcpServer : public ObjectKind
{
public:
    ErrorCode get(Work& work, const Command& command) const override
    {
        return command.key == "clients" ? readNumbered(work, command, "client", &ObjectKind::get)
                                        : ObjectKind::get(work, command);
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        return command.key == "leases" ? readNumbered(work, command, "lease", &ObjectKind::query)
                                       : ObjectKind::query(work, command);
    }
};

} // namespace

const ObjectKind& dhcpServer()
{
    static const DhcpServer kind;
    return kind;
}

} // namespace quorvel::simulator
