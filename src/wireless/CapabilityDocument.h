#pragma once

#include <QString>
#include <QVariantMap>

namespace quorvel
{

/// The object that the JSON by which a radio tells what it can do consists of. Empty if the text is
/// no such thing, if it has more than 50000 values, or if one of its objects repeats a key.
QVariantMap readCapabilityDocument(const QString& document);

} // namespace quorvel
