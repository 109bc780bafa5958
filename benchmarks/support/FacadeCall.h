#pragma once

#include <quorvel/QuorvelApi1.h>

#include <QString>
#include <cstdlib>

namespace quorvel::bench
{

using General = boost::shared_ptr<AspGeneralSettingsFacade>;

/// The facade of the gateway at an address, recognised over the wire.
inline General facadeAt(const QString& address)
{
    AspCpeFacadeObject gateway({QStringLiteral("admin"), QStringLiteral("admin"), address});
    return gateway.getGeneralSettingsFacade();
}

/// The call that is measured. Ends the program if it fails.
inline void askFirmware(const General& facade)
{
    AspWebAppErrorCodes error;
    if (!facade || facade->getFirmwareVersion(error) != QLatin1String("6.2.14.9"))
        std::abort();
}

} // namespace quorvel::bench
