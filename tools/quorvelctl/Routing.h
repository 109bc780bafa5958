#pragma once

#include <QString>

namespace quorvelctl
{

/// The address of this machine's default gateway. Fails as wrong usage if it has none.
QString defaultGateway();

} // namespace quorvelctl
