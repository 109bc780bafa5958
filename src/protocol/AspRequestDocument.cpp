#include "protocol/AspRequestDocument.h"

namespace quorvel
{

AspRequestDocument::AspRequestDocument(QLatin1String version)
{
    root = document.createElement(QStringLiteral("xmlrequest"));
    root.setAttribute(QStringLiteral("version"), version);
    document.appendChild(root);
}

void AspRequestDocument::append(const QList<boost::shared_ptr<RequestCommandData>>& commands)
{
    for (const auto& command : commands) {
        QDomElement element = document.createElement(command->commandType);
        element.setAttribute(QStringLiteral("inst"), command->inst);
        element.appendChild(textElement(QStringLiteral("key"), command->key));
        element.appendChild(textElement(QStringLiteral("value"), command->value));
        root.appendChild(element);
    }
}

QString AspRequestDocument::toString() const
{
    return document.toString(1);
}

QDomElement AspRequestDocument::textElement(const QString& name, const QString& text)
{
    QDomElement element = document.createElement(name);
    // Also for an empty text: the gateway wants <value></value>, not an empty-element tag.
    element.appendChild(document.createTextNode(text));
    return element;
}

} // namespace quorvel
