#pragma once

#include "Output.h"

namespace quorvelctl
{

/// A text of the program's own.
inline QString word(const char* text)
{
    return QString::fromLatin1(text);
}

/// A value that is shown as it is.
inline Field field(const char* key, const char* heading, const QJsonValue& value)
{
    return {word(key), word(heading), value};
}

} // namespace quorvelctl
