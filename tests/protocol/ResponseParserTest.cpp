#include "protocol/AspResponseParser3g.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"
#include "support/Text.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

template <typename Parser>
QStringList parsed(const char* reply)
{
    ParamMap result;
    EXPECT_TRUE(Parser().parse(text(reply), result)) << reply;
    return entries(result);
}

using OldParser = AspResponseParserV1;
using NewParser = AspResponseParserV2;
using NumberingParser = AspResponseParser3g;

template <typename Parser>
class AnyResponseParser : public testing::Test
{
};

using Parsers = testing::Types<OldParser, NewParser, NumberingParser>;
TYPED_TEST_SUITE(AnyResponseParser, Parsers);

} // namespace

TYPED_TEST(AnyResponseParser, PutsLeavesUnderObjectAndEntry)
{
    EXPECT_EQ(parsed<TypeParam>("<response version=\"1.0.0\">"
                                "<sysmgr-0><fwversion>1.2</fwversion><uptime>7</uptime></sysmgr-0>"
                                "<route-0><default_gw>wan-0</default_gw></route-0>"
                                "<webapp><error>5</error></webapp></response>"),
              lines({"response=1.0.0", "route-0.default_gw=wan-0", "sysmgr-0.fwversion=1.2",
                     "sysmgr-0.uptime=7", "webapp.error=5"}));
}

TYPED_TEST(AnyResponseParser, LeavesPrefixesOfNamespacesOut)
{
    EXPECT_EQ(parsed<TypeParam>("<x:response xmlns:x=\"urn:x\" version=\"1.0.1\">"
                                "<x:sysmgr-0><x:fwversion>1.2</x:fwversion></x:sysmgr-0>"
                                "</x:response>"),
              lines({"response=1.0.1", "sysmgr-0.fwversion=1.2"}));
}

TYPED_TEST(AnyResponseParser, TakesEntriesInWhateverOrder)
{
    EXPECT_EQ(parsed<TypeParam>("<z version=\"1\"><m><d>1</d><b>2</b><c>3</c><a>4</a><d>5</d></m>"
                                "<a><z>6</z></a><m><b>7</b><e>8</e></m><z><z>9</z></z></z>"),
              lines({"a.z=6", "m.a=4", "m.b=7", "m.c=3", "m.d=5", "m.e=8", "z=1", "z.z=9"}));
}

TYPED_TEST(AnyResponseParser, TellsTheGatewaysErrorAsAnEntry)
{
    EXPECT_EQ(parsed<TypeParam>(
                  "<response version=\"1.0.1\"><webapp><error>1</error></webapp></response>"),
              lines({"response=1.0.1", "webapp.error=1"}));
}

TYPED_TEST(AnyResponseParser, RefusesAnEmptyText)
{
    ParamMap result{{text("kept"), text("as it was")}};
    EXPECT_FALSE(TypeParam().parse(QString(), result));
    EXPECT_EQ(entries(result), lines({"kept=as it was"}));
}

TYPED_TEST(AnyResponseParser, LeavesTheMapAloneWhenTheTextBreaksOff)
{
    ParamMap result{{text("response"), text("old")}};
    EXPECT_FALSE(TypeParam().parse(
        text("<response version=\"1.0.1\"><webapp><error>1</error></webapp>"), result));
    EXPECT_EQ(entries(result), lines({"response=old"}));
}

TYPED_TEST(AnyResponseParser, GivesOneEntryForARootWithoutChildren)
{
    EXPECT_EQ(parsed<TypeParam>("<response version=\"1.0.1\"/>"), lines({"response=1.0.1"}));
}

TYPED_TEST(AnyResponseParser, GivesAnEmptyVersionForARootWithoutOne)
{
    EXPECT_EQ(parsed<TypeParam>("<response/>"), lines({"response="}));
}

TYPED_TEST(AnyResponseParser, AcceptsAnyRoot)
{
    EXPECT_EQ(parsed<TypeParam>("<html><body><p>Hello</p></body></html>"),
              lines({"body.p=Hello", "html="}));
}

