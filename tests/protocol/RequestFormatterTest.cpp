#include "protocol/AspRequestFormatterV1.h"
#include "protocol/AspRequestFormatterV2.h"
#include "support/Text.h"

#include <QMutexLocker>
#include <atomic>
#include <boost/make_shared.hpp>
#include <functional>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace quorvel::test
{

namespace
{

struct Dialect {
    const char* name;
    boost::shared_ptr<RequestFormatter> (*make)();
    QString version;
};

const Dialect dialects[] = {
    {"Old",
     [] {
         return boost::shared_ptr<RequestFormatter>(boost::make_shared<AspRequestFormatterV1>());
     },
     QStringLiteral("1.0.0")},
    {"New",
     [] {
         return boost::shared_ptr<RequestFormatter>(boost::make_shared<AspRequestFormatterV2>());
     },
     QStringLiteral("1.0.1")}};

class RequestFormatterTest : public testing::TestWithParam<Dialect>
{
protected:
    /// `literal` with the dialect's version in the place of "VERSION".
    static QString inDialect(const char* literal)
    {
        return text(literal).replace(QLatin1String("VERSION"), GetParam().version);
    }

    boost::shared_ptr<RequestFormatter> formatter = GetParam().make();
};

std::string dialectName(const testing::TestParamInfo<Dialect>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(RequestFormatterTest, WritesOneLinePerElementWithOneBlankPerLevel)
{
    formatter->addQuery(text("sysmgr-0"), text("getenv"), text("MAC_ETH_0"));
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\">\n"
                                                    " <query inst=\"sysmgr-0\">\n"
                                                    "  <key>getenv</key>\n"
                                                    "  <value>MAC_ETH_0</value>\n"
                                                    " </query>\n"
                                                    "</xmlrequest>\n"));
}

TEST_P(RequestFormatterTest, WritesTheFourVerbsInTheOrderOfQueuing)
{
    formatter->addCommand(text("cfgmgr-0"), text("begin_transaction"), text("wan-0"));
    formatter->addSet(text("wan-0"), text("enabled"), text("1"));
    formatter->addGet(text("wan-0"), text("type"), QString());
    formatter->addQuery(text("devmgr-0"), text("inst_list"), text("conn"));
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\">\n"
                                                    " <command inst=\"cfgmgr-0\">\n"
                                                    "  <key>begin_transaction</key>\n"
                                                    "  <value>wan-0</value>\n"
                                                    " </command>\n"
                                                    " <set inst=\"wan-0\">\n"
                                                    "  <key>enabled</key>\n"
                                                    "  <value>1</value>\n"
                                                    " </set>\n"
                                                    " <get inst=\"wan-0\">\n"
                                                    "  <key>type</key>\n"
                                                    "  <value></value>\n"
                                                    " </get>\n"
                                                    " <query inst=\"devmgr-0\">\n"
                                                    "  <key>inst_list</key>\n"
                                                    "  <value>conn</value>\n"
                                                    " </query>\n"
                                                    "</xmlrequest>\n"));
}

TEST_P(RequestFormatterTest, WritesTheBareRootForAnEmptyQueue)
{
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\"/>\n"));
}

TEST_P(RequestFormatterTest, ForgetsTheCommandsThatItHasFormatted)
{
    formatter->addGet(text("wan-0"), text("type"), QString());
    formatter->formatRequest();
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\"/>\n"));
}

TEST_P(RequestFormatterTest, ForgetsTheQueueWhenCleared)
{
    formatter->clearCommands();
    formatter->addGet(text("wan-0"), text("type"), QString());
    formatter->addGet(text("wan-1"), text("type"), QString());
    formatter->clearCommands();
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\"/>\n"));
}

TEST_P(RequestFormatterTest, EscapesWhatIsSpecialInXml)
{
    formatter->addSet(text("a\"<&"), text("k<&>"), text("v<&>\"' \xc3\xa4"));
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\">\n"
                                                    " <set inst=\"a&quot;&lt;&amp;\">\n"
                                                    "  <key>k&lt;&amp;></key>\n"
                                                    "  <value>v&lt;&amp;>\"' \xc3\xa4</value>\n"
                                                    " </set>\n"
                                                    "</xmlrequest>\n"));
}

TEST_P(RequestFormatterTest, WritesAnEmptyKeyAndAnEmptyValueAsElementsWithTwoTags)
{
    formatter->addCommand(text(""), text(""), QString());
    EXPECT_EQ(formatter->formatRequest(), inDialect("<xmlrequest version=\"VERSION\">\n"
                                                    " <command inst=\"\">\n"
                                                    "  <key></key>\n"
                                                    "  <value></value>\n"
                                                    " </command>\n"
                                                    "</xmlrequest>\n"));
}

TEST_P(RequestFormatterTest, KeepsAQueueOfItsOwn)
{
    const auto other = GetParam().make();
    formatter->addGet(text("wan-0"), text("type"), QString());
    EXPECT_EQ(other->formatRequest(), inDialect("<xmlrequest version=\"VERSION\"/>\n"));
}

INSTANTIATE_TEST_SUITE_P(BothDialects, RequestFormatterTest, testing::ValuesIn(dialects),
                         dialectName);

namespace
{

/// A formatter whose queue the test can lock.
template <typename Formatter>
class LockedFormatter : public Formatter
{
public:
    using Formatter::mutex;
};

} // namespace

