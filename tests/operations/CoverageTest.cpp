#include "operations/Operations.h"

#include <QDir>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

/// Public classes that are no facade of their own.
const char* const bases[] = {"AspFacade", "AspWirelessSettingsFacadeImplementor"};

/// What a header of the library declares before its first private section, comments left aside.
QString declarationsOf(const QString& className)
{
    QFile header(QStringLiteral(QUORVEL_HEADER_DIR "/") + className + QLatin1String(".h"));
    EXPECT_TRUE(header.open(QIODevice::ReadOnly)) << header.fileName().toStdString();
    QString declarations = QString::fromUtf8(header.readAll());
    declarations.remove(QRegularExpression(text("//[^\n]*")));
    return declarations.left(declarations.indexOf(text("private:")));
}

QStringList sorted(QStringList names)
{
    names.removeDuplicates();
    names.sort();
    return names;
}

QStringList operationsIn(const QString& declarations)
{
    QStringList names;
    auto matches = QRegularExpression(text("[\\s&*]([a-z]\\w*)\\(")).globalMatch(declarations);
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return sorted(names);
}

/// The names of the operations that the tests call, by class.
QMap<QString, QStringList> calledOperations()
{
    QMap<QString, QStringList> called;
    for (const auto& list : {allReads(), allWrites()}) {
        for (const auto& [className, operations] : list) {
            for (const Operation& operation : operations)
                called[text(className)].append(
                    text(operation.name).section(QLatin1Char(' '), 0, 0));
        }
    }
    return called;
}

QStringList publicClasses()
{
    QStringList classes;
    const QStringList headers =
        QDir(QStringLiteral(QUORVEL_HEADER_DIR)).entryList(lines({"Asp*Fac*.h"}));
    for (const QString& header : headers)
        classes.append(header.section(QLatin1Char('.'), 0, 0));
    for (const char* base : bases)
        EXPECT_TRUE(classes.removeOne(text(base))) << base;
    return sorted(classes);
}

} // namespace

TEST(ListedOperations, AreOfAllClassesThatAHostCalls)
{
    EXPECT_EQ(QStringList(calledOperations().keys()), publicClasses());
}

TEST(ListedOperations, AreAllThatEachClassDeclares)
{
    const QMap<QString, QStringList> called = calledOperations();
    for (auto entry = called.cbegin(); entry != called.cend(); ++entry) {
        SCOPED_TRACE(entry.key().toStdString());
        EXPECT_EQ(sorted(entry.value()), operationsIn(declarationsOf(entry.key())));
    }
}

} // namespace quorvel::test
