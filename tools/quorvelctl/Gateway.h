#pragma once

#include "Failure.h"
#include "LogWatch.h"

#include <quorvel/QuorvelApi1.h>

#include <QString>
#include <QStringList>
#include <boost/shared_ptr.hpp>
#include <optional>

namespace quorvelctl
{

/// A gateway, recognised and logged in to at construction. Everything that
/// goes wrong with it is thrown as a Failure that says what and why.
class Gateway
{
public:
    /// With `via`, all requests go to this address, which relays them.
    Gateway(const quorvel::AuthenticationInfo& login, LogWatch& watch, const QString& via);

    const QString& address() const { return info.cpeAddress; }
    quorvel::AspCpeFacadeObject& object() { return handle; }
    quorvel::AspGeneralSettingsFacade& general() { return *generalFacade; }

    /// Makes one call of the library, `call(error)`, and gives back what it returned, unless it
    /// failed: by its error, or by an error line where the error says nothing. `what` completes
    /// "can't ...".
    template <typename Call>
    auto ask(const QString& what, Call call)
    {
        const auto result = order(what, call);
        if (watch.sawError())
            refuse(what);
        return result;
    }

    /// The same for a call that lists names, without what is none: a "0" is the trace of a session
    /// that had to be renewed meanwhile.
    template <typename Call>
    QStringList askNames(const QString& what, Call call)
    {
        QStringList names = ask(what, call);
        names.removeAll(QStringLiteral("0"));
        return names;
    }

    /// The same for a call that may log an error line although what was asked for is done: its
    /// error and its login alone decide.
    template <typename Call>
    auto order(const QString& what, Call call)
    {
        watch.reset();
        quorvel::AspWebAppErrorCodes error = quorvel::AspWebAppNoError;
        const auto result = call(error);
        expectSuccess(what, error);
        return result;
    }

    /// The same for what a gateway may not tell: nothing if it refuses to, or an error line says
    /// that it doesn't.
    template <typename Call>
    auto askIfTold(const QString& what, Call call)
    {
        std::optional<decltype(order(what, call))> told;
        try {
            told = ask(what, call);
        } catch (const Failure& failure) {
            if (failure.status != GatewayFailed)
                throw;
        }
        return told;
    }

    /// The same for a call whose result is false on failure: false fails also without an error.
    template <typename Call>
    void demand(const QString& what, Call call)
    {
        if (!ask(what, call))
            refuse(what);
    }

    /// Names of the instances of a manager, as "pppox".
    QStringList instancesOf(const QString& manager);

    /// A facade of the library's, which the gateway lacks if it is empty.
    template <typename Facade>
    Facade& require(const boost::shared_ptr<Facade>& facade, const QString& function)
    {
        if (!facade)
            lack(function);
        return *facade;
    }

private:
    void expectSuccess(const QString& what, quorvel::AspWebAppErrorCodes error) const;
    [[noreturn]] void refuse(const QString& what) const;
    [[noreturn]] void lack(const QString& function) const;
    [[noreturn]] void explainUnusable(qint64 waitedMs) const;

    LogWatch& watch;
    const quorvel::AuthenticationInfo info;
    quorvel::AspCpeFacadeObject handle;
    boost::shared_ptr<quorvel::AspGeneralSettingsFacade> generalFacade;
};

} // namespace quorvelctl
