#pragma once

#include "../State.h"

#include <string>

namespace quorvel::simulator
{

/// @name The modem behind a WAN of the layer 2 type "serial"
/// Its state is the WAN's run-time value `simpin_status`; the SIM's own numbers are `sim.pin` and
/// `sim.puk`, and `sim.failures` counts wrong PINs in a row.
/// @{

bool isModem(const State& state, const std::string& wan);

/// Whether the modem can carry a connection: it is in a network and has an access point.
bool isOnline(const State& state, const std::string& wan);

/// What a modem shows in place of its network while it can't enter it; nothing once it can.
Values networkOf(const State& state, const std::string& wan);

/// Hands the PIN in effect, or PIN and PUK, to a SIM that asks for it. The third wrong PIN in a
/// row locks the SIM. A SIM whose numbers the scenario doesn't say keeps its state.
void tryPin(State& state, const std::string& wan);

/// Puts the SIMs back that a restart doesn't change, and hands each the PIN that was saved.
/// @param before the run-time values before the restart
void restartModems(State& state, const Objects& before);
/// @}

} // namespace quorvel::simulator
