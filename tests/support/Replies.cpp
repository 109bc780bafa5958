#include "support/Replies.h"

namespace quorvel::test
{

namespace
{

QString element(const QString& name, const QString& content)
{
    return QLatin1Char('<') + name + QLatin1Char('>') + content + QLatin1String("</") + name +
           QLatin1Char('>');
}

} // namespace

QString reply100(std::initializer_list<Entry> entries)
{
    QString text = QStringLiteral("<response version=\"1.0.0\">");
    for (const Entry& entry : entries)
        text += element(QString::fromLatin1(entry.object),
                        element(QString::fromLatin1(entry.key), entry.value.toHtmlEscaped()));
    return text + QLatin1String("</response>");
}

QString reply101(std::initializer_list<Entry> entries)
{
    QString text = QStringLiteral("<response version=\"1.0.1\">");
    for (const Entry& entry : entries)
        text +=
            element(QString::fromLatin1(entry.object),
                    element(QStringLiteral("key"), QString::fromUtf8(entry.key).toHtmlEscaped()) +
                        element(QStringLiteral("value"), entry.value.toHtmlEscaped()));
    return text + QLatin1String("</response>");
}

} // namespace quorvel::test
