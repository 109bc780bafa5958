#pragma once

#include <CLI/App.hpp>
#include <QStringList>
#include <memory>
#include <string>

namespace quorvelctl
{

class Session;

/// Adds --radio to a command.
std::shared_ptr<std::string> addRadioOption(CLI::App& command);

/// Tells which of the radios that were asked can't answer `question`; fails if none can.
void excuse(const QStringList& silent, int asked, const char* question);

/// @name The commands of the group `wifi` that have a file of their own
/// @{
void addWifiCapabilities(CLI::App& group, Session& session);
void addWifiQr(CLI::App& group, Session& session);
void addWifiSet(CLI::App& group, Session& session);
/// @}

} // namespace quorvelctl
