#include "assembly/Recognition.h"
#include "support/Golden.h"
#include "support/Replies.h"
#include "support/Transcript.h"

namespace quorvel::test
{

namespace
{

/// Recognition of a gateway with dialect 1.0.0 and WAN objects.
class RecognitionOfWan : public Recognition
{
protected:
    RecognitionOfWan() { gateway.logIn().reply(managerList100({text("wan")})); }

    /// The version that recognition finds.
    QString wanVersion()
    {
        EXPECT_TRUE(recognize());
        return parameters.value(text("CPE_PARAM_WAN_VERSION"));
    }

    /// What the gateway is asked in its last request.
    QString lastQuestion() const
    {
        return commandLines(QString::fromUtf8(gateway.requests().last().body));
    }
};

} // namespace

TEST_F(RecognitionOfWan, FindsTheNewerModelByTheFlagOfTheDefaultWan)
{
    gateway.reply(reply100({{"route-0", "default_gw", "wan-3"}}))
        .reply(reply100({{"wan-3", "isnewwan", "1"}}));
    EXPECT_EQ(wanVersion(), text("2"));
    EXPECT_TRUE(matchesGolden(text("assembly/recognitionOfWan"), transcript(gateway)));
}

TEST_F(RecognitionOfWan, FindsTheOlderModelByAnyOtherFlag)
{
    const QStringList flags = lines({"0", "", "2", "true", "01"});
    for (const QString& flag : flags) {
        SCOPED_TRACE(flag.toStdString());
        gateway.reply(reply100({{"route-0", "default_gw", "wan-0"}}))
            .reply(reply100({{"wan-0", "isnewwan", flag}}));
        EXPECT_EQ(wanVersion(), text("1"));
        if (&flag != &flags.last())
            gateway.logIn().reply(managerList100({text("wan")}));
    }
}

TEST_F(RecognitionOfWan, FindsTheOlderModelWithoutAFlag)
{
    gateway.reply(reply100({{"route-0", "default_gw", "wan-0"}})).reply(reply100({}));
    EXPECT_EQ(wanVersion(), text("1"));
}

TEST_F(RecognitionOfWan, TakesNoNoticeOfTheFlagOfAnotherWan)
{
    gateway.reply(reply100({{"route-0", "default_gw", "wan-0"}}))
        .reply(reply100({{"wan-1", "isnewwan", "1"}}));
    EXPECT_EQ(wanVersion(), text("1"));
}

TEST_F(RecognitionOfWan, FindsTheOlderModelIfTheFlagDoesNotArrive)
{
    gateway.reply(reply100({{"route-0", "default_gw", "wan-0"}})).sendRaw({});
    EXPECT_EQ(wanVersion(), text("1"));
    EXPECT_EQ(log.lines().filter(text("ERROR")), QStringList());
}

TEST_F(RecognitionOfWan, FindsTheOlderModelIfTheDefaultWanDoesNotArrive)
{
    gateway.sendRaw({});
    EXPECT_EQ(wanVersion(), text("1"));
    EXPECT_EQ(log.lines().filter(text("ERROR")), QStringList());
}

TEST_F(RecognitionOfWan, AsksTheFirstWanIfTheGatewayNamesNoDefault)
{
    gateway.reply(reply100({})).reply(reply100({{"wan-0", "isnewwan", "1"}}));
    EXPECT_EQ(wanVersion(), text("2"));
    EXPECT_EQ(lastQuestion(), text("version 1.0.0\nquery \"wan-0\" \"isnewwan\" \"\"\n"));
}

TEST_F(RecognitionOfWan, AsksAWanWithoutNameIfTheDefaultIsEmpty)
{
    gateway.reply(reply100({{"route-0", "default_gw", ""}}))
        .reply(reply100({{"wan-0", "isnewwan", "1"}}));
    EXPECT_EQ(wanVersion(), text("1"));
    EXPECT_EQ(lastQuestion(), text("version 1.0.0\nquery \"\" \"isnewwan\" \"\"\n"));
}

TEST_F(RecognitionOfWan, AsksForTheFlagAlthoughTheGatewayReportsAnError)
{
    gateway.reply(reply100({{"webapp", "error", "5"}}))
        .reply(reply100({{"webapp", "error", "5"}, {"wan-0", "isnewwan", "1"}}));
    EXPECT_EQ(wanVersion(), text("2"));
}

TEST_F(Recognition, AsksForTheWanModelInTheNewerDialect)
{
    scriptRecognition({text("devmgr"), text("wan")});
    EXPECT_TRUE(recognize());
    EXPECT_EQ(entries(parameters),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_GENERAL_SETTINGS_VERSION=1",
                     "CPE_PARAM_WAN_VERSION=2", "CPE_PARAM_XML_VERSION=1.0.1"}));
    EXPECT_TRUE(
        matchesGolden(text("assembly/recognitionOfWanInNewerDialect"), transcript(gateway)));
}

} // namespace quorvel::test
