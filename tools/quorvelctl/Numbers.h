#pragma once

#include <QString>

namespace quorvelctl
{

/// Whether a text is a number from 0 to `most` as the library and gateways read it: decimal digits
/// and nothing else. The parser of the command line would take hexadecimal and octal ones too.
inline bool isNumberUpTo(const QString& text, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 0 && number <= most && QString::number(number) == text;
}

} // namespace quorvelctl
