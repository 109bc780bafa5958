#pragma once

#include <QString>
#include <QVariantMap>

namespace quorvel
{

/// The object that the JSON by which a radio tells what it can do consists of. Empty if the text is
/// no such thing, or if it has more than 50000 values. Of a key that an object repeats the last
/// value counts; what stands in those before it is not looked at.
QVariantMap readCapabilityDocument(QString document);

} // namespace quorvel
