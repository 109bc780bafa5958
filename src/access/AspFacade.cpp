#include <quorvel/AspFacade.h>

#include "assembly/Cpe.h"
#include "protocol/Log.h"
#include "protocol/ParamKeys.h"

namespace quorvel
{

AspFacade::AspFacade(boost::shared_ptr<Cpe> cpe) : cpe(cpe), reserved(0) {}

AspFacade::AspFacade(const AspFacade& other) = default;

AspFacade& AspFacade::operator=(const AspFacade& other) = default;

AspFacade::~AspFacade() = default;

AspWebAppErrorCodes AspFacade::validateCpe()
{
    if (!cpe) {
        logError(QStringLiteral("AspFacade::validateCpe -> Cpe is null!"));
        return AspWebAppCpeNull;
    }
    // One test stands for the whole Cpe, whichever facade asks.
    if (!cpe->getGeneralImplementor()) {
        logError(QStringLiteral("AspFacade::validateCpe -> Cpe::not correctly build!"));
        return AspWebAppCpeNotBuilt;
    }
    return AspWebAppNoError;
}

AspWebAppErrorCodes AspFacade::getErrorCode(const ParamMap& result)
{
    // Other login results have no effect: a transport failure brings its own error.
    if (result.value(AUTH_PARAM_LOGINRESULT).toInt() == 1)
        return AspWebAppLoginFailed;
    const int error = result.value(webappErrorKey).toInt();
    if (error == AspWebAppDeviceStatus19)
        return AspWebAppNoError;
    return static_cast<AspWebAppErrorCodes>(error);
}

} // namespace quorvel
