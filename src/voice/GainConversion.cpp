#include "voice/GainConversion.h"

#include <cmath>

namespace quorvel
{

namespace
{

/// What 32-bit arithmetic makes of a number, without its undefined overflow.
qint32 wrapped(qint64 number)
{
    return static_cast<qint32>(static_cast<quint32>(number));
}

qint32 quotientRoundedUp(qint32 numerator, double denominator)
{
    // Through 64 bits, because the least number divided by -1 has no place in 32.
    return wrapped(static_cast<qint64>(std::ceil(numerator / denominator)));
}

} // namespace

QString convertScale(const QString& value, int min, int max)
{
    bool isNumber = false;
    const qint64 gain = value.toInt(&isNumber);
    if (!isNumber || min == max)
        return QString();
    const qint32 numerator = wrapped((gain - min) * 100);
    return QString::number(quotientRoundedUp(numerator, wrapped(qint64(max) - min)));
}

QString convertGain(const QString& value, int min, int max)
{
    bool isNumber = false;
    const qint64 percentage = value.toInt(&isNumber);
    if (!isNumber)
        return QString();
    const qint32 numerator = wrapped(percentage * wrapped(qint64(max) - min));
    return QString::number(wrapped(qint64(quotientRoundedUp(numerator, 100.0)) + min));
}

} // namespace quorvel
