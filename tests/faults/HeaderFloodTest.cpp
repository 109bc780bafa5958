#include <quorvel/AspGeneralSettingsFacade.h>

#include "faults/Opponent.h"
#include "general/GeneralSettingsImplementor.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/MemoryWatch.h"
#include "support/Resources.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <boost/make_shared.hpp>
#include <gmock/gmock.h>

namespace quorvel::test
{

namespace
{

/// A head that doesn't end, or hardly. Qt takes in as much of it as comes before it tells anybody,
/// and its manager waits 5 seconds for a thread that doesn't listen, so all that can be shown is
/// that it ends.
struct HeaderFlood {
    const char* name;
    Misbehaviour way;
    std::vector<int> errors = {28};
    int limitMs = 500;
    int mostMs = 20000;
    bool growsWithTime = false; ///< Qt keeps what it reads
};

void PrintTo(const HeaderFlood& flood, std::ostream* out)
{
    *out << flood.name;
}

class HeaderFloods : public testing::TestWithParam<HeaderFlood>
{
};

QByteArray headers(int number)
{
    QByteArray lines;
    for (int i = 0; i < number; ++i)
        lines += "X-" + QByteArray::number(i) + ": z\r\n";
    return lines;
}

std::vector<HeaderFlood> floods()
{
    const QByteArray crowd(65536, 'x');
    const QByteArray head = "HTTP/1.1 200 OK\r\n";
    return {
        {"EndlessHeaderAndTheRealLimit", streaming(head + "X: ", crowd), {28}, 20000, 26000, true},
        {"EndlessInterimReplies",
         streaming("", QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(2000))},
        {"EndlessChunkSize",
         streaming(head + "Transfer-Encoding: chunked\r\n\r\n", crowd),
         {28},
         500,
         20000,
         true},
        // The time that they take grows with the square of their number.
        {"TwentyThousandHeaders",
         sending(httpReply(goodBody(), headers(20000))),
         {0, 28},
         20000,
         60000}};
}

} // namespace

TEST_P(HeaderFloods, End)
{
    Opponent opponent(GetParam().way);
    const auto cpe = builtCpe(opponent.address(), {{"XML_VERSION", "1.0.1"}});
    const auto usual = cpe->getGeneralImplementor()->getRequestExecutor();
    AspGeneralSettingsFacade facade(cpe);
    AspWebAppErrorCodes error = AspWebAppNoError;
    opponent.behave();
    EXPECT_EQ(facade.getFirmwareVersion(error), text("1.2"));

    const Resources before;
    const MemoryWatch memory;
    opponent.misbehave();
    cpe->getGeneralImplementor()->setRequestExecutor(
        boost::make_shared<HttpRequestExecutor>(GetParam().limitMs));
    QElapsedTimer clock;
    clock.start();
    facade.getFirmwareVersion(error);
    EXPECT_LT(clock.elapsed(), GetParam().mostMs);
    EXPECT_THAT(GetParam().errors, testing::Contains(error));
    if (!GetParam().growsWithTime) {
        EXPECT_LE(memory.grownMegabytes(), 64);
    }
    EXPECT_EQ(opponent.requests(), 2);

    opponent.behave();
    cpe->getGeneralImplementor()->setRequestExecutor(usual);
    EXPECT_EQ(facade.getFirmwareVersion(error), text("1.2"));
    // Qt's thread goes on until the gateway has stopped and all is read that has come.
    opponent.release();
    EXPECT_TRUE(before.areBack(std::chrono::seconds(60)));
}

INSTANTIATE_TEST_SUITE_P(All, HeaderFloods, testing::ValuesIn(floods()),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvel::test
