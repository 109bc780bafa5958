#include "access/ReplyReading.h"

#include <algorithm>
#include <limits>

namespace quorvel
{

namespace
{

/// The number that a text is the plain decimal form of; -1 for any other text.
int numberIn(QStringView text)
{
    const bool hasLeadingZero = text.size() > 1 && text.front() == QLatin1Char('0');
    const int mostDigits = std::numeric_limits<int>::digits10 + 1;
    if (text.isEmpty() || text.size() > mostDigits || hasLeadingZero)
        return -1;
    qint64 number = 0;
    for (const QChar digit : text) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9'))
            return -1;
        number = number * 10 + (digit.unicode() - '0');
    }
    return number <= std::numeric_limits<int>::max() ? static_cast<int>(number) : -1;
}

} // namespace

NumberedEntries::NumberedEntries(const ParamMap& reply, const QString& stem, const QString& tail)
{
    for (auto entry = reply.lowerBound(stem); entry != reply.cend() && entry.key().startsWith(stem);
         ++entry) {
        if (!entry.key().endsWith(tail))
            continue;
        const int digits = entry.key().size() - stem.size() - tail.size();
        const int number =
            digits > 0 ? numberIn(QStringView(entry.key()).mid(stem.size(), digits)) : -1;
        if (number >= 0)
            entries.push_back({number, &entry.value()});
    }
    // The names are in the order of their letters.
    std::sort(entries.begin(), entries.end(),
              [](const Entry& one, const Entry& other) { return one.number < other.number; });
}

const QString* NumberedEntries::find(int number) const
{
    const auto found =
        std::lower_bound(entries.begin(), entries.end(), number,
                         [](const Entry& entry, int wanted) { return entry.number < wanted; });
    return found != entries.end() && found->number == number ? found->value : nullptr;
}

QString NumberedEntries::value(int number) const
{
    const QString* const found = find(number);
    return found ? *found : QString();
}

std::vector<int> NumberedEntries::numbers() const
{
    std::vector<int> all;
    for (const Entry& entry : entries)
        all.push_back(entry.number);
    return all;
}

QList<QString> numberedValues(const ParamMap& reply, const QString& stem, int first)
{
    const NumberedEntries entries(reply, stem);
    QList<QString> values;
    for (int number = first; const QString* value = entries.find(number); ++number)
        values.append(*value);
    return values;
}

QList<QString> listedValues(const ParamMap& reply, std::initializer_list<QString> leftOut,
                            QString& listing)
{
    QList<QString> values;
    for (auto it = reply.constBegin(); it != reply.constEnd(); ++it) {
        if (std::find(leftOut.begin(), leftOut.end(), it.key()) != leftOut.end())
            continue;
        values.append(it.value());
        listing += it.key() + QLatin1String("->") + it.value() + QLatin1Char('\t');
    }
    return values;
}

} // namespace quorvel
