#include "operations/SimulatedHome.h"

#include "assembly/CpeBuilderDirector.h"
#include "assembly/CpeBuilderFactory.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvel::test
{

using simulator::Fault;
using simulator::Scenario;

namespace
{

const struct {
    const char* instance;
    const char* key;
    const char* value;
} heldValues[] = {
    {"webui-0", "password", "login secret"},
    {"sysmgr-0", "password", "login secret"},
    {"pppox-0", "password", "ppp secret"},
    {"vpn-0", "password-0", "vpn secret"},
    {"l2tp-0", "password-0", "l2tp secret"},
    {"wan-2", "pin", "pin secret"},
    {"wan-2", "puk", "puk secret"},
    {"wireless_ap-0", "wpa_password", "wpa secret"},
    {"wireless_ap-0", "wpa_radius_key", "radius secret"},
    {"wireless_ap-0", "wep_key1", "wep secret 1"},
    {"wireless_ap-0", "wep_key2", "wep secret 2"},
    {"wireless_ap-0", "wep_key3", "wep secret 3"},
    {"wireless_ap-0", "wep_key4", "wep secret 4"},
    {"wireless-0", "ap0_wpa_password", "wpa secret"},
    {"wireless-0", "ap0_wep_key1", "wep secret 1"},
    {"wireless-0", "ap0_wep_key2", "wep secret 2"},
    {"wireless-0", "ap0_wep_key3", "wep secret 3"},
    {"wireless-0", "ap0_wep_key4", "wep secret 4"},
    {"voice-0", "VoiceService.VoiceProfile.Line[0].SIP.AuthPassword", "sip secret"},
    {"warranty-0", "token", "token secret"},
    {"warranty-0", "usertoken", "usertoken secret"},
    // For an interface to be taken away.
    {"wan-1", "ifaces", "eth0"},
};

Scenario scenarioOfHome()
{
    Scenario scenario = Scenario::load("dual").value_or(Scenario{});
    // What the modem tries after each restart.
    scenario.status["wan-2"]["sim.pin"] = "pin secret";
    return scenario;
}

} // namespace

SimulatedHome::SimulatedHome() : scenario(scenarioOfHome()), gateway(scenario)
{
    std::string problem;
    EXPECT_TRUE(gateway.start(&problem)) << problem;
    gateway.setRebootTime(std::chrono::milliseconds(0));
    for (const auto& held : heldValues)
        gateway.setValue(held.instance, held.key, held.value);
    gateway.restart();
    const AuthenticationInfo info{text("admin"), text("login secret"),
                                  QString::fromStdString(gateway.address())};
    const auto cpe =
        CpeBuilderDirector().buildCpe(CpeBuilderFactory::getInstance()->createBuilder(0), info);
    EXPECT_TRUE(cpe);
    asked = std::make_unique<AskedGateway>(info, cpe);
}

void SimulatedHome::inject(const std::string& fault)
{
    const auto known = Fault::fromText(fault + " 1 on=webapp");
    ASSERT_TRUE(known) << fault;
    gateway.setFault(*known);
}

bool SimulatedHome::wasStruck() const
{
    const auto exchanges = gateway.exchanges();
    return std::any_of(exchanges.begin(), exchanges.end(),
                       [](const simulator::Exchange& exchange) { return !exchange.fault.empty(); });
}

} // namespace quorvel::test
