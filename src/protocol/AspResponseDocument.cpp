#include "protocol/AspResponseDocument.h"

#include "protocol/GuardedXmlReader.h"
#include "protocol/ParamKeys.h"

namespace quorvel
{

namespace
{

/// The text of an entry. The reader leaves it one node of text, whose string is shared; asking the
/// entry for its text would copy it.
QString textOf(const QDomElement& entry)
{
    const QDomNode text = entry.firstChild();
    return text.isNull() ? QStringLiteral("") : text.nodeValue();
}

} // namespace

QDomDocument readResponse(const QString& response, ParamMap& result)
{
    QDomDocument document;
    const auto read = [&](QXmlInputSource&& source) {
        source.setData(response);
        // With a reader of our own texts of mere white space are kept: a blank is a value.
        GuardedXmlReader reader;
        return document.setContent(&source, &reader, nullptr, nullptr, nullptr);
    };
    if (!(GuardedXmlSource::isNeededFor(response) ? read(GuardedXmlSource())
                                                  : read(QXmlInputSource())))
        return QDomDocument();
    QDomElement root = document.documentElement();
    result.insert(root.tagName(), root.attributeNode(QStringLiteral("version")).value());
    return document;
}

std::vector<Leaf> leavesOf(const QDomElement& object)
{
    std::vector<Leaf> leaves;
    leaves.reserve(2); // most objects hold a key and a value
    forEachElement(object, [&](const QDomElement& leaf) {
        leaves.push_back({leaf.tagName(), textOf(leaf)});
    });
    return leaves;
}

EntryWriter::EntryWriter(ParamMap& result) : result(result), next(result.constEnd()) {}

void EntryWriter::insert(const QDomElement& object, const QString& entry, const QString& value)
{
    const QString key = replyKey(object.tagName(), entry);
    // The entries of an item come together, in an order of their own.
    for (int step = 0; step < 4 && next != result.constBegin() && key < (next - 1).key(); ++step)
        --next;
    next = ParamMap::const_iterator(result.insert(next, key, value) + 1);
}

void EntryWriter::insert(const QDomElement& object, const std::vector<Leaf>& leaves)
{
    for (const Leaf& leaf : leaves)
        insert(object, leaf.name, leaf.text);
}

} // namespace quorvel
