#include "DryRun.h"

#include "Masking.h"

#include <QXmlStreamReader>

namespace quorvelctl
{

namespace
{

/// The command at whose opening tag the reader is.
Record commandIn(QXmlStreamReader& reader)
{
    const QString command = reader.name().toString();
    const QString instance = reader.attributes().value(QLatin1String("inst")).toString();
    QString key;
    QString value;
    while (reader.readNextStartElement()) {
        QString& text = reader.name() == QLatin1String("key") ? key : value;
        text = reader.readElementText();
    }
    return {{QStringLiteral("command"), QStringLiteral("Command"), command},
            {QStringLiteral("instance"), QStringLiteral("Object"), instance},
            {QStringLiteral("key"), QStringLiteral("Key"), key},
            {QStringLiteral("value"), QStringLiteral("Value"), value, isSecretKey(key)}};
}

} // namespace

QList<Record> commandsOf(const QStringList& requests)
{
    QList<Record> commands;
    for (const QString& request : requests) {
        QXmlStreamReader reader(request);
        reader.readNextStartElement();
        while (reader.readNextStartElement())
            commands.append(commandIn(reader));
    }
    return commands;
}

} // namespace quorvelctl
