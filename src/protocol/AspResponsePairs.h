#pragma once

#include <quorvel/ParamMap.h>

#include <QString>
#include <functional>

namespace quorvel
{

/// Flattens a reply of dialect 1.0.1, whose objects hold a key and a value each. `nameKey` sees
/// every key, in the order of the reply, and says under which name it is stored.
bool parsePairs(const QString& response, ParamMap& result,
                const std::function<QString(const QString& key)>& nameKey);

} // namespace quorvel
