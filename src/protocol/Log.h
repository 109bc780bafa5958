#pragma once

#include <QString>

namespace quorvel
{

inline const QString QUORVEL_LOGGER = QStringLiteral("QUORVEL_LOGGER");

enum LogLevel { LogDebug = 96, LogInfo = 128, LogWarn = 150, LogError = 182 };

/// Writes one line to the host's logger, under QUORVEL_LOGGER unless told otherwise.
void log(LogLevel level, const QString& message, const QString& loggerName = QUORVEL_LOGGER);

inline void logDebug(const QString& message)
{
    log(LogDebug, message);
}

inline void logWarn(const QString& message)
{
    log(LogWarn, message);
}

inline void logError(const QString& message)
{
    log(LogError, message);
}

} // namespace quorvel
