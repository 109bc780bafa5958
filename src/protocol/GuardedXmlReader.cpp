#include "protocol/GuardedXmlReader.h"

namespace quorvel
{

namespace
{

/// The level of the entries: below the root and an object.
const int entryLevel = 3;

/// Behind any prefix, as the tree finds it.
QXmlAttributes versionIn(const QXmlAttributes& attributes)
{
    QXmlAttributes version;
    for (int i = 0; i < attributes.count(); ++i) {
        if (attributes.localName(i) == QLatin1String("version"))
            version.append(attributes.qName(i), attributes.uri(i), attributes.localName(i),
                           attributes.value(i));
    }
    return version;
}

} // namespace

GuardedXmlReader::GuardedXmlReader()
{
    QXmlSimpleReader::setDeclHandler(&entityGuard);
    QXmlSimpleReader::setDTDHandler(&entityGuard);
}

void GuardedXmlReader::setContentHandler(QXmlContentHandler* handler)
{
    contentGuard.guarded = handler;
    QXmlSimpleReader::setContentHandler(&contentGuard);
}

void GuardedXmlReader::setDeclHandler(QXmlDeclHandler*)
{
    // A document tree has no use for declarations, so the guard isn't displaced by its handler.
}

void GuardedXmlReader::setDTDHandler(QXmlDTDHandler*) {}

void GuardedXmlReader::setLexicalHandler(QXmlLexicalHandler*)
{
    // Without one, comments stay out of the tree and marked character data is plain text.
}

bool GuardedXmlReader::ContentGuard::startElement(const QString& namespaceUri,
                                                  const QString& localName, const QString& qName,
                                                  const QXmlAttributes& attributes)
{
    prefixes += ownPrefixes;
    prefixesPerLevel.append(ownPrefixes);
    ownPrefixes = 0;
    if (++depth > deepestLevel || prefixes > mostPrefixes)
        return false;
    if (depth > entryLevel)
        return !localName.isEmpty(); // or the tree would refuse it
    return ++nodes <= mostNodes &&
           guarded->startElement(namespaceUri, localName, qName,
                                 depth == 1 ? versionIn(attributes) : QXmlAttributes());
}

bool GuardedXmlReader::ContentGuard::endElement(const QString& namespaceUri,
                                                const QString& localName, const QString& qName)
{
    prefixes -= prefixesPerLevel.last();
    prefixesPerLevel.removeLast();
    if (depth-- > entryLevel)
        return true;
    if (!entryText.isEmpty()) {
        ++nodes;
        guarded->characters(entryText);
        entryText.clear();
    }
    return guarded->endElement(namespaceUri, localName, qName);
}

bool GuardedXmlReader::ContentGuard::characters(const QString& text)
{
    if (depth >= entryLevel)
        entryText += text;
    return depth > 0;
}

void GuardedXmlReader::ContentGuard::setDocumentLocator(QXmlLocator* locator)
{
    guarded->setDocumentLocator(locator);
}

bool GuardedXmlReader::ContentGuard::startDocument()
{
    return guarded->startDocument();
}

bool GuardedXmlReader::ContentGuard::endDocument()
{
    return guarded->endDocument();
}

bool GuardedXmlReader::ContentGuard::startPrefixMapping(const QString&, const QString&)
{
    ++ownPrefixes;
    return true;
}

bool GuardedXmlReader::ContentGuard::endPrefixMapping(const QString&)
{
    // Not told for each that starts, so the levels count for themselves.
    return true;
}

bool GuardedXmlReader::ContentGuard::ignorableWhitespace(const QString&)
{
    return true;
}

bool GuardedXmlReader::ContentGuard::processingInstruction(const QString&, const QString&)
{
    return true;
}

bool GuardedXmlReader::ContentGuard::skippedEntity(const QString&)
{
    return true;
}

QString GuardedXmlReader::ContentGuard::errorString() const
{
    return QStringLiteral("too large or nested too deeply");
}

bool GuardedXmlReader::EntityGuard::attributeDecl(const QString&, const QString&, const QString&,
                                                  const QString&, const QString&)
{
    return true;
}

bool GuardedXmlReader::EntityGuard::internalEntityDecl(const QString&, const QString&)
{
    return false;
}

bool GuardedXmlReader::EntityGuard::externalEntityDecl(const QString&, const QString&,
                                                       const QString&)
{
    return false;
}

bool GuardedXmlReader::EntityGuard::notationDecl(const QString&, const QString&, const QString&)
{
    return true;
}

bool GuardedXmlReader::EntityGuard::unparsedEntityDecl(const QString&, const QString&,
                                                       const QString&, const QString&)
{
    return false;
}

QString GuardedXmlReader::EntityGuard::errorString() const
{
    return QStringLiteral("entities are not accepted");
}

QChar GuardedXmlSource::next()
{
    const QChar character = QXmlInputSource::next();
    markupPosition = character == QLatin1Char('<') ? 0 : markupPosition + 1;
    // "<!E" opens declarations of elements, and of entities, which the reader stops at anyway.
    if (markupPosition == 0) {
        inElementDeclaration = false;
        groups = 0;
        equalsSigns = 0;
    } else if (markupPosition == 1) {
        inElementDeclaration = character == QLatin1Char('!');
    } else if (markupPosition == 2) {
        inElementDeclaration = inElementDeclaration && character == QLatin1Char('E');
    } else if (character == QLatin1Char('(')) {
        ++groups;
    } else if (character == QLatin1Char(')')) {
        --groups;
    } else if (character == QLatin1Char('=')) {
        ++equalsSigns;
    }
    const bool tooDeep = inElementDeclaration && groups > GuardedXmlReader::deepestLevel;
    return tooDeep || equalsSigns > mostEqualsSigns ? QChar(EndOfDocument) : character;
}

} // namespace quorvel
