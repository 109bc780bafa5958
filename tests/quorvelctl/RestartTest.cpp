#include "QuorvelctlRun.h"

#include <chrono>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

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
    for (const auto& exchange : simulator.exchanges())
        EXPECT_THAT(exchange.requestBody, testing::Not(HasSubstr("reboot")));
}

TEST_F(QuorvelctlRestart, TakesTheEndOfInputForANo)
{
    EXPECT_EQ(run("factory-reset").status, 2);
}

TEST_F(QuorvelctlRestart, GoesOnAfterAYes)
{
    const Outcome result = run("reboot", "y\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "Takes about (ms): 90000\nAnswers again:    no\n");
}

TEST_F(QuorvelctlRestart, ReturnsWhenTheGatewayAnswersAgain)
{
    simulator.setRebootTime(std::chrono::milliseconds(1000));
    const Outcome result = run("reboot --yes --wait --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n    \"back\": true,\n    \"durationMs\": 90000\n}\n");
    EXPECT_TRUE(simulator.isReachable());
}

TEST_F(QuorvelctlRestart, AResetLosesWhatWasSaved)
{
    ASSERT_EQ(run("warranty set --name Ada").status, 0);
    ASSERT_EQ(simulator.storedValue("warranty-0", "name"), "Ada");
    EXPECT_EQ(run("factory-reset --yes --wait").status, 0);
    EXPECT_EQ(simulator.storedValue("warranty-0", "name"), "");
}

TEST_F(QuorvelctlRestart, TellsACommandThatDidNotArrive)
{
    simulator.setFault(*quorvel::simulator::Fault::fromText("close key=reboot effect=no"));
    const Outcome result = run("reboot --yes");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "quorvelctl: can't restart the gateway: the request failed on the way\n");
}

} // namespace quorvelctl::test
