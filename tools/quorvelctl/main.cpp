#include "Failure.h"
#include "Output.h"
#include "Session.h"
#include "commandline/CommandLine.h"
#include "commands/Commands.h"
#include "manual/Manual.h"

#include <QCoreApplication>
#include <iostream>

using namespace quorvelctl;

namespace
{

/// Fails if a command was given that is but a group of commands, or none at all.
void expectWholeCommand(const commandline::CommandLine& line)
{
    if (line.lacksCommand())
        throw Failure{WrongUsage, QStringLiteral("what to do? %1 --help lists the commands")
                                      .arg(QString::fromStdString(line.given()))};
}

int run(commandline::CommandLine& line, int argc, char** argv)
{
    try {
        if (!line.run(argc, argv)) // help and version
            return Success;
        expectWholeCommand(line);
        if (!std::cout.flush())
            throw Failure{GatewayFailed, QStringLiteral("can't write the result")};
        return Success;
    } catch (const commandline::Misuse& misuse) {
        std::cerr << "quorvelctl: " << misuse.message << "; " << line.given()
                  << " --help tells more\n";
        return WrongUsage;
    } catch (const Failure& failure) {
        std::cout.flush();
        // A message may name what the gateway names.
        std::cerr << "quorvelctl: " << printable(failure.message).toStdString() << '\n';
        return failure.status;
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    commandline::CommandLine line("quorvelctl", "Manages a home gateway from the shell.");
    Session session;
    session.options.addTo(line.program());
    line.setVersion("quorvelctl " QUORVELCTL_VERSION);
    line.setFooter("quorvelctl --help lists the options of every command.");
    // Common options may stand behind the command as well.
    line.takeOptionsAnywhere();
    line.whenRead([&session] { session.applyLogLevel(); });
    addCommands(line.program(), session);
    quorvel::manual::addManual(line);
    line.letCommandsLack();
    line.setFooter(
        "Exit status: 0 success, 1 the gateway reported an error, 2 wrong usage, 3 login "
        "refused, 4 not reachable or timed out.");
    return run(line, argc, argv);
}
