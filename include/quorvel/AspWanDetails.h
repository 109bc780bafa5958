#pragma once

#include <QList>
#include <QString>

namespace quorvel
{

/// A WAN object: what it is made of and how it is doing. A text that the gateway doesn't report is
/// empty, and so is the name of an entity that the WAN doesn't have.
struct AspWanDetails {
    bool enabled = false;        ///< switched on
    bool isConnected = false;    ///< its connection is up
    QString connectionType;      ///< layer 2: "dsl", "eth" or "serial", as the gateway spells it
    QList<QString> ethLinkTypes; ///< link types that it can have over Ethernet, at most 20
    QList<QString> dslLinkTypes; ///< link types that it can have over DSL, at most 20
    QString linkType;            ///< the link type that it has, in the gateway's words
    QString localIp;             ///< IP address
    QString pvcInstance;         ///< its PVC, as "pvc-0"
    QString rfc2684Instance;     ///< its RFC 2684 encapsulation
    QString pppoxInstance;       ///< its PPP connection
    QString staticInstance;      ///< its static address
    QString wanVlanInstance;     ///< its VLAN
    QString dhcpcInstance;       ///< its DHCP client
    /// The VPN tunnels that it names anywhere, as "vpn-0", by their numbers. A tunnel is missed
    /// if its number is not below the number of the reply's entries.
    QList<QString> vpnInstances;
    QString reserved1; ///< always empty
    QString reserved2; ///< always empty
    QString reserved3; ///< always empty
    QString reserved4; ///< always empty
};

} // namespace quorvel
