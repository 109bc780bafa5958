#include "support/Transcript.h"

#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString commandLine(QXmlStreamReader& xml)
{
    const QString verb = xml.name().toString();
    QString line =
        verb + QLatin1Char(' ') + quoted(xml.attributes().value(QStringLiteral("inst")).toString());
    while (xml.readNextStartElement())
        line += QLatin1Char(' ') + quoted(xml.readElementText());
    return line + QLatin1Char('\n');
}

} // namespace

QString commandLines(const QString& xmlText)
{
    // A reader of another kind than the one that wrote the text.
    QXmlStreamReader xml(xmlText);
    QString text;
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("xmlrequest"))
        ADD_FAILURE() << "not a request: " << xmlText.toStdString();
    text += QLatin1String("version ") +
            xml.attributes().value(QStringLiteral("version")).toString() + QLatin1Char('\n');
    while (xml.readNextStartElement())
        text += commandLine(xml);
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return text;
}

QString transcript(const ReceivedRequest& request)
{
    QString text = QString::fromLatin1(request.method + ' ' + request.path + '\n');
    if (!request.header("Cookie").isEmpty())
        text += QLatin1String("cookie ") + QString::fromUtf8(request.header("Cookie")) +
                QLatin1Char('\n');
    const QString body = QString::fromUtf8(request.body);
    if (request.path == "/cgi-bin/webapp")
        return text + commandLines(body);
    return text + body + QLatin1Char('\n');
}

QString transcript(const ScriptedGateway& gateway)
{
    QStringList texts;
    const QList<ReceivedRequest> requests = gateway.requests();
    for (const ReceivedRequest& request : requests)
        texts.append(transcript(request));
    return texts.join(QLatin1Char('\n'));
}

} // namespace quorvel::test
