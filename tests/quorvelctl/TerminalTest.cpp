#include "Terminal.h"
#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::ContainsRegex;
using testing::HasSubstr;

namespace
{

const std::chrono::seconds patience(60);

} // namespace

class QuorvelctlAtATerminal : public QuorvelctlTest
{
protected:
    Surroundings surroundings(const std::string& password) const
    {
        return {simulator.address(), password, {}, {}};
    }

    Terminal terminal;
    QProcess process;
};

TEST_F(QuorvelctlAtATerminal, AsksForThePasswordAndDoesNotShowIt)
{
    terminal.start(process, "session --password-stdin", surroundings(""));
    EXPECT_EQ(terminal.readUntil("login password: ", patience), "login password: ");
    terminal.type("admin\n");
    ASSERT_TRUE(process.waitForFinished(100000));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput().toStdString(), "Session: ********\nValid:   yes\n");
    terminal.type("again\n");
    // What is typed afterwards is shown again.
    EXPECT_EQ(terminal.readUntil("again\r\n", patience), "login password: \r\nagain\r\n");
}

TEST_F(QuorvelctlAtATerminal, ShowsABarWhileTheGatewayIsAway)
{
    simulator.setRebootTime(std::chrono::milliseconds(1000));
    simulator.setStatus("webui-0", "reboot_duration", "20000");
    terminal.start(process, "reboot --wait", surroundings("admin"));
    terminal.readUntil("[y/N] ", patience);
    terminal.type("y\n");
    EXPECT_THAT(terminal.readUntil(" s of about 20 s ", patience),
                ContainsRegex("\r\\[[#.]{40}\\] [0-9]+ s of about 20 s "));
    ASSERT_TRUE(process.waitForFinished(100000));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput().toStdString(),
              "Takes about (ms): 20000\nAnswers again:    yes\n");
}

TEST_F(QuorvelctlAtATerminal, TellsHowFarCallsAreReadAndWipesItOut)
{
    terminal.start(process, "phone history --line 0 --csv", surroundings("admin"));
    const std::string reading = "\rReading the calls of line 0: page ";
    const std::string shown =
        reading + "1 of 3" + reading + "2 of 3" + reading + "3 of 3\r" + std::string(40, ' ');
    EXPECT_EQ(terminal.readUntil(shown + '\r', patience), shown + '\r');
    ASSERT_TRUE(process.waitForFinished(100000));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput().count('\n'), 46);
}

TEST_F(QuorvelctlAtATerminal, DrawsQrCodesBlackOnWhite)
{
    terminal.startAll(process, "wifi qr", surroundings("admin"));
    // The first line of the margin: 33 modules, and 4 on each side of them.
    const std::string line = "\33[38;5;16;48;5;231m" + std::string(41, ' ') + "\33[0m\r\n";
    EXPECT_THAT(terminal.readUntil(line, patience), HasSubstr("Network: quorvel-1903\r\n" + line));
    ASSERT_TRUE(process.waitForFinished(100000));
    EXPECT_EQ(process.exitCode(), 0);
}

TEST_F(QuorvelctlAtATerminal, DoesNotBelieveAnEndlessRestart)
{
    simulator.setRebootTime(std::chrono::hours(1));
    simulator.setStatus("webui-0", "reboot_duration", "2147483647");
    terminal.start(process, "reboot --yes --wait", surroundings("admin"));
    EXPECT_THAT(terminal.readUntil(" s of about 900 s ", patience),
                HasSubstr(" s of about 900 s "));
    process.kill();
    EXPECT_TRUE(process.waitForFinished(100000));
}

} // namespace quorvelctl::test
