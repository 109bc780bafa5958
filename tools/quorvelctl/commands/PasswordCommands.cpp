#include "Failure.h"
#include "Session.h"
#include "commands/Commands.h"

#include <memory>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

void check(Session& session, const SecretSource& source)
{
    const QString password = session.readSecret(source);
    Gateway& gateway = session.gateway();
    const bool correct = gateway.ask(QStringLiteral("check the password"), [&](auto& error) {
        return gateway.general().checkCpePassword(password, error);
    });
    if (!correct)
        throw Failure{GatewayFailed, QStringLiteral("that is not the administrator password")};
    session.output().printDone(QStringLiteral("That is the administrator password."));
}

void set(Session& session, const SecretSource& source)
{
    const QString password = session.readSecret(source);
    if (password.isEmpty())
        throw Failure{WrongUsage, QStringLiteral("the new password is empty")};
    Gateway& gateway = session.gateway();
    gateway.demand(QStringLiteral("change the password"),
                   [&](auto& error) { return gateway.general().setCpePassword(password, error); });
    session.output().printDone(QStringLiteral("The administrator password is changed."));
}

} // namespace

void addPasswordCommands(commandline::Command program, Session& session)
{
    auto group = program.addCommand("password", "Check or change the administrator password");
    const struct {
        const char* name;
        const char* help;
        const char* option;
        const char* variable;
        const char* meaning;
        void (*run)(Session&, const SecretSource&);
    } commands[] = {{"check", "Ask the gateway whether a password is the administrator password",
                     "candidate", "QUORVELCTL_CANDIDATE", "password to check", check},
                    {"set", "Change the administrator password", "new-password",
                     "QUORVELCTL_NEW_PASSWORD", "new password", set}};
    for (const auto& command : commands) {
        auto subcommand = group.addCommand(command.name, command.help);
        const auto source = std::make_shared<SecretSource>();
        source->addTo(subcommand, command.option, command.variable, command.meaning);
        subcommand.callback([&session, source, run = command.run] { run(session, *source); });
    }
}

} // namespace quorvelctl
