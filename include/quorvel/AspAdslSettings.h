#pragma once

#include <quorvel/AspAnnexMode.h>
#include <quorvel/AspDhcpSettings.h>
#include <quorvel/AspPppoxSettings.h>
#include <quorvel/AspPvcSettings.h>
#include <quorvel/AspRussianPppoxSettings.h>
#include <quorvel/AspStaticSettings.h>
#include <quorvel/AspVpnSettings.h>
#include <quorvel/AspWanVlanSettings.h>

#include <QString>

namespace quorvel
{

/// A connection to be written, over DSL or over Ethernet. The link type decides which fields are
/// sent; the others are not looked at.
struct AspAdslSettings {
    // Names of entities that the WAN has already, as "pppox-0"; empty for one that it lacks. What
    // belongs to an entity without a name is mostly not written.
    QString pppoxInstance;   ///< for "pppoe", "pppoa" and "russian_pppoe"
    QString rfc2684Instance; ///< for "pppoe" and "pppoa" over DSL: encapsulation
    QString vlanInstance;    ///< not written
    QString pvcInstance;     ///< for "pppoe" and "pppoa" over DSL: the circuit
    QString dhcpcInstance;   ///< for "vpn" and "l2tp" over Ethernet: the client to put into effect
    QString vpnInstance;     ///< for "vpn"
    QString l2tpInstance;    ///< for "l2tp"
    QString staticInstance;  ///< for "static", and where `useStatic` is set
    QString bridgeInstance;  ///< not written
    QString wanVlanInstance; ///< for all link types over Ethernet but "bridge"
    /// "pppoe", "pppoa" (DSL only), "russian_pppoe", "vpn" (PPTP), "l2tp", "dhcp", "bridge" or
    /// "static", in this spelling. Anything else is refused without a request.
    QString linkType;
    AspWanVlanSettings wanVlanSettings;           ///< only `vlanid` is written
    AspPppoxSettings pppoxSettings;               ///< `username` and `password`, for
                                                  ///< "russian_pppoe" also `type`
    AspPvcSettings pvcSettings;                   ///< `vpi`, `vci` and `vlanid`
    AspVpnSettings vpnSettings;                   ///< for "vpn"
    AspVpnSettings l2tpSettings;                  ///< for "l2tp"
    AspStaticSettings staticSettings;             ///< goes with `staticInstance`
    AspRussianPppoxSettings russianPppoxSettings; ///< only `useStatic` counts
    AspDhcpSettings dhcpSettings;                 ///< not written
    /// What the DSL line can do, as getSupportedAnnexMode told. Only with AspAnnexAB is the annex
    /// written.
    AspAnnexMode supportedAnnexMode = AspAnnexUnknown;
    /// The annex to choose: AspAnnexUnknown counts as AspAnnexA.
    AspAnnexMode currentAnnexMode = AspAnnexUnknown;
};

} // namespace quorvel
