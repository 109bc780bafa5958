#pragma once

#include "Gateway.h"
#include "LogWatch.h"
#include "Options.h"
#include "Output.h"

#include <memory>

namespace quorvelctl
{

/// What a command works with. The gateway is reached when a command first asks for it, so that
/// wrong usage costs no request.
class Session
{
public:
    Options options;

    Gateway& gateway();
    Output output() const { return Output(options.json, options.showSecrets); }

    /// Shows the library's log as the options say.
    void applyLogLevel();

    /// Asks on the terminal whether to go on; anything but "y" or "yes" fails as wrong usage.
    void confirm(const QString& question) const;

private:
    LogWatch watch;
    std::unique_ptr<Gateway> opened;
};

} // namespace quorvelctl
