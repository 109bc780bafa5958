#include "protocol/AspResponsePairs.h"

#include "protocol/AspResponseDocument.h"
#include "protocol/ParamKeys.h"

namespace quorvel
{

namespace
{

void insertPair(const QDomElement& object, ParamMap& result,
                const std::function<QString(const QString& key)>& nameKey)
{
    QString key;
    QString value;
    for (QDomElement part = object.firstChildElement(); !part.isNull();
         part = part.nextSiblingElement()) {
        const QString name = part.tagName();
        if (name == QLatin1String("key"))
            key = nameKey(part.text());
        else if (name == QLatin1String("value"))
            value = part.text();
    }
    if (key.isEmpty())
        insertLeaves(object, result);
    else
        result.insert(replyKey(object.tagName(), key), value);
}

} // namespace

bool parsePairs(const QString& response, ParamMap& result,
                const std::function<QString(const QString& key)>& nameKey)
{
    const QDomDocument document = readResponse(response, result);
    if (document.isNull())
        return false;
    for (QDomElement object = document.documentElement().firstChildElement(); !object.isNull();
         object = object.nextSiblingElement())
        insertPair(object, result, nameKey);
    return true;
}

} // namespace quorvel
