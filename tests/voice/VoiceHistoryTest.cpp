#include "voice/VoiceFixture.h"

namespace quorvel::test
{

namespace
{

QString callerCount(const char* count)
{
    return reply101({{"voice-0", "numcallentries:", count}, {"webapp", "error", "0"}});
}

/// A page of the log: `size` calls from number `first` on, whose kinds are 0, 1, 2 in turn. With
/// the gateway's verdict unless that is empty.
QString page(int first, int size, const char* verdict = "0")
{
    QString reply = text("<response version=\"1.0.1\">");
    const QString entry = text("<voice-0><key>%1%2</key><value>%3</value></voice-0>");
    for (int i = 0; i < size; ++i) {
        reply += entry.arg(text("callerid")).arg(i).arg(text("caller%1").arg(first + i));
        reply += entry.arg(text("callType")).arg(i).arg((first + i) % 3);
    }
    if (*verdict)
        reply += text("<webapp><key>error</key><value>%1</value></webapp>").arg(text(verdict));
    return reply + text("</response>");
}

QStringList callersFrom(int first, int last, int step = 1)
{
    QStringList callers;
    for (int i = first; i <= last; i += step)
        callers.append(text("caller%1").arg(i));
    return callers;
}

class VoiceHistory : public VoiceFacade
{
protected:
    QList<AspVoipCallHistory> fetch(int callType, int line = 1)
    {
        // What stands in the other fields is the facade's to replace.
        return facade.getVoipCallHistory({line, callType, 7, 8, 9}, error);
    }

    /// Who called, in the order of the list.
    QStringList callers(int callType)
    {
        QStringList names;
        for (const AspVoipCallHistory& call : fetch(callType))
            names.append(call.callerId);
        return names;
    }

    /// What is told after the number of calls and after each page: "page/pages error".
    QStringList progress(int callType)
    {
        QStringList told;
        facade.followVoipCallHistory(
            {1, callType, 0, 0, 0},
            [&](int page, int pages, AspWebAppErrorCodes sofar) {
                told.append(text("%1/%2 %3").arg(page).arg(pages).arg(sofar));
            },
            error);
        return told;
    }

