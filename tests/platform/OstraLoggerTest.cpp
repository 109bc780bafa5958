#include "platform/PlatformProbe.h"

#include <ostra/OstraLogger.h>

#include <atomic>
#include <thread>
#include <vector>

namespace quorvel::test
{

namespace
{

QString linesOf(std::initializer_list<std::pair<const char*, QString>> variables)
{
    return runProbe(variables, {}, true);
}

} // namespace

TEST(OstraLoggerTest, IsOneForTheProcess)
{
    EXPECT_NE(OstraLogger::getInstance(), nullptr);
    EXPECT_EQ(OstraLogger::getInstance(), OstraLogger::getInstance());
}

TEST(OstraLoggerTest, WritesWarningsAndErrorsToStandardErrorByDefault)
{
    EXPECT_EQ(linesOf({}), text("[150] PROBE: line \xc3\xa4\n"
                                "[182] PROBE: line \xc3\xa4\n"
                                "[182] PROBE: default again\n"));
}

TEST(OstraLoggerTest, WritesWhatIsAtOrAboveTheLevelOfTheEnvironment)
{
    EXPECT_EQ(linesOf({{"OSTRA_LOG_LEVEL", text("128")}}), text("[128] PROBE: line \xc3\xa4\n"
                                                                "[149] PROBE: line \xc3\xa4\n"
                                                                "[150] PROBE: line \xc3\xa4\n"
                                                                "[182] PROBE: line \xc3\xa4\n"
                                                                "[182] PROBE: default again\n"));
    EXPECT_EQ(linesOf({{"OSTRA_LOG_LEVEL", text("183")}}), QString());
}

TEST(OstraLoggerTest, TakesItsDefaultLevelWhenTheEnvironmentNamesNoNumber)
{
    for (const char* value : {"", "debug"})
        EXPECT_EQ(linesOf({{"OSTRA_LOG_LEVEL", text(value)}}), linesOf({})) << value;
}

TEST(OstraLoggerTest, HandsEveryLineToTheSinkWhateverItsLevel)
{
    QStringList lines;
    OstraLogger::getInstance()->setSink(
        [&](const QString& message, int level, const QString& loggerName) {
            lines.append(text("%1 %2 %3").arg(loggerName, QString::number(level), message));
        });
    OstraLogger::getInstance()->log(text("a"), 1, text("X"));
    OstraLogger::getInstance()->log(text("b"), 182, text("Y"));
    OstraLogger::getInstance()->setSink(OstraLogger::Sink());
    EXPECT_EQ(lines, QStringList({text("X 1 a"), text("Y 182 b")}));
}

TEST(OstraLoggerTest, LetsASinkLogAndReplaceItself)
{
    QStringList lines;
    OstraLogger* logger = OstraLogger::getInstance();
    logger->setSink([&](const QString& message, int, const QString&) {
        lines.append(message);
        logger->setSink([&](const QString& next, int, const QString&) { lines.append(next); });
        logger->log(text("from within"), 182, text("X"));
    });
    logger->log(text("first"), 182, text("X"));
    logger->setSink(OstraLogger::Sink());
    EXPECT_EQ(lines, QStringList({text("first"), text("from within")}));
}

TEST(OstraLoggerTest, TakesLinesFromManyThreadsWhileTheSinkChanges)
{
    std::atomic<int> lines{0};
    const auto count = [&](const QString&, int, const QString&) { ++lines; };
    OstraLogger* logger = OstraLogger::getInstance();
    logger->setSink(count);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&] {
            for (int i = 0; i < 500; ++i)
                logger->log(text("line"), 182, text("X"));
        });
    for (int i = 0; i < 200; ++i)
        logger->setSink(count);
    for (std::thread& thread : threads)
        thread.join();
    logger->setSink(OstraLogger::Sink());
    EXPECT_EQ(lines, 4000);
}

} // namespace quorvel::test
