#pragma once

#include <QMutex>
#include <QString>

namespace quorvelctl
{

/// Sees every line that the library logs: shows those at or above a level on standard error, and
/// notes what only a log line tells, namely how a login ended and that an operation failed.
class LogWatch
{
public:
    LogWatch();
    ~LogWatch();

    void show(int fromLevel, bool withSecrets);

    /// Forgets what was noted.
    void reset();
    /// A gateway answered a login and gave no session.
    bool loginWasRefused() const;
    /// A login got no answer.
    bool loginGotLost() const;
    /// Something was logged as an error.
    bool sawError() const;

private:
    Q_DISABLE_COPY(LogWatch)

    void take(const QString& message, int level);

    mutable QMutex mutex;
    int shownLevel;
    bool secretsShown = false;
    bool refused = false;
    bool lost = false;
    bool error = false;
};

} // namespace quorvelctl
