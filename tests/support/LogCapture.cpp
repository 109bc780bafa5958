#include "support/LogCapture.h"

#include <ostra/OstraLogger.h>

#include <QMutexLocker>

namespace quorvel::test
{

namespace
{

QString levelName(int level)
{
    switch (level) {
    case 96:
        return QStringLiteral("DEBUG");
    case 128:
        return QStringLiteral("INFO");
    case 150:
        return QStringLiteral("WARN");
    case 182:
        return QStringLiteral("ERROR");
    default:
        return QString::number(level);
    }
}

} // namespace

LogCapture::LogCapture()
{
    OstraLogger::getInstance()->setSink(
        [this](const QString& message, int level, const QString& loggerName) {
            QString line = levelName(level) + QLatin1Char(' ') + message;
            if (loggerName != QLatin1String("QUORVEL_LOGGER"))
                line.prepend(loggerName + QLatin1String(": "));
            QMutexLocker locker(&mutex);
            collected.append(line);
        });
}

LogCapture::~LogCapture()
{
    OstraLogger::getInstance()->setSink(OstraLogger::Sink());
}

QStringList LogCapture::lines() const
{
    QMutexLocker locker(&mutex);
    return collected;
}

void LogCapture::clear()
{
    QMutexLocker locker(&mutex);
    collected.clear();
}

} // namespace quorvel::test
