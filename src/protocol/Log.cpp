#include "protocol/Log.h"

#include <ostra/OstraLogger.h>

namespace quorvel
{

void log(LogLevel level, const QString& message, const QString& loggerName)
{
    OstraLogger::getInstance()->log(message, level, loggerName);
}

} // namespace quorvel
