#include "protocol/CommandList.h"

namespace quorvel::wire
{

CommandList readTransaction(const QString& inst, std::initializer_list<QString> keys)
{
    CommandList list{begin(inst)};
    for (const QString& key : keys)
        list << get(inst, key);
    return list << end(inst);
}

CommandList writeTransaction(const QString& inst,
                             std::initializer_list<std::pair<QString, QString>> values)
{
    CommandList list{begin(inst)};
    for (const auto& [key, value] : values)
        list << set(inst, key, value);
    return list << commit(inst) << end(inst);
}

} // namespace quorvel::wire
