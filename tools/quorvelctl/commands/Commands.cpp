#include "commands/Commands.h"

namespace quorvelctl
{

void addCommands(commandline::Command program, Session& session)
{
    addIdentityCommands(program, session);
    addPasswordCommands(program, session);
    addWarrantyCommands(program, session);
    addInternetCommands(program, session);
    addWanCommands(program, session);
    addModemCommands(program, session);
    addPhoneCommands(program, session);
    addUsbCommands(program, session);
    addRestartCommands(program, session);
    addWifiCommands(program, session);
    addDumpCommand(program, session);
    addWatchCommand(program, session);
}

} // namespace quorvelctl
