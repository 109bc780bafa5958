#include "protocol/AspCpeAuthenticatorV1.h"

#include <quorvel/CpeLoginResult.h>

#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Log.h"
#include "protocol/ParamKeys.h"
#include "protocol/RequestExecutor.h"

#include <QUrl>

namespace quorvel
{

namespace
{

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

} // namespace

int AspCpeAuthenticatorV1::login(boost::shared_ptr<RequestExecutor> executor)
{
    logDebug(QStringLiteral("Logging in..."));
    const QString address = getCpeAddress();
    const ParamMap request{{HTTP_PARAM_URL, address},
                           {HTTP_PARAM_PATH, QStringLiteral("/cgi-bin/login")},
                           {HTTP_PARAM_METHOD, HTTP_PARAM_METHOD_POST},
                           {HTTP_PARAM_DATA_TO_SEND, QLatin1String("user=") + encoded(getUser()) +
                                                         QLatin1String("&password=") +
                                                         encoded(getPassword())}};
    ParamMap reply;
    const int status = executor->execute(request, reply);
    if (status == RequestTimedOut) {
        logWarn(QStringLiteral("Log in request timed out."));
        return CpeLoginTimedOut;
    }
    if (status != RequestSucceeded) {
        logWarn(QStringLiteral("Log in request timed out or failed."));
        return CpeLoginRequestFailed;
    }
    const auto cookie = reply.constFind(QStringLiteral("Set-Cookie"));
    if (cookie == reply.constEnd()) {
        logWarn(QStringLiteral("Failed to log in."));
        return CpeLoginFailed;
    }
    const QString session = cookie->trimmed();
    AspCpeSessionStorage::getInstance()->setSession(address, session);
    logDebug(QLatin1String("Logged in. / SESSION: ") + session);
    return CpeLoginSuccess;
}

bool AspCpeAuthenticatorV1::logout(boost::shared_ptr<RequestExecutor>)
{
    return true;
}

} // namespace quorvel
