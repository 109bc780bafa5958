#pragma once

#include <QString>

namespace quorvelctl
{

/// A text of the program's own.
inline QString word(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace quorvelctl
