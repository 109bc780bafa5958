#include "assembly/Cpe.h"

#include <quorvel/CpeLoginResult.h>

#include "general/GeneralSettingsImplementor.h"
#include "internet/AdslSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/HttpRequestExecutor.h"
#include "protocol/Log.h"
#include "usbhost/UsbHostSettingsImplementor.h"
#include "voice/VoipSettingsImplementor.h"
#include "wan/WanSettingsImplementor.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel
{

Cpe::~Cpe()
{
    abortPendingRequests();
}

void Cpe::abortPendingRequests()
{
    // Newer radios are left out on purpose.
    CpeSettingsImplementor* const abortable[] = {general.get(),  adsl.get(),    wan.get(),
                                                 wireless.get(), usbHost.get(), voip.get()};
    for (CpeSettingsImplementor* implementor : abortable) {
        if (implementor)
            implementor->abortRequests();
    }
}

int Cpe::ensureSession()
{
    if (!general)
        return CpeLoginFailed;
    const QString address = general->getCpeAddress();
    const auto storage = AspCpeSessionStorage::getInstance();
    if (storage->hasSession(address)) {
        logDebug(QLatin1String("Session for ") + address +
                 QLatin1String(" exists in session storage...") + storage->getSession(address));
        return CpeLoginSuccess;
    }
    logDebug(QStringLiteral("Session is expired. Logging in again..."));
    return general->getAuthenticator()->login(boost::make_shared<HttpRequestExecutor>());
}

} // namespace quorvel
