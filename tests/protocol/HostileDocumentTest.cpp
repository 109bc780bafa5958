#include "protocol/AspResponseParser3g.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"
#include "support/MemoryWatch.h"
#include "support/Text.h"

#include <QThread>
#include <gtest/gtest.h>
#include <memory>

namespace quorvel::test
{

namespace
{

struct Document {
    const char* name;
    QString content;
};

void PrintTo(const Document& document, std::ostream* out)
{
    *out << document.name;
}

std::string documentName(const testing::TestParamInfo<Document>& info)
{
    return info.param.name;
}

/// Runs `work` on a thread with a small stack, as hosts with many threads give them.
template <typename Work>
void onSmallStack(Work work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(256 * 1024);
    thread->start();
    thread->wait();
}

/// A document of so many levels of elements, root included, with a text in the innermost.
QString nested(int levels)
{
    return text("<e>").repeated(levels) + text("x") + text("</e>").repeated(levels);
}

QString withSubset(const char* declarations)
{
    return text("<!DOCTYPE r [%1]><r version=\"1\"><a><b>x</b></a></r>").arg(text(declarations));
}

QString withGroups(int levels)
{
    return withSubset("<!ELEMENT r %1x%2>")
        .arg(QString(levels, QLatin1Char('(')), QString(levels, QLatin1Char(')')));
}

template <typename Parser>
class AnyParserUnderAttack : public testing::Test
{
protected:
    static void expectRefused(const QString& document)
    {
        ParamMap result{{text("kept"), text("1")}};
        EXPECT_FALSE(Parser().parse(document, result));
        EXPECT_EQ(entries(result), lines({"kept=1"}));
    }

