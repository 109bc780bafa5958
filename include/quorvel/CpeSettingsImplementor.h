#pragma once

#include <quorvel/ParamMap.h>
#include <quorvel/QuorvelApi1Export.h>

#include <QMutex>
#include <QString>
#include <boost/shared_ptr.hpp>

namespace quorvel
{

class AuthenticationSettingsImplementor;
class CommandList;
class RequestExecutor;
class RequestFormatter;
class ResponseParser;

/// Base of all settings implementors, and the one place where a request meets the gateway.
///
/// A host has no use for it. It is public because the facades of single radios derive from it, and
/// they have none of its four parts: of a facade, only its own operations may be called.
///
/// An operation of an implementor returns what executeRequest returned and leaves the reply in the
/// caller's map, undecoded. The builder sets the four parts; an implementor is not usable before.
class QUORVEL_API CpeSettingsImplementor
{
public:
    CpeSettingsImplementor() = default;
    virtual ~CpeSettingsImplementor() = default;

    /// Runs one exchange from end to end: finds or makes the session, sends, parses, recovers from
    /// an expired session. Whether a readable reply came; with `expectNoReply` also an unreadable
    /// one and a time-out count. Status keys in `result` tell what went wrong. Takes no lock.
    virtual bool executeRequest(const QString& request, ParamMap& result, bool expectNoReply);

    boost::shared_ptr<ResponseParser> getResponseParser() const { return parser; }
    void setResponseParser(boost::shared_ptr<ResponseParser> newParser) { parser = newParser; }
    boost::shared_ptr<RequestFormatter> getRequestFormatter() const { return formatter; }
    void setRequestFormatter(boost::shared_ptr<RequestFormatter> newFormatter)
    {
        formatter = newFormatter;
    }
    boost::shared_ptr<RequestExecutor> getRequestExecutor() const { return executor; }
    void setRequestExecutor(boost::shared_ptr<RequestExecutor> newExecutor)
    {
        executor = newExecutor;
    }
    boost::shared_ptr<AuthenticationSettingsImplementor> getAuthenticator() const
    {
        return authenticator;
    }
    void setAuthenticator(boost::shared_ptr<AuthenticationSettingsImplementor> newAuthenticator)
    {
        authenticator = newAuthenticator;
    }

    /// The address as the host gave it.
    QString getCpeAddress() const;

    /// Ends the wait of the exchange that is under way. Takes no lock; callable from any thread.
    void abortRequests();

protected:
    /// The frame of an operation: lock, clear the queue, queue `commands`, format, execute.
    bool run(const CommandList& commands, ParamMap& result, bool expectNoReply = false);

    // The frame's steps, for the few operations that leave it. None of them locks.

    /// Clears the queue, queues `commands`, formats and executes.
    bool send(const CommandList& commands, ParamMap& result, bool expectNoReply = false);
    /// Queues `commands` behind what is queued already.
    void queue(const CommandList& commands);
    /// Formats what is queued and executes it.
    bool sendQueue(ParamMap& result, bool expectNoReply = false);

private:
    Q_DISABLE_COPY(CpeSettingsImplementor)

    enum class Outcome { Success, Failure, SessionExpired };

    bool findSession(const QString& address, QString& session, ParamMap& result);
    Outcome attempt(const QString& address, const QString& request, ParamMap& result,
                    bool expectNoReply);
    Outcome takeReply(const QString& reply, ParamMap& result, bool expectNoReply);

    boost::shared_ptr<ResponseParser> parser;
    boost::shared_ptr<RequestFormatter> formatter;
    boost::shared_ptr<RequestExecutor> executor;
    boost::shared_ptr<AuthenticationSettingsImplementor> authenticator;

protected:
    /// Held across a whole operation, exchange included. Not recursive.
    QMutex mutex;
};

} // namespace quorvel
