#include "Waiting.h"

#include "Failure.h"

#include <quorvel/AspCpeFacadeObject.h>

#include <QElapsedTimer>
#include <QThread>
#include <iostream>
#include <unistd.h>

namespace quorvelctl
{

namespace
{

const int stepMs = 250;
const int graceMs = 60000;

void drawBar(qint64 elapsedMs, int durationMs)
{
    const int width = 40;
    const int filled = durationMs > 0
                           ? static_cast<int>(qMin<qint64>(width, elapsedMs * width / durationMs))
                           : width;
    std::cerr << "\r[" << std::string(static_cast<size_t>(filled), '#')
              << std::string(static_cast<size_t>(width - filled), '.') << "] " << elapsedMs / 1000
              << " s of about " << durationMs / 1000 << " s " << std::flush;
}

} // namespace

void waitUntilBack(const QString& address, int durationMs)
{
    const bool onTerminal = isatty(STDERR_FILENO) == 1;
    QElapsedTimer clock;
    clock.start();
    // A gateway may answer for a moment before it goes down, so an answer counts only once it has
    // been seen away, or when all the time it asked for has passed.
    bool wasAway = false;
    const qint64 latest = 2 * static_cast<qint64>(qMax(0, durationMs)) + graceMs;
    while (clock.elapsed() < latest) {
        const bool answers = quorvel::AspCpeFacadeObject::isDeviceAvailable(address);
        if (answers && (wasAway || clock.elapsed() >= durationMs)) {
            if (onTerminal)
                std::cerr << '\n';
            return;
        }
        wasAway = wasAway || !answers;
        if (onTerminal)
            drawBar(clock.elapsed(), durationMs);
        QThread::msleep(stepMs);
    }
    throw Failure{
        NotReachable,
        QStringLiteral("%1 isn't back after %2 s").arg(address).arg(clock.elapsed() / 1000)};
}

} // namespace quorvelctl
