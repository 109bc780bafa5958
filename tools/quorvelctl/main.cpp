#include "Failure.h"
#include "Session.h"
#include "commands/Commands.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <iostream>

using namespace quorvelctl;

namespace
{

int run(CLI::App& app, int argc, char** argv)
{
    try {
        app.parse(argc, argv);
        if (app.get_subcommands().empty())
            throw Failure{WrongUsage,
                          QStringLiteral("what to do? quorvelctl --help lists the commands")};
        if (!std::cout.flush())
            throw Failure{GatewayFailed, QStringLiteral("can't write the result")};
        return Success;
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Success : WrongUsage;
    } catch (const Failure& failure) {
        std::cout.flush();
        std::cerr << "quorvelctl: " << failure.message.toStdString() << '\n';
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
    app.footer("Exit status: 0 success, 1 the gateway reported an error, 2 wrong usage, 3 login "
               "refused, 4 not reachable or timed out.");
    // Not required here: so an unknown command is complained of by its name.
    app.require_subcommand(0, 1);
    // Common options may stand behind the command as well.
    app.fallthrough();
    app.parse_complete_callback([&session] { session.applyLogLevel(); });
    addCommands(app, session);
    return run(app, argc, argv);
}
