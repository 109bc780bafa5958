#include "protocol/AspResponseParserV2.h"

#include "protocol/AspResponsePairs.h"

#include <QMutexLocker>

namespace quorvel
{

bool AspResponseParserV2::parse(const QString& response, ParamMap& result)
{
    QMutexLocker locker(&mutex);
    return parsePairs(response, result, [](const QString& key) { return key; });
}

} // namespace quorvel
