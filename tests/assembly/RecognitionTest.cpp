#include "assembly/Recognition.h"
#include "protocol/AspCpeSessionStorage.h"
#include "support/Replies.h"
#include "support/Transcript.h"

namespace quorvel::test
{

TEST_F(Recognition, LogsItsStepsAndWhatItFound)
{
    gateway.logIn("SID=42").reply(managerList100({text("devmgr"), text("dsl")}));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(log.lines(),
              lines({"DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=42",
                     "DEBUG Recognizing CPE..."}) +
                  QStringList(text("DEBUG CPE recognition completed for ") + gateway.address()) +
                  lines({"DEBUG CPE Parameters: :AUTH_PARAM_LOGINRESULT->0\t"
                         "CPE_PARAM_ADSL_VERSION->1\tCPE_PARAM_GENERAL_SETTINGS_VERSION->1\t"
                         "CPE_PARAM_XML_VERSION->1.0.0\t"}));
}

TEST_F(Recognition, LeavesTheSessionOfItsLoginInTheStorage)
{
    gateway.logIn("SID=42").reply(managerList100({text("devmgr")}));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(AspCpeSessionStorage::getInstance()->getSession(gateway.address()), text("SID=42"));
}

TEST_F(Recognition, LogsInAlthoughASessionIsStored)
{
    AspCpeSessionStorage::getInstance()->setSession(gateway.address(), text("SID=old"));
    gateway.logIn("SID=42").reply(managerList100({text("devmgr")}));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(form(0), QByteArray("user=admin&password=secret"));
    EXPECT_EQ(gateway.request(1).header("Cookie"), QByteArray("SID=42"));
}

TEST_F(Recognition, AsksOnceOfAGatewayThatAnswersInTheOlderDialect)
{
    gateway.logIn().reply(managerList100({text("devmgr")}));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(transcript(gateway), text("POST /cgi-bin/login\n"
                                        "user=admin&password=secret\n"
                                        "\n"
                                        "POST /cgi-bin/webapp\n"
                                        "cookie SID=1\n"
                                        "version 1.0.0\n"
                                        "query \"devmgr-0\" \"mngr_list\" \"\"\n"));
}

TEST_F(Recognition, AsksAgainInTheNewerDialectOfAGatewayThatAnswersSo)
{
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(recognize());
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(commandLines(QString::fromUtf8(gateway.request(2).body)),
              text("version 1.0.1\nquery \"devmgr-0\" \"mngr_list\" \"\"\n"));
    EXPECT_EQ(entries(parameters),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_GENERAL_SETTINGS_VERSION=1",
                     "CPE_PARAM_XML_VERSION=1.0.1"}));
}

TEST_F(Recognition, TakesWhateverIsNotPlainlyTheOlderDialectForTheNewer)
{
    const QStringList firstReplies =
        lines({"<response/>", "<response version=\"\"/>", "<response version=\"1.0\"/>",
               "<response version=\"2.0.0\"/>", "<answer version=\"1.0.0\"/>",
               "<response version=\"1.0.0 \"><devmgr-0><a>dsl</a></devmgr-0></response>"});
    for (const QString& reply : firstReplies) {
        SCOPED_TRACE(reply.toStdString());
        parameters.clear();
        gateway.logIn().reply(reply).reply(managerList101({text("devmgr")}));
        EXPECT_TRUE(recognize());
        EXPECT_EQ(entries(parameters),
                  lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_GENERAL_SETTINGS_VERSION=1",
                         "CPE_PARAM_XML_VERSION=1.0.1"}));
    }
}

TEST_F(Recognition, LogsInAgainIfTheGatewayEndsTheSessionMeanwhile)
{
    gateway.logIn("SID=1")
        .reply(reply100({{"webapp", "error", "1"}}))
        .logIn("SID=2")
        .reply(managerList100({text("devmgr")}));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(gateway.request(3).header("Cookie"), QByteArray("SID=2"));
    EXPECT_EQ(entries(parameters),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_GENERAL_SETTINGS_VERSION=1",
                     "CPE_PARAM_XML_VERSION=1.0.0"}));
}

TEST_F(Recognition, FailsIfTheLoginIsRefused)
{
    gateway.refuseLogin();
    EXPECT_FALSE(recognize());
    EXPECT_EQ(entries(parameters), lines({"AUTH_PARAM_LOGINRESULT=1"}));
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "WARN Failed to log in."}));
}

TEST_F(Recognition, FailsIfTheLoginDoesNotReachTheGateway)
{
    gateway.sendRaw({});
    EXPECT_FALSE(recognize());
    EXPECT_EQ(entries(parameters), lines({"AUTH_PARAM_LOGINRESULT=3"}));
    EXPECT_EQ(log.lines(),
              lines({"DEBUG Logging in...", "WARN Log in request timed out or failed."}));
}

TEST_F(Recognition, FailsIfTheFirstListDoesNotArrive)
{
    gateway.logIn().sendRaw({});
    EXPECT_FALSE(recognize());
    EXPECT_EQ(entries(parameters), lines({"AUTH_PARAM_LOGINRESULT=0"}));
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=1",
                                  "DEBUG Recognizing CPE...",
                                  "ERROR Recognition failed. Unable to get manager list!"}));
}

TEST_F(Recognition, FailsRatherThanTryingTheNewerDialectIfTheFirstListIsNoXml)
{
    gateway.logIn().reply(text("<html><p>Welcome</html>"));
    EXPECT_FALSE(recognize());
    EXPECT_EQ(entries(parameters), lines({"AUTH_PARAM_LOGINRESULT=0"}));
    EXPECT_EQ(log.lines().last(), text("ERROR Recognition failed. Unable to get manager list!"));
}

TEST_F(Recognition, FindsNoFunctionIfTheSecondListDoesNotArrive)
{
    gateway.logIn().reply(managerList101({text("devmgr"), text("wan")})).sendRaw({});
    EXPECT_TRUE(recognize());
    EXPECT_EQ(entries(parameters),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_XML_VERSION=1.0.1"}));
    EXPECT_EQ(log.lines().mid(2),
              lines({"DEBUG Recognizing CPE..."}) +
                  QStringList(text("DEBUG CPE recognition completed for ") + gateway.address()) +
                  lines({"DEBUG CPE Parameters: :AUTH_PARAM_LOGINRESULT->0\t"
                         "CPE_PARAM_XML_VERSION->1.0.1\t"}));
}

TEST_F(Recognition, FindsNoFunctionIfTheSecondListIsNoXml)
{
    gateway.logIn().reply(managerList101({text("devmgr")})).reply(text("devmgr"));
    EXPECT_TRUE(recognize());
    EXPECT_EQ(entries(parameters),
              lines({"AUTH_PARAM_LOGINRESULT=0", "CPE_PARAM_XML_VERSION=1.0.1"}));
}

} // namespace quorvel::test
