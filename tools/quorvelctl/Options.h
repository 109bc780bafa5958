#pragma once

#include "Secrets.h"
#include "commandline/CommandLine.h"

#include <QString>
#include <string>

namespace quorvelctl
{

/// What every command takes.
class Options
{
public:
    void addTo(commandline::Command program);

    bool json = false;
    bool showSecrets = false;

    /// The gateway's address; without the option that of the machine's default gateway, which is
    /// then told on standard error.
    QString address() const;
    QString user() const { return QString::fromStdString(userName); }
    QString password() const { return passwordSource.read(); }
    /// Lines of the library below this level are not shown.
    int logLevel() const;

private:
    std::string givenAddress;
    std::string userName = "admin";
    std::string levelName = "off";
    SecretSource passwordSource;
};

} // namespace quorvelctl
