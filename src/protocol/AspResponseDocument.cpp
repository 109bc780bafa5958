#include "protocol/AspResponseDocument.h"

#include "protocol/GuardedXmlReader.h"
#include "protocol/ParamKeys.h"

namespace quorvel
{

QDomDocument readResponse(const QString& response, ParamMap& result)
{
    GuardedXmlReader reader;
    GuardedXmlSource source;
    source.setData(response);
    // With a reader of our own texts of mere white space are kept: a blank is a value.
    QDomDocument document;
    if (!document.setContent(&source, &reader, nullptr, nullptr, nullptr))
        return QDomDocument();
    QDomElement root = document.documentElement();
    result.insert(root.tagName(), root.attributeNode(QStringLiteral("version")).value());
    return document;
}

void insertLeaves(const QDomElement& object, ParamMap& result)
{
    for (QDomElement leaf = object.firstChildElement(); !leaf.isNull();
         leaf = leaf.nextSiblingElement())
        result.insert(replyKey(object.tagName(), leaf.tagName()), leaf.text());
}

} // namespace quorvel
