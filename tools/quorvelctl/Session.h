#pragma once

#include "Gateway.h"
#include "LogWatch.h"
#include "Options.h"
#include "Output.h"

#include <functional>
#include <memory>

namespace quorvelctl
{

/// What a command works with. The gateway is reached when a command first asks for it, so that
/// wrong usage costs no request.
class Session
{
public:
    Options options;

    /// Where the gateway is and how to log in to it, with its secret read at the first call: of
    /// all that a command reads from standard input the login password comes first.
    const quorvel::AuthenticationInfo& login();
    Gateway& gateway();
    /// From now on the gateway is reached by way of this address, which relays to it.
    void reachVia(const QString& address);
    /// A secret that a command needs besides, read before the gateway is asked anything.
    QString readSecret(const SecretSource& source);
    Output output() const { return Output(options.json, options.showSecrets, *results); }

    /// What `run` prints, as JSON and in place of printing it.
    QByteArray collectJson(const std::function<void()>& run);

    /// Shows the library's log as the options say.
    void applyLogLevel();

    /// Asks on the terminal whether to go on; anything but "y" or "yes" fails as wrong usage.
    void confirm(const QString& question) const;

private:
    LogWatch watch;
    std::ostream* results = &std::cout;
    QString via;
    std::unique_ptr<quorvel::AuthenticationInfo> credentials;
    std::unique_ptr<Gateway> opened;
};

} // namespace quorvelctl
