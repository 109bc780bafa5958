#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::StartsWith;

class QuorvelctlCalls : public QuorvelctlTest
{
protected:
    /// How many lines a text has.
    static long linesOf(const std::string& text)
    {
        return std::count(text.begin(), text.end(), '\n');
    }
};

TEST_F(QuorvelctlCalls, OfALineAreListedTheNewestFirst)
{
    const Outcome result = run("phone history --line 1");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "TIME                 LINE  KIND  DIRECTION  CALLER   CALLED          DURATION  "
              "STATUS\n"
              "2024-03-01 20:22:49  1     1     1          5550119  5550143         4         0\n"
              "2024-01-28 20:30:57  1     0     0          5550143  00442079460018  260       0\n"
              "2024-01-05 09:37:49  1     0     0          5550143  5550188         95        0\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(QuorvelctlCalls, OfAllLinesAreListedTogether)
{
    const Outcome result = run("phone history");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(
        result.output,
        HasSubstr("\n2024-03-03 22:49:26  0     2     1          2025550123      5550142         0 "
                  "        1\n"
                  "2024-03-01 20:22:49  1     1     1          5550119         5550143         4  "
                  "       0\n"
                  "2024-02-29 03:48:04  0     0     0          5550142         5550188         260"
                  "       0\n"));
    // 45 of line 0, 3 of line 1, none of the analogue port, and the headings.
    EXPECT_EQ(linesOf(result.output), 49);
}

TEST_F(QuorvelctlCalls, OfOneKindAreListedAlone)
{
    EXPECT_EQ(linesOf(run("phone history --line 0 --kind 2").output), 9);
    EXPECT_EQ(run("phone history --line 1 --kind 2").output, "No calls.\n");
    EXPECT_EQ(linesOf(run("phone history --line 1 --kind 3").output), 4);
}

// The library ends its list with an empty call of kind 0.
TEST_F(QuorvelctlCalls, OfKind0AreNoneOnALineWithoutCalls)
{
    EXPECT_EQ(run("phone history --line 2 --kind 0").output, "No calls.\n");
    EXPECT_EQ(run("phone history --line 2").output, "No calls.\n");
}

// Whether a line is there is asked of empty logs only.
TEST_F(QuorvelctlCalls, OfALineAreListedAlsoIfTheLinesCannotBe)
{
    spoil("close key=AllLineList");
    EXPECT_EQ(linesOf(run("phone history --line 1").output), 4);
    EXPECT_EQ(run("phone history --line 2").status, 1);
}

TEST_F(QuorvelctlCalls, AreWrittenAsCsvInTheGatewaysOrder)
{
    simulator.setStatus("voice-0", "call5.destination", "Ada, \"at home\"");
    const Outcome result = run("phone history --line 1 --csv");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "time,line,kind,direction,caller,called,duration,status\n"
                             "2024-01-05 09:37:49,1,0,0,5550143,\"Ada, \"\"at home\"\"\",95,0\n"
                             "2024-01-28 20:30:57,1,0,0,5550143,00442079460018,260,0\n"
                             "2024-03-01 20:22:49,1,1,1,5550119,5550143,4,0\n");
}

TEST_F(QuorvelctlCalls, AsCsvHaveTheirHeadingsAlsoIfThereAreNone)
{
    EXPECT_EQ(run("phone history --line 2 --csv").output,
              "time,line,kind,direction,caller,called,duration,status\n");
}

TEST_F(QuorvelctlCalls, AreWrittenAsJsonInTheGatewaysOrder)
{
    const Outcome result = run("phone history --line 1 --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("[\n"
                                          "    {\n"
                                          "        \"called\": \"5550188\",\n"
                                          "        \"caller\": \"5550143\",\n"
                                          "        \"direction\": 0,\n"
                                          "        \"duration\": \"95\",\n"
                                          "        \"kind\": 0,\n"
                                          "        \"line\": 1,\n"
                                          "        \"status\": 0,\n"
                                          "        \"time\": \"2024-01-05 09:37:49\"\n"
                                          "    },\n"));
    EXPECT_EQ(run("phone history --line 2 --json").output, "[\n]\n");
}

} // namespace quorvelctl::test
