#include "internet/ConnectionCommands.h"
#include "internet/InternetKeys.h"

namespace quorvel
{

using namespace wire;

namespace
{

/// A PPP entity makes any connection a PPPoE connection, but for two types.
QString normalisedType(const Connection& connection)
{
    if (connection.type == dhcp || connection.type == russianPppoe ||
        connection.entity(pppox).isEmpty())
        return connection.type;
    return pppoe;
}

CommandList vlanBlock(const Connection& connection)
{
    // Written also where there is no VLAN: then to an instance without a name.
    const QString vlan = connection.value(connection.wan, wanVlan);
    return writeAndApply(vlan, {connection.own(vlan, vlanid)});
}

CommandList pppoeCommands(const Connection& connection, const QString& pppox)
{
    return writeAndApply(pppox, pppValues(connection, pppox, QStringLiteral("1492")));
}

CommandList tunnelCommands(const Connection& connection, const QString& tunnel)
{
    // The tunnel runs over the WAN's DHCP client, which is only applied, be it named or not.
    return writeTransaction(tunnel, {connection.own(tunnel, enabled),
                                     connection.setting(tunnel, wire::type),
                                     connection.setting(tunnel, tunnelServer),
                                     connection.setting(tunnel, tunnelUsername),
                                     connection.setting(tunnel, tunnelPassword),
                                     {defaultroute, QStringLiteral("1")}})
           << save() << apply(tunnel) << apply(connection.entity(dhcpc))
           << optionalStaticBlock(connection);
}

} // namespace

CommandList commandsOverEthernet(Connection connection)
{
    connection.type = normalisedType(connection);
    return linkTypeBlock(connection)
           << vlanBlock(connection)
           << branchCommands(connection, {{pppoe, pppox, &pppoeCommands},
                                          {russianPppoe, pppox, &russianPppoeCommands},
                                          {vpn, vpn, &tunnelCommands},
                                          {l2tp, l2tp, &tunnelCommands},
                                          {staticAddress, staticAddress, &staticBlock}})
           << save();
}

} // namespace quorvel
