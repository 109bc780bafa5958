#pragma once

#include <quorvel/AspWirelessStatus.h>

#include <QString>
#include <cstdint>

namespace quorvel
{

/// Name and security of a radio's network. The texts are the gateway's own; an empty one isn't
/// known. Only those marked as written reach the gateway in a write. The keys and the password are
/// in clear.
struct AspWirelessSettings {
    /// The radio that the record belongs to. The host's own note: the library never sets it.
    std::int32_t managerIndex = 0;
    QString ssid;         ///< network name; written
    QString securityMode; ///< one of the radio's security modes, as "wpa_both"; written
    QString wepAuthType;  ///< WEP authentication type; written
    QString wepKeyType;   ///< WEP key type; written
    QString wepKeyIndex;  ///< which of the WEP keys is in use; written
    /// The WEP keys. Only the first is written, whichever is in use.
    QString wepKeys[4];
    QString wpaAuthType; ///< WPA authentication type
    QString wpaPassword; ///< WPA pass phrase; written
    // The next six exist only on radios of the older generation.
    QString wpaRekeyInterval;         ///< group rekey interval
    QString wpaRadiusAddr;            ///< RADIUS server address
    QString wpaRadiusPort;            ///< RADIUS server port
    QString wpaRadiusKey;             ///< RADIUS shared secret
    QString wpaRadiusEapReauthPeriod; ///< EAP reauthentication period
    QString wpa2RsnPreauth;           ///< WPA2 preauthentication
    /// Frequency or channel setting of an older radio, band of a newer one.
    QString freq;
    /// Whether the write of all radios switches this one on; anything but AspWirelessEnabled
    /// switches it off. A radio's settings don't tell: the host sets it.
    AspWirelessStatus status = AspWirelessEnabled;
};

} // namespace quorvel