TEST(OldRequestFormatter, TakesNoLockToFormat)
{
    LockedFormatter<AspRequestFormatterV1> formatter;
    formatter.addGet(text("wan-0"), text("type"), QString());
    const QMutexLocker locker(&formatter.mutex);
    EXPECT_EQ(formatter.formatRequest().count(text("<get ")), 1);
    EXPECT_EQ(formatter.formatCommands(), QString());
    EXPECT_EQ(formatter.wrapCommands(text("<x/>")), QString());
}

TEST(NewRequestFormatter, WaitsForTheQueueToFormat)
{
    LockedFormatter<AspRequestFormatterV2> formatter;
    std::atomic<bool> released{false};
    std::vector<std::thread> callers;
    {
        const QMutexLocker locker(&formatter.mutex);
        for (const auto& format : std::vector<std::function<void()>>{
                 [&] { formatter.formatRequest(); }, [&] { formatter.formatCommands(); },
                 [&] { formatter.wrapCommands(QString()); }, [&] { formatter.clearCommands(); },
                 [&] { formatter.addGet(QString(), QString(), QString()); }}) {
            callers.emplace_back([&released, format] {
                format();
                EXPECT_TRUE(released);
            });
        }
        // Room for those who don't wait.
        for (int i = 0; i < 100; ++i)
            std::this_thread::yield();
        released = true;
    }
    for (std::thread& caller : callers)
        caller.join();
}

TEST(RequestCommandData, IsEmptyAfterConstruction)
{
    const RequestCommandData command;
    EXPECT_EQ(command.commandType, QString());
    EXPECT_EQ(command.inst, QString());
    EXPECT_EQ(command.key, QString());
    EXPECT_EQ(command.value, QString());
}

TEST(NewRequestFormatter, GivesCommandsAloneWithTheFirstOneUnindented)
{
    AspRequestFormatterV2 formatter;
    formatter.addSet(text("wireless-0"), text("ssid"), text("home"));
    formatter.addCommand(text("wireless-0"), text("apply"), QString());
    EXPECT_EQ(formatter.formatCommands(), text("<set inst=\"wireless-0\">\n"
                                               "  <key>ssid</key>\n"
                                               "  <value>home</value>\n"
                                               " </set>\n"
                                               " <command inst=\"wireless-0\">\n"
                                               "  <key>apply</key>\n"
                                               "  <value></value>\n"
                                               " </command>\n"));
}

TEST(NewRequestFormatter, ForgetsTheCommandsThatItHasGivenAlone)
{
    AspRequestFormatterV2 formatter;
    formatter.addGet(text("wan-0"), text("type"), QString());
    formatter.formatCommands();
    EXPECT_EQ(formatter.formatRequest(), text("<xmlrequest version=\"1.0.1\"/>\n"));
}

TEST(NewRequestFormatter, GivesASingleBracketForNoCommands)
{
    EXPECT_EQ(AspRequestFormatterV2().formatCommands(), text("<"));
}

TEST(NewRequestFormatter, WrapsCommandsWithoutLineBreaks)
{
    AspRequestFormatterV2 formatter;
    EXPECT_EQ(formatter.wrapCommands(text("<a>&</b>")),
              text("<xmlrequest version=\"1.0.1\"><a>&</b></xmlrequest>"));
    EXPECT_EQ(formatter.wrapCommands(QString()),
              text("<xmlrequest version=\"1.0.1\"></xmlrequest>"));
}

TEST(NewRequestFormatter, LeavesTheQueueAloneWhenItWraps)
{
    AspRequestFormatterV2 formatter;
    formatter.addGet(text("wan-0"), text("type"), QString());
    formatter.wrapCommands(text("<x/>"));
    EXPECT_EQ(formatter.formatCommands(), text("<get inst=\"wan-0\">\n"
                                               "  <key>type</key>\n"
                                               "  <value></value>\n"
                                               " </get>\n"));
}

TEST(NewRequestFormatter, JoinsTheCommandsOfTwoFormattersInOneRequest)
{
    AspRequestFormatterV2 first;
    AspRequestFormatterV2 second;
    first.addGet(text("wireless-0"), text("ssid"), QString());
    second.addGet(text("wireless-1"), text("ssid"), QString());
    const QString joined = first.formatCommands() + second.formatCommands();
    EXPECT_EQ(first.wrapCommands(joined), text("<xmlrequest version=\"1.0.1\">"
                                               "<get inst=\"wireless-0\">\n"
                                               "  <key>ssid</key>\n"
                                               "  <value></value>\n"
                                               " </get>\n"
                                               "<get inst=\"wireless-1\">\n"
                                               "  <key>ssid</key>\n"
                                               "  <value></value>\n"
                                               " </get>\n"
                                               "</xmlrequest>"));
}

TEST(OldRequestFormatter, HasNoFormForSeveralRadiosAndKeepsItsQueue)
{
    AspRequestFormatterV1 formatter;
    formatter.addGet(text("wan-0"), text("type"), QString());
    EXPECT_EQ(formatter.formatCommands(), QString());
    EXPECT_EQ(formatter.wrapCommands(text("<x/>")), QString());
    EXPECT_EQ(formatter.formatRequest(), text("<xmlrequest version=\"1.0.0\">\n"
                                              " <get inst=\"wan-0\">\n"
                                              "  <key>type</key>\n"
                                              "  <value></value>\n"
                                              " </get>\n"
                                              "</xmlrequest>\n"));
}

} // namespace quorvel::test
