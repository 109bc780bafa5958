#include "QuorvelctlRun.h"

#include <QTemporaryFile>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::Not;

class QuorvelctlSecrets : public QuorvelctlTest
{
protected:
    Outcome runWithoutPassword(const std::string& arguments, const std::string& input) const
    {
        return runQuorvelctl(arguments, {simulator.address(), "", input, {}});
    }
};

TEST_F(QuorvelctlSecrets, ComeFromAFile)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("admin\nanything\n");
    file.flush();
    const Outcome result =
        runWithoutPassword("session --password-file " + file.fileName().toStdString(), "");
    EXPECT_EQ(result.status, 0) << result.errors;
}

TEST_F(QuorvelctlSecrets, ComeFromStandardInputLineByLine)
{
    const Outcome result =
        runWithoutPassword("password check --password-stdin --candidate-stdin", "admin\nadmin\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "That is the administrator password.\n");
}

TEST_F(QuorvelctlSecrets, AreMissedWhenNoSourceIsGiven)
{
    const Outcome result = runWithoutPassword("info", "");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "quorvelctl: no login password: give --password-file, "
                             "--password-stdin or the environment variable QUORVELCTL_PASSWORD\n");
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlSecrets, AreToldApartFromAnInputThatEndsEarly)
{
    const Outcome result = runWithoutPassword("info --password-stdin", "");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "quorvelctl: standard input ends before the login password\n");
}

TEST_F(QuorvelctlSecrets, AreNotTakenFromElsewhereIfTheFileHasNoName)
{
    const Outcome result = run("info --password-file=");
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("password-file"));
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlSecrets, AWrongCandidateFails)
{
    const Outcome result = run("password check --candidate-stdin", "wrong\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "quorvelctl: that is not the administrator password\n");
}

TEST_F(QuorvelctlSecrets, ANewPasswordIsTheOneToLogInWith)
{
    const Outcome result = run("password set --new-password-stdin", "s3cret & more\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The administrator password is changed.\n");
    EXPECT_EQ(run("session").status, 3);
    const Surroundings changed{simulator.address(), "s3cret & more", {}, {}};
    EXPECT_EQ(runQuorvelctl("session", changed).status, 0);
}

TEST_F(QuorvelctlSecrets, AnEmptyNewPasswordIsRefusedAtOnce)
{
    const Outcome result = run("password set --new-password-stdin", "\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "quorvelctl: the new password is empty\n");
    EXPECT_EQ(simulator.requestCount(), 0u);
}

TEST_F(QuorvelctlSecrets, APasswordThatTheGatewayDoesNotTakeStaysTheOldOne)
{
    spoil("error:9 key=password");
    const Outcome result = run("password set --new-password-stdin --json", "s3cret\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(run("session").status, 0);
}

TEST_F(QuorvelctlSecrets, ComeFromTheEnvironment)
{
    const Surroundings surroundings{
        simulator.address(), "admin", {}, {{"QUORVELCTL_CANDIDATE", "admin"}}};
    const Outcome result = runQuorvelctl("password check --json", surroundings);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n    \"done\": \"That is the administrator password.\"\n}\n");
}

TEST_F(QuorvelctlSecrets, AreShownOnDemandOnly)
{
    EXPECT_THAT(run("session --json").output, HasSubstr("\"session\": \"********\""));
    EXPECT_THAT(run("session --json --show-secrets").output, HasSubstr("\"session\": \"SID="));
}

TEST_F(QuorvelctlSecrets, OfAccountsAreShownOnDemandOnly)
{
    const Outcome hidden = run("phone accounts --log-level debug");
    EXPECT_THAT(hidden.output, HasSubstr("SIP password:  ********\n"));
    EXPECT_THAT(hidden.output + hidden.errors, Not(HasSubstr("sip-secret")));
    EXPECT_THAT(run("phone accounts --show-secrets").output,
                HasSubstr("SIP password:  sip-secret-1\n"));
}

TEST_F(QuorvelctlSecrets, OfAnAccountComeFromStandardInputBehindTheLoginPassword)
{
    const Outcome result = runWithoutPassword("phone set 0 --sip-password-stdin --password-stdin",
                                              "admin\nnew-secret\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(
        simulator.storedValue("voice-0", "VoiceService.VoiceProfile.Line[0].SIP.AuthPassword"),
        "new-secret");
}

TEST_F(QuorvelctlSecrets, OfTheWarrantyRecordAreShownOnDemandOnly)
{
    simulator.setValue("warranty-0", "token", "T-1903");
    simulator.setValue("warranty-0", "usertoken", "U-1903");
    EXPECT_THAT(run("warranty show").output, HasSubstr("Token:      ********\n"
                                                       "User token: ********\n"));
    EXPECT_THAT(run("warranty show --json").output, HasSubstr("    \"token\": \"********\",\n"
                                                              "    \"usertoken\": \"********\"\n"));
    EXPECT_THAT(run("warranty show --show-secrets").output, HasSubstr("Token:      T-1903\n"
                                                                      "User token: U-1903\n"));
}

TEST_F(QuorvelctlSecrets, OfTheWarrantyRecordComeFromStandardInputOrTheEnvironment)
{
    const Surroundings surroundings{
        simulator.address(), "admin", "T-1\n", {{"QUORVELCTL_USERTOKEN", "U-1"}}};
    const Outcome result = runQuorvelctl("warranty set --token-stdin", surroundings);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(simulator.storedValue("warranty-0", "token"), "T-1");
    EXPECT_EQ(simulator.storedValue("warranty-0", "usertoken"), "U-1");
    EXPECT_EQ(run("warranty set --token T-2").status, 2);
}

TEST_F(QuorvelctlSecrets, AreHiddenInTheLogToo)
{
    const Outcome hidden = run("session --log-level debug");
    EXPECT_THAT(hidden.errors, HasSubstr("[96] Logged in. / SESSION: ********\n"));
    EXPECT_THAT(hidden.errors, Not(HasSubstr("SID=")));
    EXPECT_THAT(run("session --log-level debug --show-secrets").errors,
                HasSubstr("[96] Logged in. / SESSION: SID="));
}

} // namespace quorvelctl::test
