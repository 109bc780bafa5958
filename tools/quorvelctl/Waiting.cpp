#include "Waiting.h"

#include "Failure.h"

#include <quorvel/AspCpeFacadeObject.h>

#include <QElapsedTimer>
#include <QThread>
#include <chrono>
#include <future>
#include <iostream>
#include <unistd.h>

namespace quorvelctl
{

namespace
{

const int stepMs = 250;
const int longestRestartMs = 15 * 60000;

/// A bar on a terminal that fills up while a gateway is away; nothing where nobody looks.
class ProgressBar
{
public:
    explicit ProgressBar(int durationMs) : durationMs(durationMs) { clock.start(); }
    ~ProgressBar()
    {
        if (onTerminal)
            std::cerr << '\n';
    }

    qint64 elapsed() const { return clock.elapsed(); }

    void draw() const
    {
        if (!onTerminal)
            return;
        const int width = 40;
        const qint64 elapsedMs = qMin<qint64>(elapsed(), durationMs);
        const int filled =
            durationMs > 0 ? static_cast<int>(elapsedMs * width / durationMs) : width;
        std::cerr << "\r[" << std::string(static_cast<size_t>(filled), '#')
                  << std::string(static_cast<size_t>(width - filled), '.') << "] "
                  << elapsed() / 1000 << " s of about " << durationMs / 1000 << " s " << std::flush;
    }

private:
    Q_DISABLE_COPY(ProgressBar)

    QElapsedTimer clock;
    int durationMs;
    bool onTerminal = isatty(STDERR_FILENO) == 1;
};

/// Probes in a thread of its own, because a probe of a gateway that swallows it takes seconds.
bool answers(const QString& address, const ProgressBar& bar)
{
    auto probe = std::async(std::launch::async, [&address] {
        return quorvel::AspCpeFacadeObject::isDeviceAvailable(address);
    });
    do {
        bar.draw();
    } while (probe.wait_for(std::chrono::milliseconds(stepMs)) != std::future_status::ready);
    return probe.get();
}

} // namespace

void waitUntilBack(const QString& address, int gatewaysDurationMs, int graceMs)
{
    const int durationMs = qBound(0, gatewaysDurationMs, longestRestartMs);
    const ProgressBar bar(durationMs);
    // A gateway may answer for a moment before it goes down, so an answer counts only once it has
    // been seen away, or when all the time it asked for has passed.
    bool wasAway = false;
    while (bar.elapsed() < 2 * durationMs + graceMs) {
        if (!answers(address, bar))
            wasAway = true;
        else if (wasAway || bar.elapsed() >= durationMs)
            return;
        QThread::msleep(stepMs);
    }
    throw Failure{
        NotReachable,
        QStringLiteral("%1 isn't back after %2 s").arg(address).arg(bar.elapsed() / 1000)};
}

} // namespace quorvelctl
