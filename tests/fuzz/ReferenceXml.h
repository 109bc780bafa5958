#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

namespace quorvel::fuzz
{

/// Names and texts, in the order of the document.
using Pairs = std::vector<std::pair<QString, QString>>;

/// A child of the root.
struct Branch {
    QString name;
    Pairs attributes;
    Pairs leaves; ///< its own children, each with all character data below it
};

/// A document as another XML parser than ours sees it, as far as requests and replies reach.
struct ReferenceDocument {
    bool wellFormed = false;
    bool hasDocumentType = false;
    bool usesNamespaces = false; ///< in a name; the parser itself takes no notice of them
    int levels = 0;
    QString root;
    QString version; ///< the root's attribute of that name; empty if there is none
    std::vector<Branch> branches;
};

/// Reads a text in UTF-8, whatever encoding it declares.
ReferenceDocument readReference(const QByteArray& text);

} // namespace quorvel::fuzz
