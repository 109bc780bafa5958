#pragma once

#include "commandline/CommandLine.h"

#include <QString>
#include <optional>
#include <string>

namespace quorvelctl
{

/// Where a secret comes from: a file, standard input or the environment, never an argument, which
/// other users of the machine could see.
class SecretSource
{
public:
    /// Adds --NAME-file and --NAME-stdin to a command.
    void addTo(commandline::Command command, const std::string& name, const std::string& variable,
               const std::string& meaning);

    /// @name A source that another option than those two named
    /// @{
    static SecretSource inFile(const std::string& meaning, const std::string& path);
    static SecretSource onStdin(const std::string& meaning);
    static SecretSource inVariable(const std::string& meaning, const std::string& variable);
    /// @}

    bool isGiven() const;
    /// Whether an option gives it, so that it is meant for this very run.
    bool isGivenByOption() const { return file || fromStdin; }

    /// The secret: the first line of the file, else the next line of standard input, else the
    /// variable. Fails as wrong usage if none of them is given, or the file can't be read.
    QString read() const;

private:
    std::string name;
    std::string variable;
    std::string meaning;
    std::optional<std::string> file;
    bool fromStdin = false;
};

/// A line of the library's log without the passwords and cookies that it may hold.
QString withoutSecrets(const QString& line);

/// What is shown in place of a secret.
QString hiddenSecret();

} // namespace quorvelctl
