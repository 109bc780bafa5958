#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace quorvel::bench
{

/// The request of `getFirmwareVersion`, as it stands on the wire behind the head.
extern const QByteArray firmwareRequest;

/// The exchange that a call can't do without: one network manager, one POST of `request` with the
/// session "SID=1", a local event loop, all by the settings that the library gives Qt: no proxy, no
/// redirect, no compression, a precise limit of 20 seconds, a body that goes out once, and a reply
/// that is read as it comes through a buffer of 256 kB. Gives the body of the reply, and its
/// headers if they are wanted, or ends the program if there is none.
QByteArray bareExchange(const QString& address, const QByteArray& request = firmwareRequest,
                        QMap<QString, QString>* headers = nullptr);

/// The same request by no settings but those that the gateway sees: a buffer is sent, and the reply
/// read when it is whole. Ends the program if there is none.
void plainestExchange(const QString& address);

/// The exchange and the QDom work that goes with it: the request written, the reply read.
void bareCallWithDocuments(const QString& address);

/// The same, and the maps of texts in which a call hands on what is to be sent, what came back and
/// what it says. Only Qt's classes are used, in the plainest way.
void bareCallWithMaps(const QString& address);

} // namespace quorvel::bench
