#pragma once

#include <QMap>
#include <QString>

namespace quorvel
{

/// The one exchange type between the layers: texts by name, in key order.
///
/// An entry of a gateway's reply stands under the instance, a dot and the entry's name, as
/// "sysmgr-0.fwversion".
using ParamMap = QMap<QString, QString>;

} // namespace quorvel
