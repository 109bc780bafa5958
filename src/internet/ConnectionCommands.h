#pragma once

#include "protocol/CommandList.h"

#include <quorvel/ParamMap.h>

#include <QString>
#include <initializer_list>
#include <utility>

namespace quorvel
{

/// A connection to be written, read from the entries in which the facade hands it over. Refers to
/// `entries`, so it lives no longer than they do.
class Connection
{
public:
    /// `dsl` is empty over Ethernet.
    Connection(const QString& wan, const QString& dsl, const ParamMap& entries);

    /// The name of the WAN's entity of a kind; empty if there is none.
    QString entity(const QString& kind) const;
    /// An entry of an instance.
    QString value(const QString& instance, const QString& key,
                  const QString& otherwise = QString()) const;
    /// A key of an instance and the value that it is to get.
    std::pair<QString, QString> own(const QString& instance, const QString& key) const;
    /// The same for a key whose value stands among the instance's settings.
    std::pair<QString, QString> setting(const QString& instance, const QString& key) const;

    QString wan;
    QString dsl;
    QString type;

private:
    const ParamMap& entries;
};

/// What a link type writes beside itself if the entity that it is about is named.
struct LinkTypeBranch {
    QString type;
    QString entity;
    CommandList (*commands)(const Connection& connection, const QString& instance);
};

/// The commands of the first branch that fits; none if none does.
CommandList branchCommands(const Connection& connection,
                           std::initializer_list<LinkTypeBranch> branches);

// Blocks that both links write.

/// Makes the connection's type the WAN's.
CommandList linkTypeBlock(const Connection& connection);
/// What is written to a PPP entity of type PPPoE or PPPoA.
wire::Values pppValues(const Connection& connection, const QString& pppox, const QString& mtu);
/// The "russian_pppoe" branch.
CommandList russianPppoeCommands(const Connection& connection, const QString& pppox);
/// The addresses of a static entity.
CommandList staticBlock(const Connection& connection, const QString& instance);
/// The same of the connection's static entity; nothing if it has none.
CommandList optionalStaticBlock(const Connection& connection);

/// All commands that write a connection over DSL.
CommandList commandsOverDsl(const Connection& connection);
/// All commands that write a connection over Ethernet, whose type may turn into another.
CommandList commandsOverEthernet(Connection connection);

} // namespace quorvel
