#pragma once

#include <QList>
#include <QString>

namespace quorvel
{

/// A printer on the gateway's USB port. A text that the gateway doesn't report is empty.
struct AspUsbHostPrinter {
    QString name;         ///< name under which the gateway shows it
    QString serial;       ///< serial number
    QString manufacturer; ///< maker, as the printer tells it
    QString product;      ///< product, as the printer tells it
};

/// A disk on the gateway's USB port. A text that the gateway doesn't report is empty.
struct AspUsbHostDisk {
    QString deviceId;   ///< what mounting and unmounting call it
    QString name;       ///< name under which the gateway shows it
    QString diskNum;    ///< the gateway's number for it
    QString size;       ///< in the gateway's own words and unit
    QString freeSpace;  ///< in the gateway's own words and unit
    QString status;     ///< "1" if it is mounted; other words are the gateway's own
    QString fileSystem; ///< in the gateway's own words
};

/// The objects behind file sharing.
struct AspUsbHostInstList {
    QString connInstance;  ///< the connection that carries the host name, as "conn-0"
    QString sambaInstance; ///< the file-sharing service, as "samba_mngr-0"
};

/// How the gateway shows itself to those who use its shared disks.
struct AspUsbHostAdvancedSettings {
    QString hostName;    ///< host name
    QString description; ///< description of the host
    QString workGroup;   ///< work group
    /// Where these are stored. Writing needs them as reading gave them.
    AspUsbHostInstList instances;
};

/// What hangs on the gateway's USB port, and how it is shared.
struct AspUsbHostDevices {
    QList<AspUsbHostPrinter> printers;   ///< in the gateway's order
    QList<AspUsbHostDisk> disks;         ///< in the gateway's order
    AspUsbHostAdvancedSettings advanced; ///< how disks are shared
};

} // namespace quorvel
