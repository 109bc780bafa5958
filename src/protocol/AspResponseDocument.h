#pragma once

#include <quorvel/ParamMap.h>

#include <QDomDocument>
#include <QString>
#include <vector>

namespace quorvel
{

/// Reads `response` into a document and puts the root's name and version into `result`. A null
/// document if the text is not well-formed; `result` is then untouched.
QDomDocument readResponse(const QString& response, ParamMap& result);

/// Calls `visit` with every child of `parent` that is an element. A walk over the nodes themselves:
/// asking each element for the next one takes twice as long.
template <typename Visit>
void forEachElement(const QDomElement& parent, Visit visit)
{
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement())
            visit(node.toElement());
    }
}

/// The name and the text of an element.
struct Leaf {
    QString name;
    QString text;
};

/// The elements of an object, in their order.
std::vector<Leaf> leavesOf(const QDomElement& object);

/// Writes the entries of a reply into a map, below the names of their objects.
class EntryWriter
{
public:
    explicit EntryWriter(ParamMap& result);

    void insert(const QDomElement& object, const QString& entry, const QString& value);
    /// One entry per leaf: its name and text.
    void insert(const QDomElement& object, const std::vector<Leaf>& leaves);

private:
    ParamMap& result;
    /// Where the next entry is likely to belong: gateways send most entries near their neighbours.
    ParamMap::const_iterator next;
};

} // namespace quorvel
