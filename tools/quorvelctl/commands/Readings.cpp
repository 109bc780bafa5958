#include "commands/Readings.h"

#include "commands/Commands.h"

#include <QJsonDocument>

namespace quorvelctl
{

QJsonValue readingOf(const QString& command, Session& session)
{
    // A command leaves what it was given in its parser, so each gets a new one.
    commandline::CommandLine line;
    addCommands(line.program(), session);
    const QByteArray text = session.collectJson([&] { line.run(command.toStdString()); });
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QStringList namesIn(const QJsonValue& list, const char* key)
{
    QStringList names;
    for (const QJsonValue& object : list.toArray())
        names.append(object[QLatin1String(key)].toString());
    return names;
}

} // namespace quorvelctl
