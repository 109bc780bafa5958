#include "internet/ConnectionCommands.h"

#include "internet/ConnectionKeys.h"
#include "internet/InternetKeys.h"

namespace quorvel
{

using namespace wire;

Connection::Connection(const QString& wan, const QString& dsl, const ParamMap& entries)
    : wan(wan), dsl(dsl), type(entries.value(replyKey(wan, wire::type))), entries(entries)
{
}

QString Connection::entity(const QString& kind) const
{
    return entries.value(entityKey(wan, kind));
}

QString Connection::value(const QString& instance, const QString& key,
                          const QString& otherwise) const
{
    return entries.value(replyKey(instance, key), otherwise);
}

std::pair<QString, QString> Connection::own(const QString& instance, const QString& key) const
{
    return {key, value(instance, key)};
}

std::pair<QString, QString> Connection::setting(const QString& instance, const QString& key) const
{
    return {key, entries.value(settingKey(instance, key))};
}

CommandList branchCommands(const Connection& connection,
                           std::initializer_list<LinkTypeBranch> branches)
{
    for (const LinkTypeBranch& branch : branches) {
        const QString instance = connection.entity(branch.entity);
        if (connection.type == branch.type && !instance.isEmpty())
            return branch.commands(connection, instance);
    }
    return {};
}

CommandList linkTypeBlock(const Connection& connection)
{
    // Which of the two keys counts depends on the gateway's WAN model.
    return writeAndApply(connection.wan,
                         {{wire::type, connection.type}, {linktype, connection.type}});
}

Values pppValues(const Connection& connection, const QString& pppox, const QString& mtu)
{
    return {{wire::type, connection.type},
            connection.setting(pppox, username),
            connection.setting(pppox, password),
            {wire::mtu, mtu}};
}

CommandList russianPppoeCommands(const Connection& connection, const QString& pppox)
{
    return writeAndApply(pppox,
                         {connection.own(pppox, enabled), connection.setting(pppox, wire::type),
                          connection.setting(pppox, username), connection.setting(pppox, password)})
           << optionalStaticBlock(connection);
}

CommandList staticBlock(const Connection& connection, const QString& instance)
{
    return writeAndApply(instance, {connection.setting(instance, staticIp),
                                    connection.setting(instance, staticMask),
                                    connection.setting(instance, staticGateway),
                                    connection.setting(instance, staticDns1),
                                    connection.setting(instance, staticDns2)});
}

CommandList optionalStaticBlock(const Connection& connection)
{
    const QString instance = connection.entity(staticAddress);
    return instance.isEmpty() ? CommandList() : staticBlock(connection, instance);
}

} // namespace quorvel
