#pragma once

#include <QString>

namespace quorvel
{

/// Which functions recognition found on a gateway, and in which version. An empty text means that
/// the gateway lacks the function; any other text is the version that was found.
struct AspCpeProperties {
    QString xmlVersion;             ///< dialect of the web application: "1.0.0" or "1.0.1"
    QString generalSettingsVersion; ///< identity, passwords, reboot, client lists
    QString adslVersion;            ///< DSL line
    QString ethernetVersion;        ///< Ethernet WAN
    QString wanVersion;             ///< WAN objects: "1" is the older, "2" the newer model
    QString wirelessVersion;        ///< wireless of either generation
    QString voipVersion;            ///< telephony: "1" is the older, "2" the newer model
    QString threeGVersion;          ///< 3G modem
    QString usbHostVersion;         ///< USB host port
    QString pptpVersion;            ///< PPTP tunnels
    QString l2tpVersion;            ///< L2TP tunnels
    QString warrantyVersion;        ///< warranty record kept by the gateway
};

} // namespace quorvel
