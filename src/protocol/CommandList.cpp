#include "protocol/CommandList.h"

namespace quorvel::wire
{

namespace
{

CommandList openWrite(const QString& inst, const Values& values)
{
    CommandList list{begin(inst)};
    for (const auto& [key, value] : values)
        list << set(inst, key, value);
    return list;
}

} // namespace

CommandList readTransaction(const QString& inst, std::initializer_list<QString> keys)
{
    CommandList list{begin(inst)};
    for (const QString& key : keys)
        list << get(inst, key);
    return list << end(inst);
}

CommandList writeTransaction(const QString& inst, const Values& values)
{
    return openWrite(inst, values) << commit(inst) << end(inst);
}

CommandList writeAndApply(const QString& inst, const Values& values)
{
    return writeTransaction(inst, values) << apply(inst);
}

CommandList writeTogether(const std::vector<std::pair<QString, Values>>& objects)
{
    CommandList list;
    for (const auto& [inst, values] : objects)
        list << openWrite(inst, values);
    for (const auto step : {commit, end, apply}) {
        for (const auto& object : objects)
            list << step(object.first);
    }
    return list;
}

} // namespace quorvel::wire
