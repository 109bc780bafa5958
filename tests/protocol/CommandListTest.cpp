#include "protocol/CommandList.h"
#include "protocol/AspRequestFormatterV2.h"
#include "support/Text.h"
#include "support/Transcript.h"

#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

/// What the rows put into a request, a line each.
QStringList sent(const CommandList& commands)
{
    AspRequestFormatterV2 formatter;
    for (const Command& command : commands)
        (formatter.*command.add)(command.inst, command.key, command.value);
    QStringList rows = commandLines(formatter.formatRequest()).split(QLatin1Char('\n'));
    rows.removeFirst();
    rows.removeLast();
    return rows;
}

} // namespace

TEST(CommandListTest, ReadsAnObjectWithoutACommit)
{
    EXPECT_EQ(sent(wire::readTransaction(text("wan-3"), {text("type"), text("enabled")})),
              lines({"command \"cfgmgr-0\" \"begin_transaction\" \"wan-3\"",
                     "get \"wan-3\" \"type\" \"\"", "get \"wan-3\" \"enabled\" \"\"",
                     "command \"cfgmgr-0\" \"end_transaction\" \"wan-3\""}));
}

TEST(CommandListTest, WritesAnObjectWithACommitBeforeTheEnd)
{
    EXPECT_EQ(sent(wire::writeTransaction(
                  text("wan-3"), {{text("type"), text("eth")}, {text("enabled"), text("1")}})),
              lines({"command \"cfgmgr-0\" \"begin_transaction\" \"wan-3\"",
                     "set \"wan-3\" \"type\" \"eth\"", "set \"wan-3\" \"enabled\" \"1\"",
                     "command \"cfgmgr-0\" \"commit\" \"wan-3\"",
                     "command \"cfgmgr-0\" \"end_transaction\" \"wan-3\""}));
}

TEST(CommandListTest, AddressesTheConfigurationManagerWithTheObjectAsValue)
{
    EXPECT_EQ(
        sent({wire::begin(text("dsl-0")), wire::commit(text("dsl-0")), wire::end(text("dsl-0"))}),
        lines({"command \"cfgmgr-0\" \"begin_transaction\" \"dsl-0\"",
               "command \"cfgmgr-0\" \"commit\" \"dsl-0\"",
               "command \"cfgmgr-0\" \"end_transaction\" \"dsl-0\""}));
}

TEST(CommandListTest, SavesAndAppliesWithAnEmptyValue)
{
    EXPECT_EQ(sent({wire::save(), wire::apply(text("dsl-0"))}),
              lines({"command \"cfgmgr-0\" \"save\" \"\"", "command \"dsl-0\" \"apply\" \"\""}));
}

TEST(CommandListTest, JoinsListsInOrder)
{
    CommandList all{wire::query(text("sysmgr-0"), text("getenv"), text("PRODUCT_ID"))};
    all << wire::readTransaction(text("wan-0"), {text("type")})
        << wire::command(text("webui-0"), text("delete_session"));
    EXPECT_EQ(sent(all), lines({"query \"sysmgr-0\" \"getenv\" \"PRODUCT_ID\"",
                                "command \"cfgmgr-0\" \"begin_transaction\" \"wan-0\"",
                                "get \"wan-0\" \"type\" \"\"",
                                "command \"cfgmgr-0\" \"end_transaction\" \"wan-0\"",
                                "command \"webui-0\" \"delete_session\" \"\""}));
}

} // namespace quorvel::test
