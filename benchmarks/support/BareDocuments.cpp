#include "support/BareDocuments.h"

#include <QDomDocument>
#include <QXmlInputSource>
#include <QXmlSimpleReader>
#include <cstdlib>

namespace quorvel::bench
{

namespace
{

QDomElement textElement(QDomDocument& document, const QString& name, const QString& text)
{
    QDomElement element = document.createElement(name);
    element.appendChild(document.createTextNode(text));
    return element;
}

/// Reads a text with QtXml's own reader and source and calls `visit` with every entry and the
/// object that it belongs to.
template <typename Visit>
void walk(const QString& reply, Visit visit)
{
    QXmlSimpleReader reader;
    QXmlInputSource source;
    source.setData(reply);
    QDomDocument document;
    if (!document.setContent(&source, &reader))
        std::abort();
    for (QDomElement object = document.documentElement().firstChildElement(); !object.isNull();
         object = object.nextSiblingElement()) {
        for (QDomElement entry = object.firstChildElement(); !entry.isNull();
             entry = entry.nextSiblingElement())
            visit(object, entry);
    }
}

} // namespace

std::vector<CommandTexts> someCommands(int count)
{
    std::vector<CommandTexts> commands;
    for (int i = 0; i < count; ++i)
        commands.push_back({QStringLiteral("set"), QStringLiteral("wan-0"),
                            QStringLiteral("settings.key%1").arg(i),
                            QStringLiteral("192.0.2.%1").arg(i)});
    return commands;
}

QString bareWrite(const std::vector<CommandTexts>& commands)
{
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("xmlrequest"));
    root.setAttribute(QStringLiteral("version"), QStringLiteral("1.0.1"));
    document.appendChild(root);
    for (const CommandTexts& command : commands) {
        QDomElement element = document.createElement(command.verb);
        element.setAttribute(QStringLiteral("inst"), command.inst);
        element.appendChild(textElement(document, QStringLiteral("key"), command.key));
        element.appendChild(textElement(document, QStringLiteral("value"), command.value));
        root.appendChild(element);
    }
    return document.toString(1);
}

int bareRead(const QString& reply)
{
    int length = 0;
    walk(reply, [&](const QDomElement& object, const QDomElement& entry) {
        length += object.tagName().size() + entry.tagName().size() + entry.text().size();
    });
    return length;
}

QMap<QString, QString> bareFlatten(const QString& reply)
{
    QMap<QString, QString> entries;
    walk(reply, [&](const QDomElement& object, const QDomElement& entry) {
        entries.insert(object.tagName() + QLatin1Char('.') + entry.tagName(), entry.text());
    });
    return entries;
}

} // namespace quorvel::bench
