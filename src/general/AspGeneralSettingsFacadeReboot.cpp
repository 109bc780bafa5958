#include <quorvel/AspGeneralSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "general/GeneralCall.h"
#include "general/GeneralKeys.h"
#include "protocol/Vocabulary.h"

namespace quorvel
{

namespace
{

/// How long an operation of the gateway takes: where it says so, and what holds if it doesn't.
struct Duration {
    bool (GeneralSettingsImplementor::*operation)(ParamMap& result);
    QLatin1String entry;
    int builtIn;
    QLatin1String label;
    QLatin1String failureLine;
    QLatin1String badTextLine;
};

const Duration rebootDuration{
    &GeneralSettingsImplementor::getRebootDuration,
    wire::rebootDuration,
    60003,
    QLatin1String("AspGeneralSettingsFacade::getRebootDuration -> Reboot Duration:"),
    QLatin1String("AspGeneralSettingsFacade::getRebootDuration -> Failed to fetch reboot "
                  "duration!"),
    QLatin1String("AspGeneralSettingsFacade::getRebootDuration -> Invalid  reboot duration "
                  "fetched. It is not integer...!")};

const Duration fwUpgradeDuration{
    &GeneralSettingsImplementor::getFwUpgradeDuration,
    wire::fwupgradeDuration,
    200004,
    QLatin1String("AspGeneralSettingsFacade::getFwUpgradeDuration -> FW Upgrade Duration:"),
    QLatin1String("AspGeneralSettingsFacade::getFwUpgradeDuration -> Failed to fetch fw upgrade "
                  "duration!"),
    QLatin1String("AspGeneralSettingsFacade::getFwUpgradeDuration -> Invalid  FwUpgrade duration "
                  "fetched. It is not integer...!")};

int fetchDuration(AspFacade& facade, AspWebAppErrorCodes& error, const Duration& duration)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return 0;
    QString text = QString::number(duration.builtIn);
    if (call.ask(&Cpe::getGeneralImplementor, duration.operation)) {
        text = call.reply().value(replyKey(wire::webui0, duration.entry));
        logDebug(duration.label + text);
    } else {
        logError(duration.failureLine);
    }
    call.reportError();
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        return number;
    logError(duration.badTextLine);
    return duration.builtIn;
}

/// Takes the gateway away with `operation`; how long until it is back.
template <typename Operation>
int restart(AspGeneralSettingsFacade& facade, AspWebAppErrorCodes& error, Operation operation)
{
    FacadeCall call(facade, error);
    if (!call.isPermitted())
        return 0;
    // Asked first, while there is someone to ask.
    const int duration = facade.getRebootDuration(error);
    call.ask(&Cpe::getGeneralImplementor, operation);
    logDebug(QStringLiteral("AspGeneralSettingsFacade::rebootCpe successfully executed..."));
    call.cpe()->getGeneralImplementor()->getAuthenticator()->forgetSession();
    call.reportError();
    return duration;
}

} // namespace

bool AspGeneralSettingsFacade::isRebootRequired(AspWebAppErrorCodes& error)
{
    bool required = false;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::isRebootRequired),
        [&](const ParamMap& reply) {
            const auto answer = reply.constFind(replyKey(wire::sysmgr0, wire::rebootReq));
            if (answer == reply.constEnd()) {
                logError(QStringLiteral("AspGeneralSettingsFacade::isRebootRequired -> "
                                        "isRebootRequired does not work correctly!"));
                return;
            }
            required = *answer == QLatin1String("1");
            logDebug(required ? QStringLiteral("AspGeneralSettingsFacade::isRebootRequired -> "
                                               "Need to reboot device...")
                              : QStringLiteral("AspGeneralSettingsFacade::getRebootDuration ->  "
                                               "No need  to reboot device..."));
        },
        "AspGeneralSettingsFacade::isRebootRequired -> Failed to fetch isRebootRequired!");
    return required;
}

int AspGeneralSettingsFacade::getRebootDuration(AspWebAppErrorCodes& error)
{
    return fetchDuration(*this, error, rebootDuration);
}

int AspGeneralSettingsFacade::getFwUpgradeDuration(AspWebAppErrorCodes& error)
{
    return fetchDuration(*this, error, fwUpgradeDuration);
}

int AspGeneralSettingsFacade::rebootCpe(AspWebAppErrorCodes& error)
{
    return restart(*this, error, &GeneralSettingsImplementor::rebootCpe);
}

int AspGeneralSettingsFacade::factoryDefault(AspWebAppErrorCodes& error)
{
    return restart(*this, error, &GeneralSettingsImplementor::factoryDefault);
}

} // namespace quorvel
