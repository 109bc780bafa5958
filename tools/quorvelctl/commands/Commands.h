#pragma once

#include <CLI/App.hpp>

namespace quorvelctl
{

class Session;

/// Adds every command.
void addCommands(CLI::App& app, Session& session);

/// @name A group each, in a file of its own
/// @{
void addDumpCommand(CLI::App& app, Session& session);
void addIdentityCommands(CLI::App& app, Session& session);
void addInternetCommands(CLI::App& app, Session& session);
void addModemCommands(CLI::App& app, Session& session);
void addPasswordCommands(CLI::App& app, Session& session);
void addPhoneCommands(CLI::App& app, Session& session);
void addRestartCommands(CLI::App& app, Session& session);
void addUsbCommands(CLI::App& app, Session& session);
void addWanCommands(CLI::App& app, Session& session);
void addWarrantyCommands(CLI::App& app, Session& session);
void addWatchCommand(CLI::App& app, Session& session);
void addWifiCommands(CLI::App& app, Session& session);
/// @}

} // namespace quorvelctl
