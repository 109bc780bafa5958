#include <quorvel/AspGeneralSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "general/GeneralCall.h"
#include "general/GeneralKeys.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Vocabulary.h"

namespace quorvel
{

bool AspGeneralSettingsFacade::setCpePassword(const QString& password, AspWebAppErrorCodes& error)
{
    return change(
        *this, error, general(&GeneralSettingsImplementor::setCpePassword, password),
        [&](bool done) {
            if (!done) {
                logDebug(QStringLiteral(
                    "AspGeneralSettingsFacade::setCpePassword -> Cpe password can not changed"));
                return;
            }
            logDebug(
                QStringLiteral("AspGeneralSettingsFacade::setCpePassword -> Cpe password changed"));
            // The next login needs the new one.
            cpe->getGeneralImplementor()->getAuthenticator()->setPassword(password);
        });
}

bool AspGeneralSettingsFacade::checkCpePassword(const QString& password, AspWebAppErrorCodes& error)
{
    bool correct = false;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::checkCpePassword, password),
        [&](const ParamMap& reply) {
            const QString verdict = reply.value(replyKey(wire::webui0, wire::adminPassword));
            correct = verdict.toLower() == QLatin1String("ok");
        },
        "AspGeneralSettingsFacade::checkCpePassword -> Failed to check password validity!");
    return correct;
}

bool AspGeneralSettingsFacade::checkSession(const QString& session, AspWebAppErrorCodes& error)
{
    bool valid = false;
    fetch(
        *this, error, general(&GeneralSettingsImplementor::checkSession, session),
        [&](const ParamMap& reply) {
            valid = reply.contains(replyKey(wire::webui0, wire::sessionOk));
        },
        "AspGeneralSettingsFacade::checkSession -> Failed to check session validity!");
    return valid;
}

QString AspGeneralSettingsFacade::getCurrentSessionId()
{
    if (!cpe || !cpe->getGeneralImplementor())
        return QString();
    return AspCpeSessionStorage::getInstance()->getSession(
        cpe->getGeneralImplementor()->getCpeAddress());
}

} // namespace quorvel
