#pragma once

#include <quorvel/AspWirelessSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacadeManager.h>
#include <quorvel/AspWirelessSettingsFacadeNG.h>

#include "assembly/Cpe.h"
#include "quorvel-simulator/GatewaySimulator.h"
#include "support/LogCapture.h"
#include "support/Text.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>
#include <memory>

namespace quorvel::test
{

/// The library on the radios of a simulated gateway. On `dual` the first radio is the newer one,
/// the second the older one. A restart takes no time. Log lines are captured.
class SimulatedRadios : public testing::Test
{
protected:
    explicit SimulatedRadios(const char* scenario = "dual");

    void SetUp() override;

    /// What the gateway tells of a radio's network, in the form of `shown`.
    QString settingsOf(int radio);
    /// A record for a write.
    static AspWirelessSettings network(const char* name, const char* mode, const char* key);
    /// One for each radio of `dual`, both networks with new names and keys.
    static QList<AspWirelessSettings> bothNetworks();

    std::string stored(const char* instance, const char* key) const;
    void inject(const std::string& fault);

    LogCapture log;
    simulator::GatewaySimulator gateway;
    boost::shared_ptr<Cpe> cpe;
    std::unique_ptr<AspWirelessSettingsFacadeManager> radios;
    /// The facades behind the manager, for what it doesn't hand on.
    boost::shared_ptr<AspWirelessSettingsFacade> older;   ///< of wireless_core-0
    boost::shared_ptr<AspWirelessSettingsFacadeNG> newer; ///< of wireless-0
    /// Neither success nor any failure that occurs, so that a code left unwritten shows.
    AspWebAppErrorCodes error = static_cast<AspWebAppErrorCodes>(77);
};

} // namespace quorvel::test
