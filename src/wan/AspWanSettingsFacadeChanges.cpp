#include <quorvel/AspWanSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "wan/WanCall.h"
#include "wan/WanKeys.h"

namespace quorvel
{

QString AspWanSettingsFacade::addEntity(const QString& wan, const QString& entityType,
                                        AspWebAppErrorCodes& error)
{
    FacadeCall call(*this, error);
    if (!call.isPermitted())
        return QString();
    const bool added =
        call.ask(&Cpe::getWanImplementor, &WanSettingsImplementor::addEntity, wan, entityType);
    // After a failure as well: the gateway may have created what it couldn't add.
    const QString created =
        call.reply().value(replyKey(replyKey(wire::devmgr0, wire::createInst), entityType));
    logError(added
                 ? QLatin1String("AspWanSettingsFacade::addEntity-> Created entity -> ") + created
                 : QLatin1String("AspWanSettingsFacade::addEntity-> Failed to create entity -> ") +
                       entityType);
    call.reportError();
    return created;
}

bool AspWanSettingsFacade::deleteEntity(const QString& wan, const QString& entityType,
                                        AspWebAppErrorCodes& error)
{
    return change(*this, error, wanCall(&WanSettingsImplementor::deleteEntity, wan, entityType));
}

QString AspWanSettingsFacade::addIface(const QString& wan, const QString& iface,
                                       AspWebAppErrorCodes& error)
{
    const bool added = change(*this, error, wanCall(&WanSettingsImplementor::addIface, wan, iface));
    return QString(QChar(added ? 1 : 0));
}

bool AspWanSettingsFacade::deleteIface(const QString& wan, const QString& iface,
                                       AspWebAppErrorCodes& error)
{
    return change(*this, error, wanCall(&WanSettingsImplementor::deleteIface, wan, iface));
}

bool AspWanSettingsFacade::enableWan(const QString& wan, AspWebAppErrorCodes& error)
{
    return change(*this, error, wanCall(&WanSettingsImplementor::enableWan, wan));
}

bool AspWanSettingsFacade::disableWan(const QString& wan, AspWebAppErrorCodes& error)
{
    return change(*this, error, wanCall(&WanSettingsImplementor::disableWan, wan));
}

bool AspWanSettingsFacade::switchConnectionType(const QList<QString>& enable,
                                                const QList<QString>& disable,
                                                const QString& defaultGw,
                                                AspWebAppErrorCodes& error)
{
    return change(
        *this, error,
        wanCall(&WanSettingsImplementor::switchConnectionType, enable, disable, defaultGw),
        [](bool done) {
            if (done)
                logDebug(QStringLiteral("AspWanSettingsFacade::switchConnectionType ->Wan "
                                        "Connection type switched."));
            else
                logError(QStringLiteral("AspWanSettingsFacade::switchConnectionType -> Failed to "
                                        "switch wan connection type!"));
        });
}

} // namespace quorvel
