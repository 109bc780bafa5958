#include "SimulatedRadios.h"

#include <quorvel/AspGeneralSettingsFacade.h>

#include "assembly/CpeBuilderDirector.h"
#include "assembly/CpeBuilderFactory.h"
#include "wireless/WirelessFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

using simulator::Fault;
using simulator::Scenario;

SimulatedRadios::SimulatedRadios(const char* scenario)
    : gateway(Scenario::load(scenario).value_or(Scenario{}))
{
}

void SimulatedRadios::SetUp()
{
    std::string problem;
    ASSERT_TRUE(gateway.start(&problem)) << problem;
    gateway.setRebootTime(std::chrono::milliseconds(0));
    cpe = CpeBuilderDirector().buildCpe(
        CpeBuilderFactory::getInstance()->createBuilder(0),
        {text("admin"), text("admin"), QString::fromStdString(gateway.address())});
    ASSERT_TRUE(cpe);
    radios = std::make_unique<AspWirelessSettingsFacadeManager>(
        cpe, AspGeneralSettingsFacade(cpe).getWirelessCoreList());
    older = boost::make_shared<AspWirelessSettingsFacade>(cpe);
    older->setManager(text("wireless_core-0"));
    newer = boost::make_shared<AspWirelessSettingsFacadeNG>(cpe);
    newer->setManager(text("wireless-0"));
}

QString SimulatedRadios::settingsOf(int radio)
{
    radios->setManagerId(radio);
    return shown(radios->getWirelessSettings(radio, error));
}

AspWirelessSettings SimulatedRadios::network(const char* name, const char* mode, const char* key)
{
    AspWirelessSettings settings;
    settings.ssid = text(name);
    settings.securityMode = text(mode);
    settings.wpaPassword = text(key);
    settings.wepKeys[0] = text(key);
    return settings;
}

QList<AspWirelessSettings> SimulatedRadios::bothNetworks()
{
    return {network("Attic 5 GHz <&>", "wpa_both", "new pass phrase 5"),
            network("Attic", "wpa_both", "new pass phrase 2")};
}

std::string SimulatedRadios::stored(const char* instance, const char* key) const
{
    return gateway.storedValue(instance, key);
}

void SimulatedRadios::inject(const std::string& fault)
{
    const auto known = Fault::fromText(fault);
    ASSERT_TRUE(known) << fault;
    gateway.setFault(*known);
}

} // namespace quorvel::test
