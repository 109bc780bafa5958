#pragma once

#include "support/ScriptedGateway.h"

#include <QString>

namespace quorvel::test
{

/// The commands of a request, a line each, in order: verb, instance, key and value, with the
/// dialect and the session in front. A login stands as its form.
QString transcript(const ReceivedRequest& request);

/// All requests that the gateway received, in order.
QString transcript(const ScriptedGateway& gateway);

/// The command lines of a request's XML, or of a fragment of one.
QString commandLines(const QString& xml);

} // namespace quorvel::test
