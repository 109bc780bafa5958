#pragma once

#include <QByteArray>
#include <QString>

namespace quorvelctl
{

/// The address of this machine's default gateway. Fails as wrong usage if it has none.
QString defaultGateway();

/// The default gateway that a table in the form of /proc/net/route names; empty if it names none.
QString defaultGatewayIn(const QByteArray& table);

} // namespace quorvelctl
