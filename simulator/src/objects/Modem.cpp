#include "Modem.h"

#include <cstdlib>
#include <initializer_list>

namespace quorvel::simulator
{

namespace
{

const char* const simState = "simpin_status";
const char* const simPin = "sim.pin";
const char* const simPuk = "sim.puk";
const char* const failures = "sim.failures";
constexpr int allowedFailures = 3;

std::string statusOf(const State& state, const std::string& wan, const std::string& key)
{
    return valueIn(state.status.read(), wan, key);
}

bool isOneOf(const std::string& text, std::initializer_list<const char*> texts)
{
    for (const char* one : texts) {
        if (text == one)
            return true;
    }
    return false;
}

// Whether the SIM lets the modem into its network.
bool isUnlocked(const State& state, const std::string& wan)
{
    return isOneOf(statusOf(state, wan, simState), {"pin_ok", "puk_ok", "pin_null"});
}

std::string afterPin(Values& sim, const std::string& pin)
{
    const bool right = pin == sim[simPin];
    const int count = right ? 0 : std::atoi(sim[failures].c_str()) + 1;
    sim[failures] = std::to_string(count);
    if (right)
        return "pin_ok";
    return count < allowedFailures ? "pin_failed" : "puk_required";
}

std::string afterPuk(Values& sim, const std::string& puk, const std::string& newPin)
{
    if (puk != sim[simPuk] || newPin.empty())
        return "puk_failed";
    sim[simPin] = newPin;
    sim[failures] = "0";
    return "puk_ok";
}

} // namespace

bool isModem(const State& state, const std::string& wan)
{
    return valueIn(state.running.read(), wan, "l2type") == "serial";
}

bool isOnline(const State& state, const std::string& wan)
{
    return isUnlocked(state, wan) && statusOf(state, wan, "connection_mode") != "no service" &&
           !valueIn(state.running.read(), wan, "apn").empty();
}

Values networkOf(const State& state, const std::string& wan)
{
    if (isUnlocked(state, wan))
        return {};
    return {{"active", "0"},
            {"connection_mode", "no service"},
            {"operator", ""},
            {"roaming", ""},
            {"signal_strength", "0"}};
}

void tryPin(State& state, const std::string& wan)
{
    if (statusOf(state, wan, simPin).empty())
        return;
    const std::string asks = statusOf(state, wan, simState);
    const std::string pin = valueIn(state.running.read(), wan, "pin");
    const std::string puk = valueIn(state.running.read(), wan, "puk");
    Values& sim = state.status.write()[wan];
    if (isOneOf(asks, {"pin_init", "pin_required", "pin_failed"}) && !pin.empty())
        sim[simState] = afterPin(sim, pin);
    else if (isOneOf(asks, {"puk_required", "puk_failed"}) && !puk.empty())
        sim[simState] = afterPuk(sim, puk, pin);
}

void restartModems(State& state, const Objects& before)
{
    for (const std::string& wan : state.instancesOf("wan")) {
        if (!isModem(state, wan))
            continue;
        Values& sim = state.status.write()[wan];
        for (const char* key : {simPin, simPuk, failures}) {
            if (const std::string kept = valueIn(before, wan, key); !kept.empty())
                sim[key] = kept;
        }
        if (std::atoi(sim[failures].c_str()) >= allowedFailures)
            sim[simState] = "puk_required";
        tryPin(state, wan);
    }
}

} // namespace quorvel::simulator
