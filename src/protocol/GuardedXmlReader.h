#pragma once

#include <QVarLengthArray>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

namespace quorvel
{

/// A reader that stops at what no gateway sends and no document tree survives: elements nested too
/// deeply, whose tree would be walked recursively, declared entities, which grow without bound, and
/// too many elements, each of which takes fifty times the room of its text. It looks while the one
/// pass over the text runs, and wants a GuardedXmlSource where one is needed.
///
/// What no parser reads doesn't reach the tree: comments, attributes other than the root's version,
/// and below an entry everything but its text.
class GuardedXmlReader : public QXmlSimpleReader
{
public:
    /// Levels of elements, the root included.
    static constexpr int deepestLevel = 256;
    /// Elements and texts in the tree. So many take some 40 MB.
    static constexpr int mostNodes = 160000;
    /// Namespace prefixes in force at a time. The reader copies them all for each element that
    /// declares one.
    static constexpr int mostPrefixes = 8;

    GuardedXmlReader();

    void setContentHandler(QXmlContentHandler* handler) override;

private:
    class ContentGuard : public QXmlContentHandler
    {
    public:
        QXmlContentHandler* guarded = nullptr;

        bool startElement(const QString& namespaceUri, const QString& localName,
                          const QString& qName, const QXmlAttributes& attributes) override;
        bool endElement(const QString& namespaceUri, const QString& localName,
                        const QString& qName) override;
        bool characters(const QString& text) override;

        void setDocumentLocator(QXmlLocator* locator) override;
        bool startDocument() override;
        bool endDocument() override;
        bool startPrefixMapping(const QString& prefix, const QString& uri) override;
        bool endPrefixMapping(const QString& prefix) override;
        bool ignorableWhitespace(const QString& text) override;
        bool processingInstruction(const QString& target, const QString& data) override;
        bool skippedEntity(const QString& name) override;
        QString errorString() const override;

    private:
        int depth = 0;
        int nodes = 0;
        int prefixes = 0;    ///< in force
        int ownPrefixes = 0; ///< of the element that starts next
        QVarLengthArray<int, 16> prefixesPerLevel;
        QString entryText;
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
    void setLexicalHandler(QXmlLexicalHandler* handler) override;

    ContentGuard contentGuard;
    EntityGuard entityGuard;
};

/// Ends a text early at what the reader takes in before it tells any handler: element declarations
/// that nest groups too deeply, into which it descends recursively, and too many attributes.
class GuardedXmlSource : public QXmlInputSource
{
public:
    /// Equals signs from one "<" to the next, and so attributes of one element.
    static constexpr int mostEqualsSigns = 100000;

    /// Whether there can be anything to end a text at. One without is read faster as it is.
    static bool isNeededFor(const QString& text)
    {
        return text.contains(QLatin1Char('!')) ||
               (text.size() > mostEqualsSigns && text.count(QLatin1Char('=')) > mostEqualsSigns);
    }

    QChar next() override;

private:
    int markupPosition = 0;
    bool inElementDeclaration = false;
    int groups = 0;
    int equalsSigns = 0;
};

} // namespace quorvel
