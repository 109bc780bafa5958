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
    for (QDomElement object = document.documentElement().firstChildElement(); !object.isNull();
         object = object.nextSiblingElement())
        insertLeaves(object, result);
    return true;
}

} // namespace quorvel
