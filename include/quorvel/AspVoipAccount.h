#pragma once

#include <QString>

namespace quorvel
{

/// A telephone line or the analogue port. A text that the gateway doesn't report is empty.
///
/// Writing an account sends `id`, `authUserName`, `authPassword`, the address made of `uri` and the
/// domain, and `enabled`; writing gains sends `id`, `transmitGain` and `receiveGain`. Everything
/// else is only read.
struct AspVoipAccount {
    QString id;              ///< number of the line, from "0"; "2" is the analogue port
    QString type;            ///< "line" for a SIP line, "fxo" for the analogue port
    int voipStatus = 0;      ///< state of a SIP line, in the gateway's own numbering
    QString userName;        ///< name that the gateway shows for the line
    QString phoneNumber;     ///< telephone number that the gateway shows for the line
    QString uri;             ///< user part of the SIP address, without "SIP:" and domain
    QString proxyServer;     ///< SIP proxy server; the domain of the address if that is empty
    QString userAgentDomain; ///< SIP domain
    QString authUserName;    ///< name for the login to the SIP server
    QString authPassword;    ///< password for it, in clear
    /// Loudness towards the network: a percentage of the range that the host's configuration gives
    /// its kind of port, as text. Empty if the gateway reports none, or if the range has no extent;
    /// an empty one, or one that is no number, is not written.
    QString transmitGain;
    QString receiveGain;  ///< loudness towards the telephone, under the same rules
    bool gainTag = false; ///< the host's own; the library neither sets nor reads it
    bool changed = false; ///< for the host to set: only a changed account is written
    bool enabled = false; ///< whether the line is switched on; always false for the analogue port
};

} // namespace quorvel
