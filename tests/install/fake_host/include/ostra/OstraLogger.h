#pragma once

#include <QString>
#include <functional>

// A host's logger, which is not ours but has the same interface.
class OstraLogger
{
public:
    using Sink = std::function<void(const QString&, int, const QString&)>;

    static OstraLogger* getInstance();
    void log(const QString& message, int level, const QString& loggerName);
    void setSink(Sink newSink);

private:
    Sink sink;
};
