#pragma once

#include "commandline/CommandLine.h"

namespace quorvelctl
{

class Session;

/// Adds every command.
void addCommands(commandline::Command program, Session& session);

/// @name A group each, in a file of its own
/// @{
void addDumpCommand(commandline::Command program, Session& session);
void addIdentityCommands(commandline::Command program, Session& session);
void addInternetCommands(commandline::Command program, Session& session);
void addModemCommands(commandline::Command program, Session& session);
void addPasswordCommands(commandline::Command program, Session& session);
void addPhoneCommands(commandline::Command program, Session& session);
void addRestartCommands(commandline::Command program, Session& session);
void addUsbCommands(commandline::Command program, Session& session);
void addWanCommands(commandline::Command program, Session& session);
void addWarrantyCommands(commandline::Command program, Session& session);
void addWatchCommand(commandline::Command program, Session& session);
void addWifiCommands(commandline::Command program, Session& session);
/// @}

} // namespace quorvelctl
