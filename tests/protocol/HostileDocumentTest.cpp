#include "protocol/AspResponseParser3g.h"
#include "protocol/AspResponseParserV1.h"
#include "protocol/AspResponseParserV2.h"
#include "support/HostileDocuments.h"
#include "support/MemoryWatch.h"
#include "support/Text.h"

#include <QThread>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quorvel::test
{

namespace
{

/// Runs `work` on a thread with a small stack, as hosts with many threads give them.
template <typename Work>
void onSmallStack(Work work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(256 * 1024);
    thread->start();
    thread->wait();
}

template <typename Parser>
class AnyParserUnderAttack : public testing::Test
{
protected:
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

TYPED_TEST(AnyParserUnderAttack, CountsLevelsAndNotElements)
{
    EXPECT_EQ(this->accepted(text("<r>") + text("<a><b>x</b></a>").repeated(5000) + text("</r>")),
              lines({"a.b=x", "r="}));
}

TYPED_TEST(AnyParserUnderAttack, ReadsTheTextOfAnEntryThroughAllOfItsElements)
{
    EXPECT_EQ(this->accepted(text("<r><a>1<b>2<c>3<d>4</d>5</c><!--6--><e/>7<![CDATA[8]]>"
                                  "<?x 9?></b>0</a></r>")),
              lines({"a.b=234578", "r="}));
}

TYPED_TEST(AnyParserUnderAttack, ReadsTheVersionBehindAnyPrefix)
{
    EXPECT_EQ(this->accepted(text("<x:r xmlns:x='u' a='0' x:version='1'><y:a><z:b>x</z:b></y:a>"
                                  "</x:r>")),
              lines({"a.b=x", "r=1"}));
}

TYPED_TEST(AnyParserUnderAttack, FetchesNoExternalDocumentType)
{
    EXPECT_EQ(this->accepted(text("<!DOCTYPE r SYSTEM \"file:///etc/passwd\">"
                                  "<r version=\"1\"><a><b>[&root;]</b></a></r>")),
              lines({"a.b=[]", "r=1"}));
}

TYPED_TEST(AnyParserUnderAttack, ReadsValuesFullOfBrackets)
{
    const QString brackets(1000, QLatin1Char('('));
    EXPECT_EQ(this->accepted(
                  text("<r><a><b>%1</b><c>!E%1</c><d><![CDATA[%1]]></d></a></r>").arg(brackets)),
              QStringList({text("a.b=") + brackets, text("a.c=!E") + brackets,
                           text("a.d=") + brackets, text("r=")}));
}

namespace
{

using Parse = std::function<bool(const QString& document, ParamMap& result)>;

template <typename Parser>
bool parseWith(const QString& document, ParamMap& result)
{
    return Parser().parse(document, result);
}

const Parse parses[] = {parseWith<AspResponseParserV1>, parseWith<AspResponseParserV2>,
                        parseWith<AspResponseParser3g>};

class RefusedDocument : public testing::TestWithParam<HostileDocument>
{
};

class ReadDocument : public testing::TestWithParam<HostileDocument>
{
};

} // namespace

TEST_P(RefusedDocument, GivesNoEntries)
{
    const QString document = QString::fromUtf8(GetParam().content());
    const MemoryWatch memory;
    onSmallStack([&] {
        for (const Parse& parse : parses) {
            ParamMap result{{text("kept"), text("1")}};
            EXPECT_FALSE(parse(document, result));
            EXPECT_EQ(entries(result), lines({"kept=1"}));
        }
    });
    EXPECT_LE(memory.grownMegabytes(), 64);
}

INSTANTIATE_TEST_SUITE_P(IllFormed, RefusedDocument, testing::ValuesIn(illFormedDocuments()),
                         DocumentName());
INSTANTIATE_TEST_SUITE_P(WithEntities, RefusedDocument, testing::ValuesIn(entityDocuments()),
                         DocumentName());
INSTANTIATE_TEST_SUITE_P(Deep, RefusedDocument, testing::ValuesIn(deepDocuments()), DocumentName());
INSTANTIATE_TEST_SUITE_P(Crowded, RefusedDocument, testing::ValuesIn(crowdedDocuments()),
                         DocumentName());

TEST_P(ReadDocument, GivesItsEntries)
{
    const QString document = QString::fromUtf8(GetParam().content());
    const MemoryWatch memory;
    onSmallStack([&] {
        ParamMap result;
        EXPECT_TRUE(AspResponseParserV2().parse(document, result));
        EXPECT_EQ(result.value(text("sysmgr-0.fwversion")), text("1.2"));
        EXPECT_TRUE(AspResponseParserV1().parse(document, result));
        EXPECT_EQ(result.value(text("sysmgr-0.value")), text("1.2"));
    });
    EXPECT_LE(memory.grownMegabytes(), 64);
}

INSTANTIATE_TEST_SUITE_P(Odd, ReadDocument, testing::ValuesIn(oddDocuments()), DocumentName());

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

TEST(LargeDocument, IsReadToItsLastEntry)
{
    QString document = text("<r>");
    for (int i = 0; i < 30000; ++i)
        document += text("<d><key>client%1.ip</key><value>%1</value></d>").arg(i);
    ParamMap result;
    EXPECT_TRUE(AspResponseParserV2().parse(document + text("</r>"), result));
    EXPECT_EQ(result.size(), 30001);
    EXPECT_EQ(result.value(text("d.client29999.ip")), text("29999"));
}

TEST(LargeDocument, KeepsALongTextWhole)
{
    const QString value(3000000, QLatin1Char('v'));
    ParamMap result;
    EXPECT_TRUE(
        AspResponseParserV1().parse(text("<r><a><b>") + value + text("</b></a></r>"), result));
    EXPECT_EQ(result.value(text("a.b")), value);
}

} // namespace quorvel::test
