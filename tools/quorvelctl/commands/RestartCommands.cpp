#include "Session.h"
#include "Waiting.h"
#include "commands/Commands.h"

#include <memory>

using namespace quorvel;

namespace quorvelctl
{

namespace
{

struct Restart {
    const char* name;
    const char* help;
    const char* question;
    const char* what;
    int (AspGeneralSettingsFacade::*operation)(AspWebAppErrorCodes&);
    bool confirmed = false;
    bool wait = false;
};

void run(Session& session, const Restart& restart)
{
    if (!restart.confirmed)
        session.confirm(QString::fromLatin1(restart.question).arg(session.login().cpeAddress));
    Gateway& gateway = session.gateway();
    // A gateway that doesn't tell how long it takes costs an error line, and restarts all the same.
    const int duration = gateway.order(QString::fromLatin1(restart.what), [&](auto& error) {
        return (gateway.general().*restart.operation)(error);
    });
    Record record{{QStringLiteral("durationMs"), QStringLiteral("Takes about (ms)"), duration}};
    if (restart.wait) {
        waitUntilBack(gateway.address(), duration);
        record.append({QStringLiteral("back"), QStringLiteral("Answers again"), true});
    }
    session.output().print(record);
}

} // namespace

void addRestartCommands(commandline::Command program, Session& session)
{
    const Restart restarts[] = {
        {"reboot", "Restart the gateway", "Restart the gateway at %1?", "restart the gateway",
         &AspGeneralSettingsFacade::rebootCpe},
        {"factory-reset", "Reset the gateway to its factory settings, which loses all settings",
         "Reset the gateway at %1 to its factory settings? All its settings are lost.",
         "reset the gateway", &AspGeneralSettingsFacade::factoryDefault}};
    for (const Restart& row : restarts) {
        auto command = program.addCommand(row.name, row.help);
        const auto restart = std::make_shared<Restart>(row);
        command.addFlag("-y,--yes", restart->confirmed, "Don't ask");
        command.addFlag("--wait", restart->wait, "Wait until the gateway answers again");
        command.callback([&session, restart] { run(session, *restart); });
    }
}

} // namespace quorvelctl