TYPED_TEST(AnyResponseParser, AddsToTheMapAndOverwritesSameKeys)
{
    ParamMap result{{text("a.b"), text("old")}, {text("c"), text("kept")}};
    EXPECT_TRUE(TypeParam().parse(text("<r version=\"9\"><a><b>new</b></a></r>"), result));
    EXPECT_EQ(entries(result), lines({"a.b=new", "c=kept", "r=9"}));
}

TYPED_TEST(AnyResponseParser, PassesOverTextsAndCommentsBetweenElements)
{
    EXPECT_EQ(parsed<TypeParam>("<?xml version=\"1.0\"?>\n<!-- one -->\n"
                                "<r version=\"1\">\n text <!-- two -->\n"
                                "<a>\n text <!-- three -->\n<?four five?><b>1</b>\n</a>\n</r>\n"),
              lines({"a.b=1", "r=1"}));
}

TYPED_TEST(AnyResponseParser, KeepsATextOfBlanks)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><b> </b></a></r>"), lines({"a.b= ", "r="}));
    EXPECT_EQ(parsed<TypeParam>("<r><a><b>  x  </b></a></r>"), lines({"a.b=  x  ", "r="}));
}

TYPED_TEST(AnyResponseParser, GivesAnEmptyTextForAnEmptyElement)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><b/><c></c></a></r>"), lines({"a.b=", "a.c=", "r="}));
}

TYPED_TEST(AnyResponseParser, ResolvesPredefinedEntitiesAndCharacterReferences)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><b>&lt;&amp;&gt;&quot;&apos;&#65;&#xe4;</b></a></r>"),
              lines({"a.b=<&>\"'A\xc3\xa4", "r="}));
}

TYPED_TEST(AnyResponseParser, ReadsCharacterDataSections)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><b>1<![CDATA[<&]]>2</b></a></r>"),
              lines({"a.b=1<&2", "r="}));
}

TYPED_TEST(AnyResponseParser, JoinsTheTextsBelowAnEntry)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><b>1<c>2</c>3</b></a></r>"), lines({"a.b=123", "r="}));
}

TYPED_TEST(AnyResponseParser, LetsTheLaterOfTwoSameLeavesWin)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><b>1</b></a><a><b>2</b></a></r>"), lines({"a.b=2", "r="}));
}

TYPED_TEST(AnyResponseParser, KeepsNoStateBetweenCalls)
{
    TypeParam parser;
    ParamMap first;
    ParamMap second;
    const QString reply = text("<r><a><key>k</key><value>1</value></a></r>");
    EXPECT_TRUE(parser.parse(reply, first));
    EXPECT_TRUE(parser.parse(reply, second));
    EXPECT_EQ(entries(second), entries(first));
}

TEST(OldResponseParser, TakesAPairAsTwoLeaves)
{
    EXPECT_EQ(parsed<OldParser>("<r><a><key>k</key><value>v</value></a></r>"),
              lines({"a.key=k", "a.value=v", "r="}));
}

namespace
{

template <typename Parser>
class PairResponseParser : public testing::Test
{
};

using PairParsers = testing::Types<NewParser, NumberingParser>;
TYPED_TEST_SUITE(PairResponseParser, PairParsers);

} // namespace

TYPED_TEST(PairResponseParser, TakesAPairAsOneEntry)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><key>k</key><value>v</value></a>"
                                "<a><value>w</value><key>l</key></a></r>"),
              lines({"a.k=v", "a.l=w", "r="}));
}

TYPED_TEST(PairResponseParser, GivesAnEmptyValueForAPairWithoutOne)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><key>k</key></a></r>"), lines({"a.k=", "r="}));
}

TYPED_TEST(PairResponseParser, PassesOverOtherElementsOfAPair)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><x>1</x><key>k</key><value>v</value><y>2</y></a></r>"),
              lines({"a.k=v", "r="}));
}

