#pragma once

#include "support/Printing.h"

#include <QMutex>
#include <QString>
#include <QStringList>

namespace quorvel::test
{

/// Collects what is logged while it lives, in place of the default sink.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();

    /// All lines so far, each as "DEBUG text", "WARN text" or "ERROR text"; those of a logger other
    /// than the library's usual one have its name in front: "NAME: ERROR text".
    QStringList lines() const;
    void clear();

private:
    Q_DISABLE_COPY(LogCapture)

    mutable QMutex mutex;
    QStringList collected;
};

} // namespace quorvel::test
