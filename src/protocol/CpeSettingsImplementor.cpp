#include "protocol/CpeSettingsImplementor.h"

#include <quorvel/AspWebAppErrorCodes.h>
#include <quorvel/CpeLoginResult.h>

#include "protocol/AspCpeSessionStorage.h"
#include "protocol/ParamKeys.h"

#include <QMutexLocker>

namespace quorvel
{

namespace
{

void reportTransportFailure(ParamMap& result, CpeLoginResult login, AspWebAppErrorCodes error)
{
    result.insert(AUTH_PARAM_LOGINRESULT, QString::number(login));
    result.insert(webappErrorKey, QString::number(error));
}

} // namespace

bool CpeSettingsImplementor::executeRequest(const QString& request, ParamMap& result,
                                            bool expectNoReply)
{
    // No bound on the repetition: it ends when the gateway takes a session or refuses a login. A
    // loop, because the stack must not be what bounds it.
    for (;;) {
        const QString address = getCpeAddress();
        const Outcome outcome = attempt(address, request, result, expectNoReply);
        if (outcome != Outcome::SessionExpired)
            return outcome == Outcome::Success;
        result.clear();
        AspCpeSessionStorage::getInstance()->removeSession(address);
    }
}

bool CpeSettingsImplementor::findSession(const QString& address, QString& session, ParamMap& result)
{
    const auto storage = AspCpeSessionStorage::getInstance();
    session = storage->getSession(address);
    if (!session.isEmpty())
        return true;
    const int login = authenticator->login(executor);
    result.insert(AUTH_PARAM_LOGINRESULT, QString::number(login));
    session = storage->getSession(address);
    return login == CpeLoginSuccess;
}

CpeSettingsImplementor::Outcome CpeSettingsImplementor::attempt(const QString& address,
                                                                const QString& request,
                                                                ParamMap& result,
                                                                bool expectNoReply)
{
    // Looked up once: what was found may be gone by now, for others use the storage as well.
    QString session;
    if (!findSession(address, session, result))
        return Outcome::Failure;
    const ParamMap params{{HTTP_PARAM_METHOD, HTTP_PARAM_METHOD_POST},
                          {HTTP_PARAM_URL, address},
                          {HTTP_PARAM_SESSION, session},
                          {HTTP_PARAM_PATH, QStringLiteral("/cgi-bin/webapp")},
                          {HTTP_PARAM_DATA_TO_SEND, request}};
    ParamMap transport;
    switch (executor->execute(params, transport)) {
    case RequestSucceeded:
        return takeReply(transport.value(REQUEST_EXEC_PARAM_RESULT), result, expectNoReply);
    case RequestTimedOut:
        if (expectNoReply)
            return Outcome::Success;
        [[fallthrough]];
    case RequestUnknownNetworkError:
        reportTransportFailure(result, CpeLoginTimedOut, AspWebAppRequestTimedOut);
        return Outcome::Failure;
    default:
        reportTransportFailure(result, CpeLoginRequestFailed, AspWebAppRequestFailed);
        return Outcome::Failure;
    }
}

CpeSettingsImplementor::Outcome CpeSettingsImplementor::takeReply(const QString& reply,
                                                                  ParamMap& result,
                                                                  bool expectNoReply)
{
    const bool readable = parser->parse(reply, result);
    // Compared as text: only the spelling "1" means an expired session.
    if (result.value(webappErrorKey) == QString::number(AspWebAppSessionExpired))
        return Outcome::SessionExpired;
    if (readable || expectNoReply)
        return Outcome::Success;
    // An unreadable reply counts as a failed login; that is how facades report it.
    result.insert(AUTH_PARAM_LOGINRESULT, QString::number(CpeLoginFailed));
    return Outcome::Failure;
}

QString CpeSettingsImplementor::getCpeAddress() const
{
    return authenticator->getCpeAddress();
}

void CpeSettingsImplementor::abortRequests()
{
    if (executor)
        executor->abortPendingRequests();
}

bool CpeSettingsImplementor::run(const CommandList& commands, ParamMap& result, bool expectNoReply)
{
    QMutexLocker locker(&mutex);
    return send(commands, result, expectNoReply);
}

bool CpeSettingsImplementor::send(const CommandList& commands, ParamMap& result, bool expectNoReply)
{
    formatter->clearCommands();
    queue(commands);
    return sendQueue(result, expectNoReply);
}

void CpeSettingsImplementor::queue(const CommandList& commands)
{
    for (const Command& command : commands)
        (formatter.get()->*command.add)(command.inst, command.key, command.value);
}

bool CpeSettingsImplementor::sendQueue(ParamMap& result, bool expectNoReply)
{
    return executeRequest(formatter->formatRequest(), result, expectNoReply);
}

} // namespace quorvel
