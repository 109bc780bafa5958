#include "protocol/AspResponsePairs.h"

#include "protocol/AspResponseDocument.h"

namespace quorvel
{

namespace
{

void insertPair(const QDomElement& object, EntryWriter& entries,
                const std::function<QString(const QString& key)>& nameKey)
{
    const std::vector<Leaf> leaves = leavesOf(object);
    QString key;
    QString value;
    for (const Leaf& leaf : leaves) {
        if (leaf.name == QLatin1String("key"))
            key = nameKey(leaf.text);
        else if (leaf.name == QLatin1String("value"))
            value = leaf.text;
    }
    if (key.isEmpty())
        entries.insert(object, leaves);
    else
        entries.insert(object, key, value);
}

} // namespace

bool parsePairs(const QString& response, ParamMap& result,
                const std::function<QString(const QString& key)>& nameKey)
{
    const QDomDocument document = readResponse(response, result);
    if (document.isNull())
        return false;
    EntryWriter entries(result);
    forEachElement(document.documentElement(),
                   [&](const QDomElement& object) { insertPair(object, entries, nameKey); });
    return true;
}

} // namespace quorvel
