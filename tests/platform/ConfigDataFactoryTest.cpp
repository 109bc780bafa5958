#include "platform/PlatformProbe.h"

#include <ostramw/ConfigDataFactory.h>

#include <QFile>
#include <QTemporaryDir>
#include <thread>
#include <vector>

namespace quorvel::test
{

namespace
{

class ConfigDataFactoryTest : public testing::Test
{
protected:
    /// Writes an INI file and names it in this process's environment.
    QString writeFile(const char* content)
    {
        const QString name = folder.filePath(text("host.ini"));
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        qputenv("OSTRA_CONFIG_FILE", name.toLocal8Bit());
        return name;
    }

    static QString value(const char* key)
    {
        return ostramw::ConfigDataFactory::getInstance()->getConfigValue(text(key));
    }

    static void set(const char* key, const char* value)
    {
        ostramw::ConfigDataFactory::getInstance()->setConfigValue(text(key), text(value));
    }

    ConfigDataFactoryTest() { qunsetenv("OSTRA_CONFIG_FILE"); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ConfigDataFactoryTest, IsOneForTheProcess)
{
    EXPECT_NE(ostramw::ConfigDataFactory::getInstance(), nullptr);
    EXPECT_EQ(ostramw::ConfigDataFactory::getInstance(), ostramw::ConfigDataFactory::getInstance());
}

TEST_F(ConfigDataFactoryTest, GivesAnEmptyValueForWhatIsNotSet)
{
    EXPECT_EQ(value("UNSET"), QString());
    writeFile("OTHER=1\n");
    EXPECT_EQ(value("UNSET"), QString());
}

TEST_F(ConfigDataFactoryTest, GivesBackWhatTheHostSet)
{
    set("KEY", "first");
    set("KEY", "second \xc3\xa4");
    EXPECT_EQ(value("KEY"), text("second \xc3\xa4"));
}

TEST_F(ConfigDataFactoryTest, ReadsWhatTheHostDidNotSetFromTheFile)
{
    writeFile("ONLY_IN_FILE=from the file\n[group]\nname=7\n");
    EXPECT_EQ(value("ONLY_IN_FILE"), text("from the file"));
    EXPECT_EQ(value("group/name"), text("7"));
}

TEST_F(ConfigDataFactoryTest, ReadsValuesWithCommasWhole)
{
    writeFile("LIST=-6,0,6\nQUOTED=\"a, b\"\nEMPTY=\n");
    EXPECT_EQ(value("LIST"), text("-6,0,6"));
    EXPECT_EQ(value("QUOTED"), text("a, b"));
    EXPECT_EQ(value("EMPTY"), QString());
}

TEST_F(ConfigDataFactoryTest, PrefersWhatTheHostSetEvenIfItIsEmpty)
{
    writeFile("KEY=from the file\nEMPTY=from the file\n");
    set("KEY", "from the host");
    set("EMPTY", "");
    EXPECT_EQ(value("KEY"), text("from the host"));
    EXPECT_EQ(value("EMPTY"), QString());
}

TEST_F(ConfigDataFactoryTest, SurvivesAMissingFile)
{
    qputenv("OSTRA_CONFIG_FILE", folder.filePath(text("missing.ini")).toLocal8Bit());
    EXPECT_EQ(value("ONLY_IN_FILE"), QString());
}

TEST_F(ConfigDataFactoryTest, FindsTheFileOfAnotherProcessesEnvironment)
{
    const QString name = writeFile("KEY=1\n");
    EXPECT_EQ(runProbe({{"OSTRA_CONFIG_FILE", name}}, {text("KEY"), text("UNSET")}, false),
              text("KEY=1\nUNSET=\n"));
    EXPECT_EQ(runProbe({}, {text("KEY")}, false), text("KEY=\n"));
}

TEST_F(ConfigDataFactoryTest, IsReadAndWrittenByManyThreads)
{
    writeFile("FILE=1\n");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([thread] {
            const QByteArray own = QByteArray::number(thread);
            for (int i = 0; i < 100; ++i) {
                set(own.constData(), own.constData());
                EXPECT_EQ(value(own.constData()), text(own.constData()));
                EXPECT_EQ(value("FILE"), text("1"));
            }
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace quorvel::test
