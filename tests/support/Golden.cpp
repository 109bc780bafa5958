#include "support/Golden.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quorvel::test
{

namespace
{

QString firstDifference(const QString& expected, const QString& actual)
{
    const QStringList wanted = expected.split(QLatin1Char('\n'));
    const QStringList got = actual.split(QLatin1Char('\n'));
    for (int i = 0; i < qMax(wanted.size(), got.size()); ++i) {
        if (wanted.value(i) != got.value(i))
            return QStringLiteral("line %1:\n  expected: %2\n  actual:   %3")
                .arg(QString::number(i + 1), wanted.value(i), got.value(i));
    }
    return QStringLiteral("line breaks at the end");
}

} // namespace

testing::AssertionResult matchesGolden(const QString& name, const QString& text)
{
    QFile file(QStringLiteral(QUORVEL_GOLDEN_DIR "/") + name + QLatin1String(".txt"));
    if (qEnvironmentVariable("UPDATE_GOLDEN") == QLatin1String("1")) {
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            return testing::AssertionFailure() << "can't write " << file.fileName().toStdString();
        return testing::AssertionSuccess();
    }
    if (!file.open(QIODevice::ReadOnly))
        return testing::AssertionFailure()
               << "no such file: " << file.fileName().toStdString() << "\nactual:\n"
               << text.toStdString();
    const QString expected = QString::fromUtf8(file.readAll());
    if (expected == text)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << name.toStdString() << " differs at " << firstDifference(expected, text).toStdString()
           << "\nactual:\n"
           << text.toStdString();
}

} // namespace quorvel::test
