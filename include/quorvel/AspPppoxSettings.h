#pragma once

#include <QString>

namespace quorvel
{

/// Settings of a PPP entity (PPPoE or PPPoA). A text that the gateway doesn't report is empty.
struct AspPppoxSettings {
    QString type;            ///< "pppoe" or "pppoa"
    QString username;        ///< as the provider gave it, with whatever extension it needs
    QString password;        ///< in clear
    QString mtu;             ///< in bytes; read only, the writes choose it by the link type
    QString lcpEchoInterval; ///< between two echo requests, in the gateway's unit; read only
    QString lcpEchoFailure;  ///< unanswered echo requests until the link counts as lost; read only
    QString ondemand;        ///< whether the link is up only while it is used; read only
    QString idle;            ///< how long until an unused link goes down; read only
};

} // namespace quorvel
