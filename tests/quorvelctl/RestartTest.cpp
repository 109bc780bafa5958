#include "Failure.h"
#include "QuorvelctlRun.h"
#include "Waiting.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <chrono>

namespace quorvelctl::test
{

class QuorvelctlRestart : public QuorvelctlTest
{
protected:
    QuorvelctlRestart() { simulator.setRebootTime(std::chrono::milliseconds(100)); }
};

TEST_F(QuorvelctlRestart, AsksAndSendsNothingWhenItIsDeclined)
{
    const Outcome result = run("reboot", "n\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "Restart the gateway at " + simulator.address() +
                                 "? [y/N] quorvelctl: not confirmed, nothing was sent\n");
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlRestart, TakesTheEndOfInputForANo)
{
    EXPECT_EQ(run("factory-reset").status, 2);
}

TEST_F(QuorvelctlRestart, GoesOnAfterAYes)
{
    const Outcome result = run("reboot", "y\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Takes about (ms): 90000\n");
    EXPECT_FALSE(simulator.sessionNumber());
}

TEST_F(QuorvelctlRestart, ReturnsWhenTheGatewayAnswersAgain)
{
    // Long enough to be seen away even on a busy machine.
    simulator.setRebootTime(std::chrono::milliseconds(3000));
    const Outcome result = run("reboot --yes --wait --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n    \"back\": true,\n    \"durationMs\": 90000\n}\n");
    EXPECT_TRUE(simulator.isReachable());
}

TEST_F(QuorvelctlRestart, AResetLosesWhatWasSaved)
{
    ASSERT_EQ(run("warranty set --name Ada").status, 0);
    ASSERT_EQ(simulator.storedValue("warranty-0", "name"), "Ada");
    simulator.setStatus("webui-0", "reboot_duration", "500");
    const Outcome result = run("factory-reset --yes --wait");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Takes about (ms): 500\nAnswers again:    yes\n");
    EXPECT_EQ(simulator.storedValue("warranty-0", "name"), "");
}

TEST_F(QuorvelctlRestart, BelievesTheTimeItWasToldOfAGatewayThatIsNeverSeenAway)
{
    simulator.setRebootTime(std::chrono::milliseconds(0));
    simulator.setStatus("webui-0", "reboot_duration", "700");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(run("reboot --yes --wait").status, 0);
    EXPECT_GE(clock.elapsed(), 700);
}

TEST_F(QuorvelctlRestart, TakesTheSilenceOfARestartingGatewayForSuccess)
{
    spoil("hang key=reboot");
    const Outcome result = run("reboot --yes --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n    \"durationMs\": 90000\n}\n");
}

TEST_F(QuorvelctlRestart, GoesOnWithoutATimeFromTheGateway)
{
    simulator.setStatus("webui-0", "reboot_duration", "soon");
    const Outcome result = run("reboot --yes");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Takes about (ms): 60003\n");
}

TEST_F(QuorvelctlRestart, ReadsTheLoginPasswordBeforeTheAnswer)
{
    const Surroundings surroundings{simulator.address(), "", "admin\ny\n", {}};
    const Outcome result = runQuorvelctl("reboot --password-stdin", surroundings);
    EXPECT_EQ(result.status, 0) << result.errors;
}

TEST_F(QuorvelctlRestart, GivesUpOnAGatewayThatStaysAway)
{
    int argumentNumber = 0;
    QCoreApplication application(argumentNumber, nullptr);
    simulator.stop();
    try {
        waitUntilBack(QString::fromStdString(simulator.address()), 100, 500);
        ADD_FAILURE() << "it came back";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status, 4);
        EXPECT_EQ(failure.message.section(QLatin1Char(' '), 1, 3).toStdString(),
                  "isn't back after");
    }
}

} // namespace quorvelctl::test
