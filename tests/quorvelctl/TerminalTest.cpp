#include "QuorvelctlRun.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <unistd.h>

namespace quorvelctl::test
{

using testing::ContainsRegex;
using testing::HasSubstr;

namespace
{

/// A terminal as a program sees it, with us at its keyboard and screen.
class Terminal
{
public:
    Terminal() : keyboard(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (keyboard < 0 || grantpt(keyboard) != 0 || unlockpt(keyboard) != 0) {
            ADD_FAILURE() << "no terminal to be had";
            return;
        }
        name = QString::fromLocal8Bit(ptsname(keyboard));
        // Kept open, so that the screen stays readable when the program has ended.
        device = open(ptsname(keyboard), O_RDWR | O_NOCTTY | O_CLOEXEC);
    }
    ~Terminal()
    {
        close(device);
        close(keyboard);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Starts quorvelctl with this terminal; its results go to a pipe.
    void start(QProcess& process, const std::string& arguments, const Surroundings& surroundings)
    {
        process.setStandardInputFile(name);
        process.setStandardErrorFile(name);
        test::start(process, arguments, surroundings);
    }

    /// The same with the results on its screen.
    void startAll(QProcess& process, const std::string& arguments, const Surroundings& surroundings)
    {
        process.setStandardOutputFile(name);
        start(process, arguments, surroundings);
    }

    void type(const std::string& text)
    {
        EXPECT_EQ(write(keyboard, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

    /// What the screen shows, read until it shows `text` or nothing more for `patience`.
    std::string readUntil(const std::string& text, std::chrono::seconds patience)
    {
        pollfd screen{keyboard, POLLIN, 0};
        char bytes[4096];
        while (shown.find(text) == std::string::npos &&
               poll(&screen, 1, static_cast<int>(patience.count() * 1000)) > 0) {
            const ssize_t number = read(keyboard, bytes, sizeof bytes);
            if (number <= 0)
                break;
            shown.append(bytes, static_cast<std::size_t>(number));
        }
        return shown;
    }

private:
    int keyboard;
    int device = -1;
    QString name;
    std::string shown;
};

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
