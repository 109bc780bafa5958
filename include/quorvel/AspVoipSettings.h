#pragma once

#include <quorvel/AspVoipAccount.h>

#include <QList>

namespace quorvel
{

/// A gateway's telephony.
struct AspVoipSettings {
    QList<AspVoipAccount> accounts; ///< lines and analogue port, in the order of their reply keys
    bool enabled = false;           ///< whether telephony as a whole is switched on
};

} // namespace quorvel
