#include "protocol/AspResponseParserV1.h"

#include "protocol/AspResponseDocument.h"

#include <QMutexLocker>

namespace quorvel
{

bool AspResponseParserV1::parse(const QString& response, ParamMap& result)
{
    QMutexLocker locker(&mutex);
    const QDomDocument document = readResponse(response, result);
    if (document.isNull())
        return false;
    EntryWriter entries(result);
    forEachElement(document.documentElement(),
                   [&](const QDomElement& object) { entries.insert(object, leavesOf(object)); });
    return true;
}

} // namespace quorvel
