#include "Gateway.h"

#include "Failure.h"

#include <QElapsedTimer>

namespace quorvelctl
{

using namespace quorvel;

namespace
{

/// How long the library waits for one reply.
const int replyLimitMs = 20000;

} // namespace

Gateway::Gateway(const AuthenticationInfo& login, LogWatch& watch, const QString& via)
    : watch(watch),
      info(login),
      handle({login.user, login.password, via.isEmpty() ? login.cpeAddress : via})
{
    watch.reset();
    QElapsedTimer clock;
    clock.start();
    generalFacade = handle.getGeneralSettingsFacade();
    if (!generalFacade)
        explainUnusable(clock.elapsed());
}

void Gateway::explainUnusable(qint64 waitedMs) const
{
    // The library says no more than that there is no gateway; its log lines tell why a login
    // failed. Of what comes behind the login, only the clock and another look at the gateway tell.
    if (watch.loginWasRefused())
        throw Failure{
            LoginRefused,
            QStringLiteral("%1 refused the login of user '%2'").arg(address(), info.user)};
    if (watch.loginGotLost())
        throw Failure{NotReachable, QStringLiteral("%1 can't be reached").arg(address())};
    if (waitedMs >= replyLimitMs)
        throw Failure{NotReachable, QStringLiteral("%1 didn't answer in time").arg(address())};
    if (!AspCpeFacadeObject::isDeviceAvailable(address()))
        throw Failure{NotReachable, QStringLiteral("%1 doesn't answer any more").arg(address())};
    throw Failure{GatewayFailed,
                  QStringLiteral("%1 answers, but not as a gateway does").arg(address())};
}

QStringList Gateway::instancesOf(const QString& manager)
{
    return askNames(QLatin1String("list the instances of ") + manager,
                    [&](auto& error) { return general().getManagerInstanceList(manager, error); });
}

void Gateway::expectSuccess(const QString& what, AspWebAppErrorCodes error) const
{
    const auto fail = [&](ExitStatus status, const QString& why) {
        throw Failure{status, QStringLiteral("can't %1: %2").arg(what, why)};
    };
    if (watch.loginWasRefused())
        fail(LoginRefused, QStringLiteral("the login was refused"));
    switch (static_cast<int>(error)) {
    case AspWebAppNoError:
        if (watch.loginGotLost())
            fail(NotReachable, QStringLiteral("the login got no answer"));
        return;
    case AspWebAppLoginFailed:
        fail(GatewayFailed, QStringLiteral("the gateway's reply can't be read"));
        return;
    case AspWebAppRequestTimedOut:
        fail(NotReachable, QStringLiteral("the gateway didn't answer in time"));
        return;
    case AspWebAppRequestFailed:
        fail(NotReachable, QStringLiteral("the request failed on the way"));
        return;
    default:
        fail(GatewayFailed, QStringLiteral("the gateway reports error %1").arg(error));
    }
}

void Gateway::refuse(const QString& what) const
{
    throw Failure{GatewayFailed, QStringLiteral("can't %1: the gateway didn't do it").arg(what)};
}

void Gateway::lack(const QString& function) const
{
    throw Failure{GatewayFailed, QStringLiteral("%1 has no %2").arg(address(), function)};
}

} // namespace quorvelctl
