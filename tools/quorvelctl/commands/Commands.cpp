#include "commands/Commands.h"

namespace quorvelctl
{

void addCommands(CLI::App& app, Session& session)
{
    addIdentityCommands(app, session);
    addPasswordCommands(app, session);
    addWarrantyCommands(app, session);
    addInternetCommands(app, session);
    addWanCommands(app, session);
    addModemCommands(app, session);
    addPhoneCommands(app, session);
    addUsbCommands(app, session);
    addRestartCommands(app, session);
    addWifiCommands(app, session);
    addDumpCommand(app, session);
    addWatchCommand(app, session);
}

} // namespace quorvelctl
