#pragma once

#include <QJsonValue>
#include <QString>

namespace quorvelctl
{

/// Whether what stands under this key, of an object of a gateway or of a result, is a secret, as
/// `wpa_password` or `wepKey1`.
bool isSecretKey(const QString& key);

/// A request or a reply in XML without the secrets that stand in it.
QString maskedXml(const QString& xml);

/// A result without the secrets that stand in it.
QJsonValue masked(const QJsonValue& value);

} // namespace quorvelctl
