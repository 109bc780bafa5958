#include "access/ReplyReading.h"

#include <gtest/gtest.h>

namespace quorvel
{

namespace
{

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

ParamMap reply(std::initializer_list<std::pair<const char*, const char*>> entries)
{
    ParamMap map;
    for (const auto& [name, value] : entries)
        map.insert(text(name), text(value));
    return map;
}

TEST(NumberedEntries, StandInTheOrderOfTheirNumbersNotOfTheirLetters)
{
    const ParamMap map = reply({{"a.n10", "ten"}, {"a.n2", "two"}, {"a.n1", "one"}});
    const NumberedEntries entries(map, text("a.n"));
    EXPECT_EQ(entries.numbers(), (std::vector<int>{1, 2, 10}));
    EXPECT_EQ(entries.value(10), text("ten"));
    EXPECT_EQ(entries.value(2), text("two"));
}

TEST(NumberedEntries, AreNullWhereTheReplyLacksThem)
{
    const ParamMap map = reply({{"a.n1", ""}});
    const NumberedEntries entries(map, text("a.n"));
    EXPECT_EQ(entries.find(0), nullptr);
    EXPECT_EQ(entries.find(2), nullptr);
    EXPECT_TRUE(entries.value(2).isNull());
    ASSERT_NE(entries.find(1), nullptr);
    EXPECT_EQ(*entries.find(1), text(""));
}

TEST(NumberedEntries, AreThoseBetweenStemAndTail)
{
    const ParamMap map = reply({{"a.n1.ip", "address"},
                                {"a.n1.ip2", "other tail"},
                                {"a.n1", "no tail"},
                                {"a.n.ip", "no number"},
                                {"a.m1.ip", "other stem"},
                                {"b.a.n3.ip", "something before the stem"}});
    const NumberedEntries entries(map, text("a.n"), text(".ip"));
    EXPECT_EQ(entries.numbers(), std::vector<int>{1});
    EXPECT_EQ(entries.value(1), text("address"));
}

TEST(NumberedEntries, AreNoneWhereStemAndTailOverlap)
{
    const ParamMap map = reply({{"a.n.", "one dot for both"}});
    EXPECT_EQ(NumberedEntries(map, text("a.n."), text(".")).numbers(), std::vector<int>());
}

TEST(NumberedEntries, CountOnlyAsTheirNumbersAreUsuallyWritten)
{
    ParamMap map = reply({{"a.n0", "zero"},
                          {"a.n01", "leading zero"},
                          {"a.n00", "two zeros"},
                          {"a.n-1", "minus"},
                          {"a.n+2", "plus"},
                          {"a.n 3", "blank"},
                          {"a.n4x", "letter"},
                          {"a.n0x5", "hexadecimal"}});
    map.insert(text("a.n") + QChar(0x0666), text("a digit of another script"));
    EXPECT_EQ(NumberedEntries(map, text("a.n")).numbers(), std::vector<int>{0});
}

TEST(NumberedEntries, ReachToTheLargestNumber)
{
    const ParamMap map = reply({{"a.n2147483647", "largest"},
                                {"a.n2147483648", "one too many"},
                                {"a.n4294967296", "zero for a careless reader"},
                                {"a.n18446744073709551617", "one for another"}});
    const NumberedEntries entries(map, text("a.n"));
    EXPECT_EQ(entries.numbers(), std::vector<int>{2147483647});
    EXPECT_EQ(entries.value(2147483647), text("largest"));
}

} // namespace

} // namespace quorvel
