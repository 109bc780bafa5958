#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

/// One queued command.
struct RequestCommandData {
    QString commandType; ///< "command", "get", "set" or "query"
    QString inst;        ///< instance that the command addresses
    QString key;         ///< key, or the name of the action
    QString value;       ///< value or argument; empty where there is none
};

/// Queues commands and writes them as one request in a dialect of the gateway's web application.
class RequestFormatter
{
public:
    RequestFormatter() = default;
    virtual ~RequestFormatter() = default;

    virtual void addCommand(const QString& inst, const QString& key, const QString& value);
    virtual void addGet(const QString& inst, const QString& key, const QString& value);
    virtual void addSet(const QString& inst, const QString& key, const QString& value);
    virtual void addQuery(const QString& inst, const QString& key, const QString& value);
    virtual void clearCommands();

    /// The whole request; empties the queue.
    virtual QString formatRequest() = 0;
    /// The commands alone, ready to be joined with another formatter's; empties the queue. Empty in
    /// a dialect without that form.
    virtual QString formatCommands() = 0;
    /// A request around joined commands. Empty in a dialect without that form.
    virtual QString wrapCommands(const QString& commands) = 0;

protected:
    using Queue = QList<boost::shared_ptr<RequestCommandData>>;

    Queue commands;
    QMutex mutex;

private:
    Q_DISABLE_COPY(RequestFormatter)

    void enqueue(const QString& commandType, const QString& inst, const QString& key,
                 const QString& value);
};

} // namespace quorvel
