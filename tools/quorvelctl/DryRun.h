#pragma once

#include "Output.h"

#include <QStringList>

namespace quorvelctl
{

/// The commands of requests as the library would send them, in order, with secrets marked.
QList<Record> commandsOf(const QStringList& requests);

} // namespace quorvelctl
