#pragma once

#include <ostra/OstraPlatformExport.h>

#include <QMutex>
#include <QString>
#include <functional>

/// The logging service that the library writes to; the host decides where the lines go.
///
/// Levels are numbers: 96 debug, 128 info, 150 warning, 182 error. All operations may be called
/// from any thread.
class OSTRA_PLATFORM_API OstraLogger
{
public:
    /// Receives every line, whatever its level, on the thread that logs it. It may log itself.
    using Sink = std::function<void(const QString& message, int level, const QString& loggerName)>;

    /// The one logger of the process, made at first use and never destroyed. Never null.
    static OstraLogger* getInstance();

    /// Hands one line to the sink.
    void log(const QString& message, int level, const QString& loggerName);

    /// Replaces the sink. An empty one brings back the default: standard error, with the lines at
    /// or above the level named by the environment variable OSTRA_LOG_LEVEL (150 if that is unset
    /// or no number). A line that another thread is logging right now may still reach the old sink.
    void setSink(Sink sink);

private:
    OstraLogger() = default;

    QMutex mutex;
    Sink sink;
};
