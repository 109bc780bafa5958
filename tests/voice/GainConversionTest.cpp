#include "voice/GainConversion.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <limits>

namespace quorvel::test
{

namespace
{

const int least = std::numeric_limits<int>::min();
const int most = std::numeric_limits<int>::max();

struct Conversion {
    const char* value;
    int min;
    int max;
    const char* result;
};

template <typename Convert, typename Conversions>
void expectConversions(Convert convert, const Conversions& conversions)
{
    for (const Conversion& c : conversions)
        EXPECT_EQ(convert(text(c.value), c.min, c.max), text(c.result))
            << c.value << " between " << c.min << " and " << c.max;
}

} // namespace

TEST(GainConversion, TurnsTheGatewaysRangeIntoAPercentageRoundedUp)
{
    expectConversions(convertScale, std::initializer_list<Conversion>{{"0", 0, 12, "0"},
                                                                      {"12", 0, 12, "100"},
                                                                      {"5", 0, 12, "42"},
                                                                      {"1", 0, 12, "9"},
                                                                      {" 6 ", 0, 12, "50"},
                                                                      {"+3", 0, 12, "25"},
                                                                      {"0", -10, 10, "50"},
                                                                      {"-10", -10, 10, "0"},
                                                                      {"-9", -10, 20, "4"},
                                                                      {"-20", -30, -10, "50"},
                                                                      {"-12", -30, -13, "106"},
                                                                      {"-1", 0, 12, "-8"},
                                                                      {"13", 0, 12, "109"},
                                                                      {"3", 12, 0, "75"}});
}

TEST(GainConversion, TurnsAPercentageIntoTheGatewaysRangeRoundedUp)
{
    expectConversions(convertGain, std::initializer_list<Conversion>{{"0", 0, 12, "0"},
                                                                     {"100", 0, 12, "12"},
                                                                     {"42", 0, 12, "6"},
                                                                     {"1", 0, 12, "1"},
                                                                     {" 50 ", -10, 10, "0"},
                                                                     {"51", -10, 10, "1"},
                                                                     {"49", -10, 10, "0"},
                                                                     {"33", -30, -10, "-23"},
                                                                     {"-5", 0, 12, "0"},
                                                                     {"-10", 0, 12, "-1"},
                                                                     {"200", 0, 12, "24"},
                                                                     {"75", 12, 0, "3"}});
}

TEST(GainConversion, DoesNotSurviveARoundTrip)
{
    EXPECT_EQ(convertScale(text("5"), 0, 12), text("42"));
    EXPECT_EQ(convertGain(text("42"), 0, 12), text("6"));
}

TEST(GainConversion, GivesNothingForATextThatIsNoNumber)
{
    for (const char* value : {"", "abc", "5.5", "0x5", "5 dB", "2147483648", "-2147483649"}) {
        EXPECT_EQ(convertScale(text(value), 0, 12), QString()) << value;
        EXPECT_EQ(convertGain(text(value), 0, 12), QString()) << value;
        EXPECT_EQ(convertScale(text(value), 7, 7), QString()) << value;
        EXPECT_EQ(convertGain(text(value), 7, 7), QString()) << value;
    }
}

TEST(GainConversion, GivesNothingOrTheMinimumForARangeWithoutExtent)
{
    for (const char* value : {"0", "7", "50", "100", "-3"}) {
        EXPECT_EQ(convertScale(text(value), 7, 7), QString()) << value;
        EXPECT_EQ(convertGain(text(value), 7, 7), text("7")) << value;
        EXPECT_EQ(convertScale(text(value), 0, 0), QString()) << value;
        EXPECT_EQ(convertGain(text(value), -4, -4), text("-4")) << value;
    }
}

TEST(GainConversion, WrapsAtThirtyTwoBits)
{
    expectConversions(convertScale,
                      std::initializer_list<Conversion>{{"2147483647", 0, 12, "-8"},
                                                        {"0", least, most, "0"},
                                                        {"21474837", 0, 100, "-21474835"},
                                                        {"-536870912", 0, -1, "-2147483648"},
                                                        {"1", least, 0, "0"}});
    expectConversions(convertGain,
                      std::initializer_list<Conversion>{{"2147483647", 0, 2, "0"},
                                                        {"100", least, most, "2147483647"},
                                                        {"1", most, least, "-2147483648"},
                                                        {"50", least, most, "-2147483648"}});
}

} // namespace quorvel::test
