#include "assembly/CpeBuilder.h"

#include "general/GeneralSettingsImplementor.h"
#include "internet/AdslSettingsImplementor.h"
#include "protocol/AspCpeAuthenticatorV1.h"
#include "protocol/HttpRequestExecutor.h"
#include "protocol/Log.h"
#include "usbhost/UsbHostSettingsImplementor.h"
#include "voice/VoipSettingsImplementor.h"
#include "wan/WanSettingsImplementor.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

bool CpeBuilder::buildCpe(const ParamMap& parameters)
{
    cpe = boost::make_shared<Cpe>();
    cpe->setParameters(boost::make_shared<ParamMap>(parameters));
    return true;
}

bool CpeBuilder::buildRequestExecutor()
{
    if (!hasCpe(QStringLiteral("No cpe found. You have to build cpe firstly...")))
        return false;
    // A transport for each, so that a request of one family doesn't make another busy.
    for (const auto& implementor : settingsImplementors())
        implementor->setRequestExecutor(boost::make_shared<HttpRequestExecutor>());
    return true;
}

bool CpeBuilder::buildAuthenticator(const AuthenticationInfo& info)
{
    if (!hasCpe(QStringLiteral("No cpe found. You have to build cpe firstly...")) ||
        !hasParameters(QString()))
        return false;
    const auto authenticator = boost::make_shared<AspCpeAuthenticatorV1>();
    authenticator->setCpeAddress(info.cpeAddress);
    authenticator->setUser(info.user);
    authenticator->setPassword(info.password);
    for (const auto& implementor : settingsImplementors())
        implementor->setAuthenticator(authenticator);
    return true;
}

bool CpeBuilder::hasCpe(const QString& complaint) const
{
    if (cpe)
        return true;
    logError(complaint);
    return false;
}

bool CpeBuilder::hasParameters(const QString& step) const
{
    if (cpe->getParameters())
        return true;
    logError(step +
             QLatin1String("No cpe parameter found. You have to build cpe parameters firstly..."));
    return false;
}

QList<boost::shared_ptr<CpeSettingsImplementor>> CpeBuilder::settingsImplementors() const
{
    const boost::shared_ptr<CpeSettingsImplementor> all[] = {
        cpe->getAdslImplementor(),   cpe->getWirelessImplementor(), cpe->getWirelessImplementorNG(),
        cpe->getVoipImplementor(),   cpe->getGeneralImplementor(),  cpe->getWanImplementor(),
        cpe->getUsbHostImplementor()};
    QList<boost::shared_ptr<CpeSettingsImplementor>> existing;
    for (const auto& implementor : all) {
        if (implementor)
            existing.append(implementor);
    }
    return existing;
}

} // namespace quorvel
