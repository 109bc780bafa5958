#pragma once

#include "Session.h"

#include <QJsonValue>
#include <QString>

namespace quorvelctl
{

/// What a reading command gives as JSON, without printing it. `command` is its command line without
/// common options, as "wan show wan-0". Fails as the command does.
QJsonValue readingOf(const QString& command, Session& session);

/// Names that are found in a reading: the texts under `key` of the objects in a list.
QStringList namesIn(const QJsonValue& list, const char* key);

} // namespace quorvelctl
