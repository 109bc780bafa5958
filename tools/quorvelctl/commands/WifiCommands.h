#pragma once

#include "commandline/CommandLine.h"

#include <QStringList>
#include <memory>
#include <string>

namespace quorvelctl
{

class Session;

/// Adds --radio to a command.
std::shared_ptr<std::string> addRadioOption(commandline::Command command);

/// Tells which of the radios that were asked can't answer `question`; fails if none can.
void excuse(const QStringList& silent, int asked, const char* question);

/// @name The commands of the group `wifi` that have a file of their own
/// @{
void addWifiCapabilities(commandline::Command group, Session& session);
void addWifiQr(commandline::Command group, Session& session);
void addWifiSet(commandline::Command group, Session& session);
/// @}

} // namespace quorvelctl
