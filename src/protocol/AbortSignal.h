#pragma once

#include <QObject>
#include <atomic>

namespace quorvel
{

/// How any thread ends an exchange that waits on another: the exchange connects the signal to an
/// object of its own thread, and so nothing of its reply is touched from outside.
class AbortSignal : public QObject
{
    Q_OBJECT

public:
    void raise()
    {
        ++times;
        Q_EMIT raised();
    }

    /// Tells an exchange that is about to connect the signal whether it has come too late for it.
    int timesRaised() const { return times; }

Q_SIGNALS:
    void raised();

private:
    std::atomic<int> times{0};
};

} // namespace quorvel
