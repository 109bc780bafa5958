#include "fuzz/ReferenceXml.h"

#include <algorithm>
#include <expat.h>
#include <memory>

namespace quorvel::fuzz
{

namespace
{

/// What the parser's calls add up to.
struct Reading {
    ReferenceDocument document;
    int depth = 0;
};

/// Unlike QString alone it doesn't drop a leading U+FEFF.
QString textOf(const QByteArray& bytes)
{
    return QString::fromUtf8('.' + bytes).mid(1);
}

Reading& readingOf(void* userData)
{
    return *static_cast<Reading*>(userData);
}

Pairs pairsOf(const char** attributes)
{
    Pairs pairs;
    for (; *attributes; attributes += 2)
        pairs.emplace_back(textOf(attributes[0]), textOf(attributes[1]));
    return pairs;
}

bool isOfNamespaces(const QString& name)
{
    return name.contains(QLatin1Char(':')) || name == QLatin1String("xmlns");
}

void startElement(void* userData, const char* name, const char** attributes)
{
    Reading& reading = readingOf(userData);
    ReferenceDocument& document = reading.document;
    ++reading.depth;
    document.levels = std::max(document.levels, reading.depth);
    const QString tag = textOf(name);
    const Pairs pairs = pairsOf(attributes);
    document.usesNamespaces = document.usesNamespaces || isOfNamespaces(tag) ||
                              std::any_of(pairs.cbegin(), pairs.cend(), [](const auto& pair) {
                                  return isOfNamespaces(pair.first);
                              });
    if (reading.depth == 1) {
        document.root = tag;
        for (const auto& [attribute, value] : pairs) {
            if (attribute == QLatin1String("version"))
                document.version = value;
        }
    } else if (reading.depth == 2) {
        document.branches.push_back({tag, pairs, {}});
    } else if (reading.depth == 3) {
        document.branches.back().leaves.emplace_back(tag, QString());
    }
}

void endElement(void* userData, const char*)
{
    --readingOf(userData).depth;
}

void characterData(void* userData, const char* text, int length)
{
    Reading& reading = readingOf(userData);
    if (reading.depth >= 3)
        reading.document.branches.back().leaves.back().second += textOf(QByteArray(text, length));
}

void startDocumentType(void* userData, const char*, const char*, const char*, int)
{
    readingOf(userData).document.hasDocumentType = true;
}

} // namespace

ReferenceDocument readReference(const QByteArray& text)
{
    Reading reading;
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate("UTF-8"), &XML_ParserFree);
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), startElement, endElement);
    XML_SetCharacterDataHandler(parser.get(), characterData);
    XML_SetStartDoctypeDeclHandler(parser.get(), startDocumentType);
    reading.document.wellFormed =
        XML_Parse(parser.get(), text.constData(), text.size(), 1) == XML_STATUS_OK;
    return reading.document;
}

} // namespace quorvel::fuzz
