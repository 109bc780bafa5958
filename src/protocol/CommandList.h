#pragma once

#include "protocol/RequestFormatter.h"
#include "protocol/Vocabulary.h"

#include <QString>
#include <initializer_list>
#include <utility>
#include <vector>

namespace quorvel
{

/// One row of an operation's command list: a queue operation of the formatter and its arguments.
struct Command {
    void (RequestFormatter::*add)(const QString& inst, const QString& key, const QString& value);
    QString inst;
    QString key;
    QString value;
};

/// What an operation asks of the gateway, in order.
class CommandList
{
public:
    CommandList() = default;
    CommandList(std::initializer_list<Command> rows) : rows(rows) {}

    CommandList& operator<<(Command row)
    {
        rows.push_back(std::move(row));
        return *this;
    }

    CommandList& operator<<(const CommandList& other)
    {
        rows.insert(rows.end(), other.rows.begin(), other.rows.end());
        return *this;
    }

    auto begin() const { return rows.begin(); }
    auto end() const { return rows.end(); }

private:
    std::vector<Command> rows;
};

/// The rows of which command lists are made; qualified with `wire::` or taken in by a
/// using-directive in an implementor's source.
namespace wire
{

inline Command command(const QString& inst, const QString& key, const QString& value = QString())
{
    return {&RequestFormatter::addCommand, inst, key, value};
}

inline Command get(const QString& inst, const QString& key)
{
    return {&RequestFormatter::addGet, inst, key, QString()};
}

inline Command set(const QString& inst, const QString& key, const QString& value)
{
    return {&RequestFormatter::addSet, inst, key, value};
}

inline Command query(const QString& inst, const QString& key, const QString& value = QString())
{
    return {&RequestFormatter::addQuery, inst, key, value};
}

/// The transaction commands address the configuration manager; the object is their value.
inline Command begin(const QString& inst)
{
    return command(cfgmgr0, beginTransaction, inst);
}

inline Command commit(const QString& inst)
{
    return command(cfgmgr0, commitTransaction, inst);
}

inline Command end(const QString& inst)
{
    return command(cfgmgr0, endTransaction, inst);
}

inline Command save()
{
    return command(cfgmgr0, saveConfiguration);
}

inline Command apply(const QString& inst)
{
    return command(inst, applySettings);
}

/// A transaction that reads `keys` of `inst`.
CommandList readTransaction(const QString& inst, std::initializer_list<QString> keys);

/// Keys of an object and what is written to them, in order.
using Values = std::vector<std::pair<QString, QString>>;

/// A transaction that writes keys of `inst` and commits them; saving and applying is the caller's.
CommandList writeTransaction(const QString& inst, const Values& values);

/// A write that is put into effect at once.
CommandList writeAndApply(const QString& inst, const Values& values);

/// Writes to several objects whose transactions are opened one after the other and stay open
/// together, to be committed, ended and applied in passes of the same order.
CommandList writeTogether(const std::vector<std::pair<QString, Values>>& objects);

} // namespace wire

} // namespace quorvel
