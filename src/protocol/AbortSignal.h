#pragma once

#include <QObject>

namespace quorvel
{

/// How any thread ends an exchange that waits on another: the exchange connects the signal to an
/// object of its own thread, and so nothing of its reply is touched from outside.
class AbortSignal : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void raised();
};

} // namespace quorvel