    void script45Calls()
    {
        gateway.reply(callerCount("45")).reply(page(0, 20)).reply(page(20, 20)).reply(page(40, 5));
    }
};

} // namespace

TEST_F(VoiceHistory, ReadsEveryFieldOfACall)
{
    gateway.reply(callerCount("1"))
        .reply(reply101({{"voice-0", "time0", "20240131 093005"},
                         {"voice-0", "duration0", "00:01:30"},
                         {"voice-0", "callType0", "2"},
                         {"voice-0", "destination0", "555123"},
                         {"voice-0", "callerid0", "555999"},
                         {"voice-0", "status0", "4"},
                         {"voice-0", "direction0", "-1"},
                         {"webapp", "error", "0"}}));
    const QList<AspVoipCallHistory> calls = fetch(3);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(shown(calls[0]), text("2024-01-31 09:30:05|555123|555999|00:01:30|-1|2|4"));
    EXPECT_EQ(shown(calls[1]), text("--::||||0|0|0"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
}

TEST_F(VoiceHistory, ReadsNumbersThatAreNoneAsZero)
{
    gateway.reply(callerCount("0"))
        .reply(reply101({{"voice-0", "callType0", "in"},
                         {"voice-0", "status0", ""},
                         {"voice-0", "direction0", "1.5"}}));
    const QList<AspVoipCallHistory> calls = fetch(0);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(shown(calls[0]), text("--::||||0|0|0"));
}

TEST_F(VoiceHistory, ReshapesATimeOfAnyLength)
{
    const struct {
        const char* time;
        const char* reshaped;
    } cases[] = {{"20240131 093005", "2024-01-31 09:30:05"},
                 {"20240131 093005+0100", "2024-01-31 09:30:05"},
                 {"2024", "2024--::"},
                 {"20240131", "2024-01-31::"},
                 {"", "--::"}};
    for (const auto& [time, reshaped] : cases) {
        gateway.reply(callerCount("0")).reply(reply101({{"voice-0", "time0", time}}));
        const QList<AspVoipCallHistory> calls = fetch(3);
        ASSERT_EQ(calls.size(), 1);
        EXPECT_EQ(calls[0].time, text(reshaped)) << time;
    }
}

TEST_F(VoiceHistory, OfAnEmptyLogIsOnePageWithOneEmptyCall)
{
    gateway.reply(callerCount("0")).reply(page(0, 0));
    const QList<AspVoipCallHistory> calls = fetch(3, 0);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(shown(calls[0]), text("--::||||0|0|0"));
    EXPECT_TRUE(matchesGolden(text("voice/getVoipCallHistoryOf0Calls"), transcript(gateway)));
}

TEST_F(VoiceHistory, Of19CallsIsOnePage)
{
    gateway.reply(callerCount("19")).reply(page(0, 19));
    EXPECT_EQ(callers(3), callersFrom(0, 18) << QString());
    EXPECT_TRUE(matchesGolden(text("voice/getVoipCallHistoryOf19Calls"), transcript(gateway)));
}

TEST_F(VoiceHistory, Of20CallsIsAFullPageAndOneBeyondTheEnd)
{
    gateway.reply(callerCount("20")).reply(page(0, 20)).reply(page(20, 0));
    const QList<AspVoipCallHistory> calls = fetch(3);
    ASSERT_EQ(calls.size(), 21);
    EXPECT_EQ(calls[19].callerId, text("caller19"));
    EXPECT_EQ(shown(calls[20]), text("--::||||0|0|0"));
    EXPECT_TRUE(matchesGolden(text("voice/getVoipCallHistoryOf20Calls"), transcript(gateway)));
}

TEST_F(VoiceHistory, Of45CallsIsThreePagesAndEndsWithAnEmptyCall)
{
    script45Calls();
    const QList<AspVoipCallHistory> calls = fetch(3);
    ASSERT_EQ(calls.size(), 46);
    EXPECT_EQ(calls[0].callerId, text("caller0"));
    EXPECT_EQ(calls[25].callerId, text("caller25"));
    EXPECT_EQ(calls[44].callerId, text("caller44"));
    EXPECT_EQ(shown(calls[45]), text("--::||||0|0|0"));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("voice/getVoipCallHistoryOf45Calls"), transcript(gateway)));
}

TEST_F(VoiceHistory, OfAllKindsKeepsTheGatewaysOrder)
{
    script45Calls();
    EXPECT_EQ(callers(3), callersFrom(0, 44) << QString());
}

TEST_F(VoiceHistory, OfKind0EndsWithTheEmptyCall)
{
    script45Calls();
    EXPECT_EQ(callers(0), callersFrom(0, 42, 3) << QString());
}

TEST_F(VoiceHistory, OfKind1KeepsCallsOfThatKindOnly)
{
    script45Calls();
    EXPECT_EQ(callers(1), callersFrom(1, 43, 3));
}

TEST_F(VoiceHistory, OfKind2KeepsCallsOfThatKindOnly)
{
    script45Calls();
    EXPECT_EQ(callers(2), callersFrom(2, 44, 3));
}

TEST_F(VoiceHistory, OfAKindWithoutCallsIsEmpty)
{
    script45Calls();
    EXPECT_EQ(callers(4), QStringList());
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceHistory, LeavesOutAPageInTheMiddleThatFails)
{
    gateway.reply(callerCount("45")).reply(page(0, 20)).sendRaw(failedReply).reply(page(40, 5));
    EXPECT_EQ(callers(3), callersFrom(0, 19) + callersFrom(40, 44) << QString());
    // The last page's verdict has taken the place of the failure.
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceHistory, ReportsAFailedPageIfNoLaterOneHasAVerdict)
{
    gateway.reply(callerCount("45")).reply(page(0, 20)).sendRaw(failedReply).reply(page(40, 5, ""));
    EXPECT_EQ(callers(3), callersFrom(0, 19) + callersFrom(40, 44) << QString());
    EXPECT_EQ(error, 29);
}

TEST_F(VoiceHistory, ReportsAnUnreadablePageWhateverFollows)
{
    gateway.reply(callerCount("45")).reply(page(0, 20)).reply(text("<html>")).reply(page(40, 5));
    EXPECT_EQ(callers(3), callersFrom(0, 19) + callersFrom(40, 44) << QString());
    EXPECT_EQ(error, 25);
}

TEST_F(VoiceHistory, ReportsALastPageThatFails)
{
    gateway.reply(callerCount("45")).reply(page(0, 20)).reply(page(20, 20)).sendRaw(failedReply);
    EXPECT_EQ(callers(3), callersFrom(0, 39));
    EXPECT_EQ(error, 29);
}

TEST_F(VoiceHistory, DoesNotRepeatCallsOfThePageBeforeAShorterOne)
{
    gateway.reply(callerCount("25")).reply(page(0, 20)).reply(page(20, 2));
    EXPECT_EQ(callers(3), callersFrom(0, 21) << QString() << QString() << QString() << QString());
}

TEST_F(VoiceHistory, TellsAfterEachPageHowFarItIs)
{
    script45Calls();
    EXPECT_EQ(progress(1), lines({"0/3 0", "1/3 0", "2/3 0", "3/3 0"}));
    EXPECT_TRUE(matchesGolden(text("voice/getVoipCallHistoryOf45Calls"), transcript(gateway)));
}

TEST_F(VoiceHistory, TellsOfAPageThatFailsThoughALaterOneSucceeds)
{
    gateway.reply(callerCount("45")).reply(page(0, 20)).sendRaw(failedReply).reply(page(40, 5));
    EXPECT_EQ(progress(3), lines({"0/3 0", "1/3 0", "2/3 29", "3/3 0"}));
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceHistory, TellsOfAPageThatTheGatewayRefuses)
{
    gateway.reply(callerCount("25")).reply(page(0, 0, "7")).reply(page(20, 5));
    EXPECT_EQ(progress(3), lines({"0/2 0", "1/2 7", "2/2 0"}));
}

TEST_F(VoiceHistory, TellsThatTheGatewayRefusesTheNumberOfCalls)
{
    gateway.reply(reply101({{"webapp", "error", "7"}})).reply(page(0, 0));
    EXPECT_EQ(progress(3), lines({"0/1 7", "1/1 0"}));
    EXPECT_EQ(error, 0);
}

TEST_F(VoiceHistory, TellsOfNoPagesIfTheNumberOfCallsIsNegative)
{
    gateway.reply(callerCount("-45"));
    EXPECT_EQ(progress(3), lines({"0/0 0"}));
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(VoiceHistory, TellsNothingIfTheNumberOfCallsCannotBeRead)
{
    gateway.sendRaw(failedReply);
    EXPECT_EQ(progress(3), QStringList());
    EXPECT_EQ(error, 29);
}

TEST_F(VoiceHistory, GoesOnWithoutAnybodyToTell)
{
    script45Calls();
    EXPECT_EQ(facade.followVoipCallHistory({1, 1, 0, 0, 0}, nullptr, error).size(), 15);
}

TEST_F(VoiceHistory, AsksForNoPageIfTheNumberOfCallsCannotBeRead)
{
    gateway.sendRaw(failedReply);
    EXPECT_EQ(callers(3), QStringList());
    EXPECT_EQ(error, 29);
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(VoiceHistory, OfTheOlderGenerationIsOneEmptyCallThatNobodyWasAskedFor)
{
    takeOlderGeneration();
    const QList<AspVoipCallHistory> calls = fetch(3);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(shown(calls[0]), text("--::||||0|0|0"));
    EXPECT_EQ(callers(0), QStringList{QString()});
    EXPECT_EQ(callers(1), QStringList());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

} // namespace quorvel::test
