#pragma once

#include <QString>

namespace quorvel
{

/// Where a gateway is and how to log in to it. A plain record; nothing is checked.
struct AuthenticationInfo {
    /// Login name, as the gateway's web interface takes it. May be empty.
    QString user;
    /// Login password, in clear. May be empty.
    QString password;
    /// Address of the gateway: a host name or IP address, with or without "http://" before and
    /// ":port" behind, without a slash at the end. Sessions are shared between all gateway
    /// objects with the same address. No other scheme works: the library speaks plain HTTP.
    QString cpeAddress;
};

} // namespace quorvel
