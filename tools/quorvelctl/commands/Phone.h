#pragma once

#include "Session.h"
#include "commandline/CommandLine.h"

namespace quorvelctl
{

/// The gateway's telephony; fails if the gateway has none.
boost::shared_ptr<quorvel::AspVoipSettingsFacade> telephony(Gateway& gateway);

/// Fails if the telephony is of the older kind: the library gets no accounts, gains and calls from
/// it, and would write accounts to it with empty texts.
void expectNewerTelephony(Gateway& gateway);

/// The lines and the analogue port of a newer telephony. Fails if the gateway tells of none.
QList<quorvel::AspVoipAccount> readLines(Gateway& gateway);

/// Adds the command that lists calls to those of the telephony.
void addPhoneHistory(commandline::Command group, Session& session);

} // namespace quorvelctl
