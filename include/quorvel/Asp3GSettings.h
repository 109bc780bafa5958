#pragma once

#include <quorvel/Asp3GConnectionMode.h>
#include <quorvel/Asp3GSimPinStatus.h>

#include <QList>
#include <QString>

namespace quorvel
{

/// A 3G modem: its settings and its state. Setting writes `pin`, `puk`, `apn`, `prefMode` and
/// `force3g`, all five; the other fields are only read. A text that the gateway doesn't report is
/// empty, a flag false and a number 0.
struct Asp3GSettings {
    QString pin;          ///< PIN of the SIM card, in clear; not validated, empty is sent as empty
    QString puk;          ///< PUK of the SIM card, in clear; not validated, empty is sent as empty
    QString apn;          ///< access point name of the mobile network
    int prefMode = 0;     ///< preferred technology, in the gateway's own numbering
    bool force3g = false; ///< whether the modem is held to 3G
    Asp3GSimPinStatus simPinStatus = Asp3GSimPinStatusUnknown; ///< how the SIM card's PIN stands
    bool active = false;                                       ///< whether the modem is in use
    QString imei;                                              ///< the modem's equipment number
    bool roaming = false; ///< whether it is logged in to a foreign network
    QString operatorName; ///< the network's name
    Asp3GConnectionMode connectionMode = Asp3GConnectionModeUnknown; ///< technology in use
    int signalStrength = 0;                                          ///< in the gateway's own unit
    QList<QString> prefModeList; ///< names of the technologies that can be preferred
};

} // namespace quorvel
