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
        return command.key == "clients" ? numbered(work, command, "client", &ObjectKind::get)
                                        : ObjectKind::get(work, command);
    }

    ErrorCode query(Work& work, const Command& command) const override
    {
        return command.key == "leases" ? numbered(work, command, "lease", &ObjectKind::query)
                                       : ObjectKind::query(work, command);
    }

private:
    using Read = ErrorCode (ObjectKind::*)(Work&, const Command&) const;

    static ErrorCode numbered(Work& work, const Command& command, const std::string& stem,
                              Read read)
    {
        static const ObjectKind plain;
        for (int i = 0;; ++i) {
            const std::size_t before = work.reply.size();
            Command one = command;
            one.key = stem + std::to_string(i);
            (plain.*read)(work, one);
            if (work.reply.size() == before)
                return ErrorCode::None;
        }
    }
};

} // namespace

const ObjectKind& dhcpServer()
{
    static const DhcpServer kind;
    return kind;
}

} // namespace quorvel::simulator
