#pragma once

#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

namespace quorvel
{

/// A reader that stops at what no gateway sends and no document tree survives: elements nested too
/// deeply, whose tree would be walked recursively, and declared entities, which grow without bound.
/// It looks while the one pass over the text runs, and wants a GuardedXmlSource.
class GuardedXmlReader : public QXmlSimpleReader
{
public:
    /// Levels of elements, the root included.
    static constexpr int deepestLevel = 256;

    GuardedXmlReader();

    void setContentHandler(QXmlContentHandler* handler) override;

private:
    class DepthGuard : public QXmlContentHandler
    {
    public:
        QXmlContentHandler* guarded = nullptr;

        bool startElement(const QString& namespaceUri, const QString& localName,
                          const QString& qName, const QXmlAttributes& attributes) override;
        bool endElement(const QString& namespaceUri, const QString& localName,
                        const QString& qName) override;

        void setDocumentLocator(QXmlLocator* locator) override;
        bool startDocument() override;
        bool endDocument() override;
        bool startPrefixMapping(const QString& prefix, const QString& uri) override;
        bool endPrefixMapping(const QString& prefix) override;
        bool characters(const QString& text) override;
        bool ignorableWhitespace(const QString& text) override;
        bool processingInstruction(const QString& target, const QString& data) override;
        bool skippedEntity(const QString& name) override;
        QString errorString() const override;

    private:
        int depth = 0;
    };

    class EntityGuard : public QXmlDeclHandler, public QXmlDTDHandler
    {
    public:
        bool attributeDecl(const QString& element, const QString& attribute, const QString& type,
                           const QString& valueDefault, const QString& value) override;
        bool internalEntityDecl(const QString& name, const QString& value) override;
        bool externalEntityDecl(const QString& name, const QString& publicId,
                                const QString& systemId) override;
        bool notationDecl(const QString& name, const QString& publicId,
                          const QString& systemId) override;
        bool unparsedEntityDecl(const QString& name, const QString& publicId,
                                const QString& systemId, const QString& notation) override;
        QString errorString() const override;
    };

    void setDeclHandler(QXmlDeclHandler* handler) override;
    void setDTDHandler(QXmlDTDHandler* handler) override;

    DepthGuard depthGuard;
    EntityGuard entityGuard;
};

/// Ends a text early whose element declarations nest groups too deeply: the reader descends into
/// them recursively before it tells any handler.
class GuardedXmlSource : public QXmlInputSource
{
public:
    QChar next() override;

private:
    int markupPosition = 0;
    bool inElementDeclaration = false;
    int groups = 0;
};

} // namespace quorvel
