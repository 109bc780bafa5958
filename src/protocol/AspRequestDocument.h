#pragma once

#include "protocol/RequestFormatter.h"

#include <QDomDocument>
#include <QLatin1String>

namespace quorvel
{

/// The XML document of a request, which both dialects share but for the version.
class AspRequestDocument
{
public:
    /// A request without commands.
    explicit AspRequestDocument(QLatin1String version);

    void append(const QList<boost::shared_ptr<RequestCommandData>>& commands);

    /// One blank of indentation per level, a line break after every element that holds elements.
    QString toString() const;

private:
    QDomElement textElement(const QString& name, const QString& text);

    QDomDocument document;
    QDomElement root;
};

} // namespace quorvel
