#include "Failure.h"
#include "Output.h"
#include "Session.h"
#include "commands/Commands.h"
#include "manual/Manual.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <iostream>

using namespace quorvelctl;

namespace
{

/// The command that was given as far as it was understood, the tool's own name first.
struct Given {
    const CLI::App* command;
    QString name;
};

Given givenCommand(const CLI::App& app)
{
    Given given{&app, QStringLiteral("quorvelctl")};
    while (!given.command->get_subcommands().empty()) {
        given.command = given.command->get_subcommands().front();
        given.name += QLatin1Char(' ') + QString::fromStdString(given.command->get_name());
    }
    return given;
}

/// Fails if a command was given that is but a group of commands, or none at all.
void expectWholeCommand(const CLI::App& app)
{
    const auto any = [](const CLI::App*) { return true; };
    const Given given = givenCommand(app);
    if (!given.command->get_subcommands(any).empty())
        throw Failure{WrongUsage,
                      QStringLiteral("what to do? %1 --help lists the commands").arg(given.name)};
}

/// Commands are not required by the parser, but afterwards: so that an unknown one is complained of
/// by its name.
void letCommandsLack(CLI::App& app)
{
    const auto any = [](CLI::App*) { return true; };
    app.require_subcommand(0, 1);
    for (CLI::App* group : app.get_subcommands(any))
        letCommandsLack(*group);
}

int run(CLI::App& app, int argc, char** argv)
{
    try {
        app.parse(argc, argv);
        expectWholeCommand(app);
        if (!std::cout.flush())
            throw Failure{GatewayFailed, QStringLiteral("can't write the result")};
        return Success;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) // help and version
            return app.exit(error);
        std::cerr << "quorvelctl: " << error.what() << "; " << givenCommand(app).name.toStdString()
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
    CLI::App app("Manages a home gateway from the shell.", "quorvelctl");
    Session session;
    session.options.addTo(app);
    app.set_version_flag("--version", "quorvelctl " QUORVELCTL_VERSION);
    app.footer("quorvelctl --help lists the options of every command.");
    // Common options may stand behind the command as well.
    app.fallthrough();
    app.parse_complete_callback([&session] { session.applyLogLevel(); });
    addCommands(app, session);
    quorvel::manual::addManual(app);
    letCommandsLack(app);
    app.footer("Exit status: 0 success, 1 the gateway reported an error, 2 wrong usage, 3 login "
               "refused, 4 not reachable or timed out.");
    return run(app, argc, argv);
}
