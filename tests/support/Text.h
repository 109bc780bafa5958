#pragma once

#include <quorvel/ParamMap.h>

#include "support/Printing.h"

#include <QString>
#include <QStringList>

namespace quorvel::test
{

/// A literal in UTF-8.
inline QString text(const char* literal)
{
    return QString::fromUtf8(literal);
}

inline QString shown(bool flag)
{
    return flag ? QStringLiteral("true") : QStringLiteral("false");
}

/// A map as lines "key=value", in the order of the keys.
inline QStringList entries(const ParamMap& map)
{
    QStringList lines;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        lines.append(entry.key() + QLatin1Char('=') + entry.value());
    return lines;
}

/// The lines that `entries` is expected to give.
inline QStringList lines(std::initializer_list<const char*> literals)
{
    QStringList expected;
    for (const char* literal : literals)
        expected.append(text(literal));
    return expected;
}

} // namespace quorvel::test
