#pragma once

#include <quorvel/AspWirelessMeshInst.h>
#include <quorvel/AspWirelessSettings.h>
#include <quorvel/AspWpsEnabledStatus.h>
#include <quorvel/AspWpsRole.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "wireless/WirelessKeys.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <QStringList>

/// \file
/// What the facades of both generations of radios share.
namespace quorvel
{

/// Gives a generation's implementor.
using RadioFamily = boost::shared_ptr<WirelessSettingsImplementor> (Cpe::*)() const;

/// The shape that operations have for which the reply map stands in front: puts it behind.
template <typename... Inputs>
auto replyLast(bool (WirelessSettingsImplementor::*operation)(ParamMap&, Inputs...))
{
    return [operation](WirelessSettingsImplementor& radio, Inputs... inputs, ParamMap& reply) {
        return (radio.*operation)(reply, inputs...);
    };
}

/// A getter of one text that keeps what the request came to from the error: a failure shows in the
/// result only.
template <typename Request>
QString fetchUnreported(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                        const QString& key, const char* label, const char* failureLine)
{
    if (!FacadeCall(facade, error).isPermitted())
        return QString();
    AspWebAppErrorCodes unreported;
    return fetchText(facade, unreported, request, key, label, failureLine);
}

AspWpsEnabledStatus fetchWpsEnabledStatus(AspFacade& facade, AspWebAppErrorCodes& error,
                                          RadioFamily family, const QString& instance);

AspWpsRole fetchWpsRole(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                        const QString& instance, const char* label, const char* failureLine);

bool fetchSecurityProxy(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                        const QString& instance, const char* label, const char* failureLine);

/// Whether the security mode, read under `key`, is anything but "off".
bool fetchSecurity(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                   const QString& ap, const QString& manager, const QString& key,
                   const char* failureLine);

QString formatSettings(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                       const ParamMap& values, const QString& ap, const QString& manager);

/// Sends joined texts of formatSettings. Gives nothing.
QString sendSettings(AspFacade& facade, AspWebAppErrorCodes& error, RadioFamily family,
                     const QString& query);

/// The WEP keys, which both generations spell alike.
void readWepKeys(AspWirelessSettings& settings, const ParamMap& reply, const QString& prefix);

/// What of the settings may be seen in the log: no key and no password.
QString listing(const AspWirelessSettings& settings);

/// Addresses as the log shows them.
void logAddresses(const QStringList& addresses);
void logLinks(const QList<AspWirelessMeshInst>& links);

/// The values of a write to `instance`: the texts of a table, and the one WEP key that is written.
template <typename Table>
ParamMap valuesOf(const AspWirelessSettings& settings, const Table& fields, const QString& instance)
{
    ParamMap values{{replyKey(instance, wire::wepKey), settings.wepKeys[0]}};
    for (const TextField<AspWirelessSettings>& field : fields)
        values.insert(replyKey(instance, QLatin1String(field.entry)), settings.*field.member);
    return values;
}

/// A radio's status as a write has it.
inline QString enabledText(AspWirelessStatus status)
{
    return status == AspWirelessEnabled ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace quorvel
