#pragma once

#include <QString>

namespace quorvel
{

/// Credentials of a PPP entity for PPPoE with a second address ("russian_pppoe").
struct AspRussianPppoxSettings {
    QString username;          ///< read only: the writes take it from AspPppoxSettings
    QString password;          ///< read only, in clear; the writes take it from AspPppoxSettings
    bool reservedFlag = false; ///< neither read nor written
    /// Whether a write sends the static addresses too. The getter leaves it false.
    bool useStatic = false;
};

} // namespace quorvel
