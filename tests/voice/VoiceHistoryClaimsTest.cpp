#include "voice/VoiceFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

class VoiceHistoryClaims : public VoiceFacade
{
protected:
    void SetUp() override
    {
        VoiceFacade::SetUp();
        cpe->setVoipImplementor(voice);
    }

    /// The pages that are asked for if the gateway claims so many calls: how many, and the last.
    QString pagesOf(const char* claim)
    {
        voice->claim = text(claim);
        voice->pages.clear();
        calls = facade.getVoipCallHistory({1, 3, 0, 0, 0}, error).size();
        if (voice->pages.isEmpty())
            return text("none");
        const AspVoipCallHistoryFilter last = voice->pages.last();
        return text("%1, last %2 to %3")
            .arg(voice->pages.size())
            .arg(last.firstEntry)
            .arg(last.lastEntry);
    }

    boost::shared_ptr<ProgrammedVoice> voice = boost::make_shared<ProgrammedVoice>();
    int calls = 77;
};

} // namespace

TEST_F(VoiceHistoryClaims, ArePagedExactlyUpTo20000)
{
    EXPECT_EQ(pagesOf("1"), text("1, last 0 to 1"));
    EXPECT_EQ(pagesOf("39"), text("2, last 20 to 39"));
    EXPECT_EQ(pagesOf("40"), text("3, last 40 to 40"));
    EXPECT_EQ(pagesOf("19999"), text("1000, last 19980 to 19999"));
    EXPECT_EQ(calls, 20000);
    EXPECT_EQ(pagesOf("20000"), text("1001, last 20000 to 20000"));
    EXPECT_EQ(calls, 20001);
}

TEST_F(VoiceHistoryClaims, AreReadAs20000Beyond)
{
    for (const char* claim : {"20001", "2147483640", "2147483647", "2147483648", "4294967296",
                              "99999999999999999999999999"}) {
        EXPECT_EQ(pagesOf(claim), text("1001, last 20000 to 20000")) << claim;
        EXPECT_EQ(calls, 20001) << claim;
    }
}

TEST_F(VoiceHistoryClaims, ThatAreNoNumbersAreReadAsNone)
{
    for (const char* claim : {"", "many", "4x", "4.5", "-99999999999", "0"}) {
        EXPECT_EQ(pagesOf(claim), text("1, last 0 to 0")) << claim;
        EXPECT_EQ(calls, 1) << claim;
    }
}

TEST_F(VoiceHistoryClaims, BelowZeroGiveNoCalls)
{
    EXPECT_EQ(pagesOf("-1"), text("1, last 0 to -1"));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(pagesOf("-20"), text("none"));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(pagesOf("-2147483648"), text("none"));
    EXPECT_EQ(calls, 0);
}

TEST_F(VoiceHistoryClaims, ArePagedWithTheHostsLineAndKind)
{
    voice->claim = text("20");
    facade.getVoipCallHistory({-2, 5, 7, 8, 9}, error);
    EXPECT_EQ(voice->countAskedOf, text("-2 voice-0"));
    ASSERT_EQ(voice->pages.size(), 2);
    const auto& [line, callType, pageSize, firstEntry, lastEntry] = voice->pages.first();
    EXPECT_EQ(line, -2);
    EXPECT_EQ(callType, 5);
    EXPECT_EQ(pageSize, 20);
    EXPECT_EQ(firstEntry, 0);
    EXPECT_EQ(lastEntry, 19);
}

} // namespace quorvel::test
