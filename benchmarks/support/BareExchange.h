#pragma once

#include <QByteArray>
#include <QString>

namespace quorvel::bench
{

/// The request of `getFirmwareVersion`, as it stands on the wire behind the head.
extern const QByteArray firmwareRequest;

/// The exchange that a call can't do without: one network manager, one POST of `request` with the
/// session "SID=1" by the library's own settings (no proxy, no redirect, no compression, a limit of
/// 20 seconds), a local event loop. Gives the body, or ends the program if there is none.
QByteArray bareExchange(const QString& address, const QByteArray& request = firmwareRequest);

/// The exchange and the QDom work that goes with it: the request written, the reply read.
void bareCallWithDocuments(const QString& address);

} // namespace quorvel::bench