    static QStringList accepted(const QString& document)
    {
        ParamMap result;
        EXPECT_TRUE(Parser().parse(document, result));
        return entries(result);
    }
};

using Parsers = testing::Types<AspResponseParserV1, AspResponseParserV2, AspResponseParser3g>;
TYPED_TEST_SUITE(AnyParserUnderAttack, Parsers);

} // namespace

TYPED_TEST(AnyParserUnderAttack, ReadsADocumentOf256Levels)
{
    EXPECT_EQ(this->accepted(nested(256)), lines({"e=", "e.e=x"}));
    onSmallStack([this] { EXPECT_EQ(this->accepted(nested(256)), lines({"e=", "e.e=x"})); });
}

TYPED_TEST(AnyParserUnderAttack, RefusesADocumentOf257Levels)
{
    this->expectRefused(nested(257));
    onSmallStack([this] { this->expectRefused(nested(257)); });
}

TYPED_TEST(AnyParserUnderAttack, RefusesADocumentOfAMillionLevels)
{
    onSmallStack([this] {
        this->expectRefused(nested(25000));
        this->expectRefused(text("<e>").repeated(1000000));
        this->expectRefused(nested(1000000));
    });
}

TYPED_TEST(AnyParserUnderAttack, CountsLevelsAndNotElements)
{
    EXPECT_EQ(this->accepted(text("<r>") + text("<a><b>x</b></a>").repeated(5000) + text("</r>")),
              lines({"a.b=x", "r="}));
}

TYPED_TEST(AnyParserUnderAttack, ReadsDeclaredGroupsOf256Levels)
{
    EXPECT_EQ(this->accepted(withGroups(256)), lines({"a.b=x", "r=1"}));
    onSmallStack([this] { EXPECT_EQ(this->accepted(withGroups(256)), lines({"a.b=x", "r=1"})); });
}

TYPED_TEST(AnyParserUnderAttack, RefusesDeclaredGroupsThatNestDeeper)
{
    onSmallStack([this] {
        this->expectRefused(withGroups(257));
        this->expectRefused(withGroups(25000));
        this->expectRefused(withGroups(1000000));
    });
}

TYPED_TEST(AnyParserUnderAttack, ReadsValuesFullOfBrackets)
{
    const QString brackets(1000, QLatin1Char('('));
    const QString document =
        text("<!--%1--><r version=\"%1\"><a><b>%1</b><c>!E%1</c><d><![CDATA[%1]]></d></a></r>")
            .arg(brackets);
    EXPECT_EQ(this->accepted(document),
              QStringList({text("a.b=") + brackets, text("a.c=!E") + brackets,
                           text("a.d=") + brackets, text("r=") + brackets}));
}

TYPED_TEST(AnyParserUnderAttack, ReadsADocumentTypeWithoutEntities)
{
    EXPECT_EQ(this->accepted(withSubset("<!ELEMENT r ANY><!ATTLIST r version CDATA #IMPLIED>"
                                        "<!NOTATION n SYSTEM 'n'>")),
              lines({"a.b=x", "r=1"}));
}

TYPED_TEST(AnyParserUnderAttack, FetchesNoExternalDocumentType)
{
    EXPECT_EQ(this->accepted(text("<!DOCTYPE r SYSTEM \"file:///etc/passwd\">"
                                  "<r version=\"1\"><a><b>[&root;]</b></a></r>")),
              lines({"a.b=[]", "r=1"}));
}

namespace
{

/// 411 bytes that would grow to 3 * 10^9 characters.
QString billionLaughs()
{
    QString subset = text("<!ENTITY e0 \"lol\">");
    for (int i = 1; i < 10; ++i)
        subset += text("<!ENTITY e%1 \"%2\">").arg(i).arg(text("&e%1;").arg(i - 1).repeated(10));
    return text("<!DOCTYPE r [%1]><r><a><b>&e9;</b></a></r>").arg(subset);
}

QString topDownLaughs()
{
    QString subset;
    for (int i = 9; i > 0; --i)
        subset += text("<!ENTITY e%1 \"%2\">").arg(i).arg(text("&e%1;").arg(i - 1).repeated(10));
    return text("<!DOCTYPE r [%1<!ENTITY e0 \"lol\">]><r><a><b>&e9;</b></a></r>").arg(subset);
}

QString quadraticBlowUp()
{
    return text("<!DOCTYPE r [<!ENTITY e \"%1\">]><r><a><b>%2</b></a></r>")
        .arg(QString(50000, QLatin1Char('x')), text("&e;").repeated(50000));
}

QString largeLiteral()
{
    return text("<!DOCTYPE r [<!ENTITY e \"%1\">]><r><a><b>&e;</b></a></r>")
        .arg(QString(1000000, QLatin1Char('x')));
}

class EntityDocument : public testing::TestWithParam<Document>
{
};

class IllFormedDocument : public testing::TestWithParam<Document>
{
};

template <typename Parser>
void expectNothingRead(const QString& document)
{
    ParamMap result;
    EXPECT_FALSE(Parser().parse(document, result));
    EXPECT_EQ(entries(result), QStringList());
}

void expectNothingReadByAny(const QString& document)
{
    expectNothingRead<AspResponseParserV1>(document);
    expectNothingRead<AspResponseParserV2>(document);
    expectNothingRead<AspResponseParser3g>(document);
}

} // namespace

TEST_P(EntityDocument, IsRefusedBeforeItGrows)
{
    const MemoryWatch memory;
    expectNothingReadByAny(GetParam().content);
    EXPECT_LE(memory.grownMegabytes(), 64);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, EntityDocument,
    testing::Values(
        Document{"Internal", withSubset("<!ENTITY e \"x\">")},
        Document{"BottomUp", billionLaughs()}, Document{"TopDown", topDownLaughs()},
        Document{"Quadratic", quadraticBlowUp()}, Document{"LargeLiteral", largeLiteral()},
        Document{"OfParameters", withSubset("<!ENTITY % p \"x\">")},
        Document{"OfExternalParameters",
                 withSubset("<!ENTITY % p SYSTEM \"file:///etc/passwd\"> %p;")},
        Document{"ExternalFile", withSubset("<!ENTITY e SYSTEM \"file:///etc/passwd\">")},
        Document{"ExternalAddress", withSubset("<!ENTITY e SYSTEM \"http://127.0.0.1:9/\">")},
        Document{"Public", withSubset("<!ENTITY e PUBLIC \"p\" \"http://127.0.0.1:9/\">")},
        Document{"Unparsed", withSubset("<!NOTATION n SYSTEM \"n\">"
                                        "<!ENTITY e SYSTEM \"file:///etc/passwd\" NDATA n>")},
        Document{"Unused", withSubset("<!ENTITY e \"&e;\">")}),
    documentName);

TEST_P(IllFormedDocument, GivesNoEntries)
{
    expectNothingReadByAny(GetParam().content);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, IllFormedDocument,
    testing::Values(Document{"Unclosed", text("<r version=\"1\"><a><b>x</b></a>")},
                    Document{"ClosedInTheWrongOrder", text("<r><a><b>x</a></b></r>")},
                    Document{"TwoRoots", text("<r><a><b>x</b></a></r><r/>")},
                    Document{"TextBehindTheRoot", text("<r><a><b>x</b></a></r>x")},
                    Document{"TextBeforeTheRoot", text("x<r><a><b>x</b></a></r>")},
                    Document{"BareAmpersand", text("<r><a><b>x & y</b></a></r>")},
                    Document{"BracketInAnAttribute", text("<r version=\"<\"><a><b>x</b></a></r>")},
                    Document{"UnquotedAttribute", text("<r version=1><a><b>x</b></a></r>")},
                    Document{"BadComment", text("<r><a><b>x</b></a><!-- a -- b --></r>")},
                    Document{"BadName", text("<r><1a><b>x</b></1a></r>")},
                    Document{"DeclarationInside",
                             text("<r><a><b>x</b></a><?xml version=\"1.0\"?></r>")},
                    Document{"OpenCharacterData", text("<r><a><b><![CDATA[x</b></a></r>")},
                    Document{"EndOfCharacterDataAlone", text("<r><a><b>x]]></b></a></r>")},
                    Document{"NoElement", text("<?xml version=\"1.0\"?>")},
                    Document{"PlainText", text("Internal server error")},
                    Document{"WebPage", text("<html><head><title>x</title><body><br></html>")}),
    documentName);

namespace
{

class DeclaredEncoding : public testing::TestWithParam<const char*>
{
};

} // namespace

TEST_P(DeclaredEncoding, ChangesNothingAboutTheText)
{
    const QString reply = text("<?xml version=\"1.0\" encoding=\"%1\"?>"
                               "<r><a><b>\xc3\xa4\xe2\x82\xac</b></a></r>")
                              .arg(text(GetParam()));
    ParamMap result;
    EXPECT_TRUE(AspResponseParserV1().parse(reply, result));
    EXPECT_EQ(entries(result), lines({"a.b=\xc3\xa4\xe2\x82\xac", "r="}));
}

INSTANTIATE_TEST_SUITE_P(Any, DeclaredEncoding,
                         testing::Values("ISO-8859-1", "UTF-16", "UTF-8", "klingon"));

TEST(LargeDocument, WithManyAttributesIsRead)
{
    QString attributes;
    for (int i = 0; i < 10000; ++i)
        attributes += QStringLiteral(" a%1=\"%1\"").arg(i);
    ParamMap result;
    EXPECT_TRUE(AspResponseParserV1().parse(
        text("<r version=\"1\"") + attributes + text("><a><b>x</b></a></r>"), result));
    EXPECT_EQ(entries(result), lines({"a.b=x", "r=1"}));
}

TEST(LargeDocument, WithALongNameIsRead)
{
    const QString name(1000000, QLatin1Char('n'));
    ParamMap result;
    EXPECT_TRUE(AspResponseParserV1().parse(
        text("<r><a><") + name + text(">x</") + name + text("></a></r>"), result));
    EXPECT_EQ(result.value(text("a.") + name), text("x"));
}

TEST(LargeDocument, WithALongTextIsRead)
{
    const QString value(3000000, QLatin1Char('v'));
    ParamMap result;
    EXPECT_TRUE(
        AspResponseParserV1().parse(text("<r><a><b>") + value + text("</b></a></r>"), result));
    EXPECT_EQ(result.value(text("a.b")), value);
}

} // namespace quorvel::test