TYPED_TEST(PairResponseParser, TakesTheLastOfSeveralKeysAndValues)
{
    EXPECT_EQ(
        parsed<TypeParam>("<r><a><key>k</key><value>1</value><key>l</key><value>2</value></a></r>"),
        lines({"a.l=2", "r="}));
}

TYPED_TEST(PairResponseParser, FallsBackOnLeavesForAnEmptyKey)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><key></key><value>v</value><x>1</x></a></r>"),
              lines({"a.key=", "a.value=v", "a.x=1", "r="}));
}

TYPED_TEST(PairResponseParser, TakesABlankAsAKey)
{
    EXPECT_EQ(parsed<TypeParam>("<r><a><key> </key><value>v</value></a></r>"),
              lines({"a. =v", "r="}));
}

TEST(NewResponseParser, LetsTheLaterOfTwoSamePairsWin)
{
    EXPECT_EQ(parsed<NewParser>("<r><a><key>k</key><value>1</value></a>"
                                "<a><key>k</key><value>2</value></a></r>"),
              lines({"a.k=2", "r="}));
}

namespace
{

/// A reply with a pair per key, all of one object; the values count from 1.
QStringList numbered(std::initializer_list<const char*> keys)
{
    QString reply = text("<r>");
    int value = 0;
    for (const char* key : keys)
        reply +=
            QStringLiteral("<a><key>%1</key><value>%2</value></a>").arg(text(key)).arg(++value);
    ParamMap result;
    EXPECT_TRUE(AspResponseParser3g().parse(reply + text("</r>"), result));
    result.remove(text("r"));
    return entries(result);
}

} // namespace

TEST(NumberingResponseParser, NumbersAKeyThatRepeatsInDirectSuccession)
{
    EXPECT_EQ(numbered({"k", "k", "k", "k"}), lines({"a.k=1", "a.k2=2", "a.k3=3", "a.k4=4"}));
}

TEST(NumberingResponseParser, CountsOnOverTheWholeReply)
{
    EXPECT_EQ(numbered({"a", "a", "b", "b", "b"}),
              lines({"a.a=1", "a.a2=2", "a.b=3", "a.b3=4", "a.b4=5"}));
}

TEST(NumberingResponseParser, OverwritesAKeyThatReturnsAfterAnother)
{
    EXPECT_EQ(numbered({"a", "b", "a"}), lines({"a.a=3", "a.b=2"}));
}

TEST(NumberingResponseParser, NumbersAcrossObjects)
{
    EXPECT_EQ(parsed<NumberingParser>("<r><a><key>k</key><value>1</value></a>"
                                      "<b><key>k</key><value>2</value></b></r>"),
              lines({"a.k=1", "b.k2=2", "r="}));
}

TEST(NumberingResponseParser, CountsARepetitionWithinOnePair)
{
    EXPECT_EQ(parsed<NumberingParser>("<r><a><key>k</key><key>k</key><value>1</value></a></r>"),
              lines({"a.k2=1", "r="}));
}

TEST(NumberingResponseParser, DoesNotNumberEmptyKeys)
{
    EXPECT_EQ(parsed<NumberingParser>("<r><a><key/><value>1</value></a>"
                                      "<b><key/><value>2</value></b>"
                                      "<c><key>k</key><value>3</value></c>"
                                      "<c><key>k</key><value>4</value></c></r>"),
              lines({"a.key=", "a.value=1", "b.key=", "b.value=2", "c.k=3", "c.k2=4", "r="}));
}

TEST(NumberingResponseParser, StartsAnewAfterAnEmptyKey)
{
    EXPECT_EQ(parsed<NumberingParser>("<r><a><key>k</key><value>1</value></a>"
                                      "<a><key/><value>2</value></a>"
                                      "<a><key>k</key><value>3</value></a></r>"),
              lines({"a.k=3", "a.key=", "a.value=2", "r="}));
}

} // namespace quorvel::test
