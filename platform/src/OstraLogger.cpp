#include <ostra/OstraLogger.h>

#include <QMutexLocker>
#include <cstdio>
#include <utility>

namespace
{

const int defaultLevel = 150;

int levelFromEnvironment()
{
    bool isNumber = false;
    const int level = qEnvironmentVariableIntValue("OSTRA_LOG_LEVEL", &isNumber);
    return isNumber ? level : defaultLevel;
}

void writeToStandardError(const QString& message, int level, const QString& loggerName)
{
    if (level < levelFromEnvironment())
        return;
    const QByteArray line =
        QStringLiteral("[%1] %2: %3\n").arg(QString::number(level), loggerName, message).toUtf8();
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
}

} // namespace

OstraLogger* OstraLogger::getInstance()
{
    // Never destroyed, so that objects of the host that die after main may still log.
    static OstraLogger* const instance = new OstraLogger;
    return instance;
}

void OstraLogger::log(const QString& message, int level, const QString& loggerName)
{
    Sink current;
    {
        QMutexLocker locker(&mutex);
        current = sink;
    }
    // Called without the lock: a sink may log, or wait for another thread that does.
    if (current)
        current(message, level, loggerName);
    else
        writeToStandardError(message, level, loggerName);
}

void OstraLogger::setSink(Sink newSink)
{
    QMutexLocker locker(&mutex);
    std::swap(sink, newSink);
}
