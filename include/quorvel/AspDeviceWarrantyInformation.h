#pragma once

#include <QString>

namespace quorvel
{

/// The warranty record that a gateway keeps for its owner. Free texts; the library gives them no
/// meaning and the gateway stores them as they are. All are empty at first.
struct AspDeviceWarrantyInformation {
    QString name;      ///< the owner's name
    QString email;     ///< the owner's mail address
    QString phone;     ///< the owner's telephone number
    QString token;     ///< the device's registration token
    QString usertoken; ///< the owner's registration token
    QString timestamp; ///< when the record was made
};

} // namespace quorvel
