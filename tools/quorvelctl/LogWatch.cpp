#include "LogWatch.h"

#include "Output.h"
#include "Secrets.h"

#include <ostra/OstraLogger.h>

#include <QMutexLocker>
#include <iostream>
#include <limits>

namespace quorvelctl
{

namespace
{

const int errorLevel = 182;

} // namespace

LogWatch::LogWatch() : shownLevel(std::numeric_limits<int>::max())
{
    OstraLogger::getInstance()->setSink(
        [this](const QString& message, int level, const QString&) { take(message, level); });
}

LogWatch::~LogWatch()
{
    OstraLogger::getInstance()->setSink(OstraLogger::Sink());
}

void LogWatch::show(int fromLevel, bool withSecrets)
{
    QMutexLocker locker(&mutex);
    shownLevel = fromLevel;
    secretsShown = withSecrets;
}

void LogWatch::reset()
{
    QMutexLocker locker(&mutex);
    refused = lost = error = false;
}

bool LogWatch::loginWasRefused() const
{
    QMutexLocker locker(&mutex);
    return refused;
}

bool LogWatch::loginGotLost() const
{
    QMutexLocker locker(&mutex);
    return lost;
}

bool LogWatch::sawError() const
{
    QMutexLocker locker(&mutex);
    return error;
}

void LogWatch::take(const QString& message, int level)
{
    QMutexLocker locker(&mutex);
    refused = refused || message == QLatin1String("Failed to log in.");
    lost = lost || message.startsWith(QLatin1String("Log in request timed out"));
    error = error || level >= errorLevel;
    if (level < shownLevel)
        return;
    const QString shown = secretsShown ? message : withoutSecrets(message);
    std::cerr << '[' << level << "] " << printable(shown, QStringLiteral("\t\n")).toStdString()
              << '\n';
}

} // namespace quorvelctl
