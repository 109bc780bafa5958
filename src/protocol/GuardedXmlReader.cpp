#include "protocol/GuardedXmlReader.h"

namespace quorvel
{

GuardedXmlReader::GuardedXmlReader()
{
    QXmlSimpleReader::setDeclHandler(&entityGuard);
    QXmlSimpleReader::setDTDHandler(&entityGuard);
}

void GuardedXmlReader::setContentHandler(QXmlContentHandler* handler)
{
    depthGuard.guarded = handler;
    QXmlSimpleReader::setContentHandler(&depthGuard);
}

void GuardedXmlReader::setDeclHandler(QXmlDeclHandler*)
{
    // A document tree has no use for declarations, so the guard isn't displaced by its handler.
}

void GuardedXmlReader::setDTDHandler(QXmlDTDHandler*) {}

bool GuardedXmlReader::DepthGuard::startElement(const QString& namespaceUri,
                                                const QString& localName, const QString& qName,
                                                const QXmlAttributes& attributes)
{
    return ++depth <= deepestLevel &&
           guarded->startElement(namespaceUri, localName, qName, attributes);
}

bool GuardedXmlReader::DepthGuard::endElement(const QString& namespaceUri, const QString& localName,
                                              const QString& qName)
{
    --depth;
    return guarded->endElement(namespaceUri, localName, qName);
}

void GuardedXmlReader::DepthGuard::setDocumentLocator(QXmlLocator* locator)
{
    guarded->setDocumentLocator(locator);
}

bool GuardedXmlReader::DepthGuard::startDocument()
{
    return guarded->startDocument();
}

bool GuardedXmlReader::DepthGuard::endDocument()
{
    return guarded->endDocument();
}

bool GuardedXmlReader::DepthGuard::startPrefixMapping(const QString& prefix, const QString& uri)
{
    return guarded->startPrefixMapping(prefix, uri);
}

bool GuardedXmlReader::DepthGuard::endPrefixMapping(const QString& prefix)
{
    return guarded->endPrefixMapping(prefix);
}

bool GuardedXmlReader::DepthGuard::characters(const QString& text)
{
    return guarded->characters(text);
}

bool GuardedXmlReader::DepthGuard::ignorableWhitespace(const QString& text)
{
    return guarded->ignorableWhitespace(text);
}

bool GuardedXmlReader::DepthGuard::processingInstruction(const QString& target, const QString& data)
{
    return guarded->processingInstruction(target, data);
}

bool GuardedXmlReader::DepthGuard::skippedEntity(const QString& name)
{
    return guarded->skippedEntity(name);
}

QString GuardedXmlReader::DepthGuard::errorString() const
{
    return depth > deepestLevel ? QStringLiteral("nested too deeply") : guarded->errorString();
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
    } else if (markupPosition == 1) {
        inElementDeclaration = character == QLatin1Char('!');
    } else if (markupPosition == 2) {
        inElementDeclaration = inElementDeclaration && character == QLatin1Char('E');
    } else if (character == QLatin1Char('(')) {
        ++groups;
    } else if (character == QLatin1Char(')')) {
        --groups;
    }
    const bool tooDeep = inElementDeclaration && groups > GuardedXmlReader::deepestLevel;
    return tooDeep ? QChar(EndOfDocument) : character;
}

} // namespace quorvel
