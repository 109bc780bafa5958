#pragma once

#include "protocol/ParamKeys.h"
#include "protocol/Vocabulary.h"

/// Names of the entries in which a facade hands a connection to its implementor.
namespace quorvel
{

/// The entry that names the WAN's entity of a kind, as "wan-0.entities.pppox".
inline QString entityKey(const QString& wan, const QString& kind)
{
    return replyKey(replyKey(wan, wire::entities), kind);
}

/// The entry of one of an entity's settings, as "pppox-0.settings.username".
inline QString settingKey(const QString& entity, const QString& setting)
{
    return replyKey(replyKey(entity, wire::settings), setting);
}

} // namespace quorvel
