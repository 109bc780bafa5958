#include "protocol/RequestFormatter.h"

#include <QMutexLocker>
#include <boost/make_shared.hpp>

namespace quorvel
{

void RequestFormatter::addCommand(const QString& inst, const QString& key, const QString& value)
{
    enqueue(QStringLiteral("command"), inst, key, value);
}

void RequestFormatter::addGet(const QString& inst, const QString& key, const QString& value)
{
    enqueue(QStringLiteral("get"), inst, key, value);
}

void RequestFormatter::addSet(const QString& inst, const QString& key, const QString& value)
{
    enqueue(QStringLiteral("set"), inst, key, value);
}

void RequestFormatter::addQuery(const QString& inst, const QString& key, const QString& value)
{
    enqueue(QStringLiteral("query"), inst, key, value);
}

void RequestFormatter::clearCommands()
{
    QMutexLocker locker(&mutex);
    if (!commands.isEmpty())
        commands = Queue();
}

void RequestFormatter::enqueue(const QString& commandType, const QString& inst, const QString& key,
                               const QString& value)
{
    const auto command =
        boost::make_shared<RequestCommandData>(RequestCommandData{commandType, inst, key, value});
    QMutexLocker locker(&mutex);
    commands.append(command);
}

} // namespace quorvel
