#include "access/ReplyReading.h"

#include <algorithm>

namespace quorvel
{

QList<QString> numberedValues(const ParamMap& reply, const QString& stem, int first)
{
    QList<QString> values;
    for (int number = first;; ++number) {
        const auto value = reply.constFind(stem + QString::number(number));
        if (value == reply.constEnd())
            return values;
        values.append(*value);
    }
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
