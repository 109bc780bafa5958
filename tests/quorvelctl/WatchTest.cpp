#include "QuorvelctlRun.h"
#include "Terminal.h"

#include <QRegularExpression>
#include <csignal>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

namespace
{

const std::chrono::seconds patience(60);

/// A line without the time, which is another one each time.
std::string withoutTime(const std::string& line)
{
    return QString::fromStdString(line)
        .replace(QRegularExpression(QStringLiteral("\"time\":\"\\d{4}-\\d\\d-\\d\\dT[0-9:]{8}Z\"")),
                 QStringLiteral("\"time\":\"...\""))
        .toStdString();
}

const std::string modern =
    R"({"connection":{"defaultWan":"wan-1","dslLink":true,"ethLink":true,"inUse":"wan-1",)"
    R"("internet":"connected"},"errors":[],"lines":[)"
    R"({"enabled":true,"kind":"line","line":"0","name":"line-a1903","number":"5550142","state":1},)"
    R"({"enabled":false,"kind":"line","line":"1","name":"line-b1903","number":"5550143","state":0},)"
    R"({"kind":"analogue port","line":"2"}],"radios":[{"band":"2400","radio":"wireless-0",)"
    R"("security":"wpa_both","ssid":"quorvel-1903","state":"unknown"}],"reachable":true,)"
    R"("time":"...","wans":[)"
    R"({"connectionType":"dsl","enabled":false,"isConnected":false,"linkType":"pppoe",)"
    R"("localIp":"","wan":"wan-0"},)"
    R"({"connectionType":"eth","enabled":true,"isConnected":true,"linkType":"dhcp",)"
    R"("localIp":"198.51.100.23","wan":"wan-1"},)"
    R"({"connectionType":"serial","enabled":false,"isConnected":false,"linkType":"3g",)"
    R"("localIp":"","wan":"wan-2"}]})"
    "\n";

} // namespace

class QuorvelctlWatch : public QuorvelctlTest
{
protected:
    ~QuorvelctlWatch() override
    {
        process.kill();
        process.waitForFinished(10000);
    }

    Surroundings surroundings() const { return {simulator.address(), "admin", {}, {}}; }

    void startWatching(const std::string& arguments) { start(process, arguments, surroundings()); }
    std::string nextLine()
    {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(100000)) {
                ADD_FAILURE() << "no line comes: " << process.readAllStandardError().toStdString();
                return std::string();
            }
        }
        return withoutTime(process.readLine().toStdString());
    }
    void expectCleanEnd(int signal)
    {
        ::kill(static_cast<pid_t>(process.processId()), signal);
        EXPECT_TRUE(process.waitForFinished(100000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
    }

    QProcess process;
};

TEST_F(QuorvelctlWatch, IsALineOfJsonForEachLook)
{
    const Outcome result = run("watch --count 1");
    EXPECT_EQ(withoutTime(result.output), modern);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(QuorvelctlWatch, ShowsWhatChanges)
{
    startWatching("watch --interval 1");
    EXPECT_THAT(nextLine(), HasSubstr(R"("ethLink":true)"));
    simulator.setStatus("eth-0", "linkstate", "0");
    std::string line = nextLine();
    // A look may have been under way.
    if (line.find(R"("ethLink":true)") != std::string::npos)
        line = nextLine();
    EXPECT_THAT(line, HasSubstr(R"("ethLink":false)"));
    expectCleanEnd(SIGTERM);
}

TEST_F(QuorvelctlWatch, GoesOnWhileTheGatewayIsAway)
{
    startWatching("watch --interval 1");
    EXPECT_EQ(nextLine(), modern);
    spoil("refuse");
    std::string line = nextLine();
    if (line == modern)
        line = nextLine();
    EXPECT_THAT(line, HasSubstr(R"("reachable":false)"));
    EXPECT_THAT(line, HasSubstr("the request failed on the way"));
    simulator.clearFaults();
    do
        line = nextLine();
    while (line.find(R"("reachable":false)") != std::string::npos);
    EXPECT_EQ(line, modern);
    expectCleanEnd(SIGINT);
}

TEST_F(QuorvelctlWatch, KeepsOneFailureFromHidingTheRest)
{
    spoil("error:9 key=status");
    const Outcome result = run("watch --count 1");
    EXPECT_THAT(
        result.output,
        HasSubstr(
            R"("errors":["can't read the accounts: the gateway tells of no lines"],"radios":[{)"));
    EXPECT_THAT(result.output, HasSubstr(R"("reachable":true)"));
    EXPECT_EQ(result.status, 0);
}

TEST_F(QuorvelctlWatch, EndsWhenTheLoginIsRefused)
{
    expectComplaint("watch --user eve", 3,
                    simulator.address() + " refused the login of user 'eve'");
}

TEST_F(QuorvelctlWatch, IsDrawnInPlaceOnATerminal)
{
    Terminal terminal;
    terminal.startAll(process, "watch --interval 1", surroundings());
    const std::string shown = terminal.readUntil("\33[J\33[H", patience);
    EXPECT_THAT(shown, HasSubstr("\33[2J\33[H" + simulator.address() + " at "));
    EXPECT_THAT(shown, HasSubstr(", every 1 s; Ctrl-C ends\33[K\r\n\33[K\r\n"
                                 "Internet:            connected\33[K\r\n"));
    expectCleanEnd(SIGINT);
}

} // namespace quorvelctl::test
