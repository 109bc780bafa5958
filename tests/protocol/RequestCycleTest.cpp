#include "protocol/RequestCycleFixture.h"

namespace quorvel::test
{

namespace
{

using testing::_;
using testing::DoAll;
using testing::InSequence;
using testing::Return;
using testing::SaveArg;

const char expired[] = "<response><webapp><error>1</error></webapp></response>";

} // namespace

TEST_F(RequestCycleTest, AsksTheTransportToPostTheRequestWithTheSession)
{
    ParamMap params;
    expectRequest().WillOnce(DoAll(SaveArg<0>(&params), replying(body(goodReply))));
    EXPECT_TRUE(execute());
    EXPECT_EQ(entries(params),
              lines({"HTTP_PARAM_DATA_TO_SEND=<xmlrequest/>",
                     "HTTP_PARAM_METHOD=HTTP_PARAM_METHOD_POST", "HTTP_PARAM_PATH=/cgi-bin/webapp",
                     "HTTP_PARAM_SESSION=SID=1", "HTTP_PARAM_URL=192.0.2.1"}));
}

TEST_F(RequestCycleTest, GivesTheReplyAloneWhenTheSessionIsGood)
{
    expectRequest().WillOnce(replying(body(goodReply)));
    EXPECT_TRUE(execute());
    EXPECT_EQ(entries(result), lines({"a.k=v", "response=1.0.1"}));
}

TEST_F(RequestCycleTest, KeepsWhatTheCallersMapHolds)
{
    result.insert(text("mine"), text("1"));
    expectRequest().WillOnce(replying(body(goodReply)));
    EXPECT_TRUE(execute());
    EXPECT_EQ(entries(result), lines({"a.k=v", "mine=1", "response=1.0.1"}));
}

TEST_F(RequestCycleTest, LogsInFirstWithoutASession)
{
    storeSession("");
    ParamMap params;
    const InSequence inOrder;
    expectLogin("SID=2");
    expectRequest().WillOnce(DoAll(SaveArg<0>(&params), replying(body(goodReply))));
    EXPECT_TRUE(execute());
    EXPECT_EQ(params.value(text("HTTP_PARAM_SESSION")), text("SID=2"));
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=0", "a.k=v", "response=1.0.1"}));
}

TEST_F(RequestCycleTest, SendsWithoutASessionWhenTheLoginLeftNone)
{
    storeSession("");
    ParamMap params;
    expectLogin("");
    expectRequest().WillOnce(DoAll(SaveArg<0>(&params), replying(body(goodReply))));
    EXPECT_TRUE(execute());
    EXPECT_EQ(params.value(text("HTTP_PARAM_SESSION")), QString());
}

TEST_F(RequestCycleTest, SendsNothingAfterAFailedLoginAndNamesNoError)
{
    storeSession("");
    for (const int outcome : {1, 2, 3}) {
        result.clear();
        EXPECT_CALL(*transport, execute(_, _)).Times(0);
        EXPECT_CALL(*authenticator, login(_)).WillOnce(Return(outcome));
        EXPECT_FALSE(execute());
        EXPECT_EQ(entries(result), QStringList(text("AUTH_PARAM_LOGINRESULT=%1").arg(outcome)));
        EXPECT_CALL(*authenticator, login(_)).WillOnce(Return(outcome));
        EXPECT_FALSE(execute(true));
    }
}

TEST_F(RequestCycleTest, LogsInAgainWhenTheSessionHasExpiredAndLeavesNoTraceOfIt)
{
    result.insert(text("mine"), text("1"));
    ParamMap repeated;
    const InSequence inOrder;
    expectRequest().WillOnce(
        replying(body("<response version=\"old\"><webapp><error>1</error></webapp>"
                      "<gone><key>k</key><value>v</value></gone></response>")));
    expectLogin("SID=2");
    expectRequest().WillOnce(DoAll(SaveArg<0>(&repeated), replying(body(goodReply))));
    EXPECT_TRUE(execute());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=0", "a.k=v", "response=1.0.1"}));
    EXPECT_EQ(entries(repeated),
              lines({"HTTP_PARAM_DATA_TO_SEND=<xmlrequest/>",
                     "HTTP_PARAM_METHOD=HTTP_PARAM_METHOD_POST", "HTTP_PARAM_PATH=/cgi-bin/webapp",
                     "HTTP_PARAM_SESSION=SID=2", "HTTP_PARAM_URL=192.0.2.1"}));
}

TEST_F(RequestCycleTest, LogsInAgainAlsoWhereNoReplyIsExpected)
{
    const InSequence inOrder;
    expectRequest().WillOnce(replying(body(expired)));
    expectLogin("SID=2");
    expectRequest().WillOnce(Return(2));
    EXPECT_TRUE(execute(true));
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=0"}));
}

TEST_F(RequestCycleTest, TellsTheFailedLoginAfterAnExpiredSession)
{
    const InSequence inOrder;
    expectRequest().WillOnce(replying(body(expired)));
    EXPECT_CALL(*authenticator, login(_)).WillOnce(Return(1));
    EXPECT_FALSE(execute());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=1"}));
    EXPECT_EQ(AspCpeSessionStorage::getInstance()->getSession(text("192.0.2.1")), QString());
}

TEST_F(RequestCycleTest, TakesOnlyTheDigitOneAsAnExpiredSession)
{
    for (const char* spelling : {"01", " 1", "1 ", "+1", "10", "", "one"}) {
        const QString reply =
            text("<response><webapp><error>%1</error></webapp></response>").arg(text(spelling));
        result.clear();
        expectRequest().WillOnce(replying({{text("REQUEST_EXEC_PARAM_RESULT"), reply}}));
        EXPECT_TRUE(execute()) << spelling;
        EXPECT_EQ(result.value(text("webapp.error")), text(spelling));
    }
}

TEST_F(RequestCycleTest, LeavesAnyOtherErrorOfTheGatewayToTheReader)
{
    for (const char* error : {"0", "2", "19", "25", "-1", "4294967297"}) {
        const QString reply =
            text("<response><webapp><error>%1</error></webapp></response>").arg(text(error));
        result.clear();
        expectRequest().WillOnce(replying({{text("REQUEST_EXEC_PARAM_RESULT"), reply}}));
        EXPECT_TRUE(execute()) << error;
        EXPECT_EQ(entries(result),
                  QStringList({text("response="), text("webapp.error=") + text(error)}));
    }
}

TEST_F(RequestCycleTest, CountsAnUnreadableReplyAsAFailedLogin)
{
    for (const char* reply : {"", "<html><br></html>", "Not found", "<response>"}) {
        result.clear();
        expectRequest().WillOnce(replying(body(reply)));
        EXPECT_FALSE(execute()) << reply;
        EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=1"}));
    }
}

TEST_F(RequestCycleTest, ForgivesAnUnreadableReplyWhereNoneIsExpected)
{
    for (const char* reply : {"", "<html><br></html>"}) {
        expectRequest().WillOnce(replying(body(reply)));
        EXPECT_TRUE(execute(true)) << reply;
        EXPECT_EQ(entries(result), QStringList());
    }
}

TEST_F(RequestCycleTest, TellsTheFailuresOfTheTransport)
{
    const struct {
        int outcome;
        QStringList expected;
    } failures[] = {{1, lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"})},
                    {2, lines({"AUTH_PARAM_LOGINRESULT=2", "webapp.error=28"})},
                    {3, lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"})},
                    {4, lines({"AUTH_PARAM_LOGINRESULT=2", "webapp.error=28"})},
                    {5, lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"})}};
    for (const auto& failure : failures) {
        for (const bool expectNoReply : {false, true}) {
            result.clear();
            expectRequest().WillOnce(Return(failure.outcome));
            const bool forgiven = expectNoReply && failure.outcome == 2;
            EXPECT_EQ(execute(expectNoReply), forgiven) << failure.outcome;
            EXPECT_EQ(entries(result), forgiven ? QStringList() : failure.expected);
        }
    }
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(RequestCycleTest, TellsATransportFailureBehindASuccessfulLogin)
{
    storeSession("");
    expectLogin("SID=2");
    expectRequest().WillOnce(Return(1));
    EXPECT_FALSE(execute());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"}));
}

TEST_F(RequestCycleTest, SendsNothingMoreWhenItIsAbortedBetweenTwoExchanges)
{
    storeSession("");
    EXPECT_CALL(*authenticator, login(_)).WillOnce([this](auto) {
        implementor.abortRequests();
        storeSession("SID=2");
        return 0;
    });
    EXPECT_CALL(*transport, abortPendingRequests());
    EXPECT_CALL(*transport, execute(_, _)).Times(0);
    EXPECT_FALSE(execute());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"}));
}

TEST_F(RequestCycleTest, LogsInNoMoreWhenItIsAbortedBehindAnExpiredSession)
{
    EXPECT_CALL(*transport, abortPendingRequests());
    expectRequest().WillOnce([this](const ParamMap&, ParamMap& reply) {
        implementor.abortRequests();
        reply = body(expired);
        return 0;
    });
    EXPECT_CALL(*authenticator, login(_)).Times(0);
    EXPECT_FALSE(execute());
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"}));
}

TEST_F(RequestCycleTest, IsNotTouchedByAnAbortBeforeIt)
{
    EXPECT_CALL(*transport, abortPendingRequests()).Times(2);
    implementor.abortRequests();
    implementor.abortRequests();
    expectRequest().WillOnce(replying(body(goodReply)));
    EXPECT_TRUE(execute());
}

TEST_F(RequestCycleTest, TellsTheAddressAsTheHostGaveIt)
{
    authenticator->setCpeAddress(text("http://192.0.2.1"));
    EXPECT_EQ(implementor.getCpeAddress(), text("http://192.0.2.1"));
    expectRequest().WillOnce(replying(body(goodReply)));
    EXPECT_TRUE(execute());
}

namespace
{

/// Answers "session expired" so many times.
class ExpiringTransport : public RequestExecutor
{
public:
    int execute(const ParamMap&, ParamMap& reply) override
    {
        reply.insert(text("REQUEST_EXEC_PARAM_RESULT"), text(expired));
        return 0;
    }
    void abortPendingRequests() override {}
};

} // namespace

TEST_F(RequestCycleTest, GoesOnLoggingInUntilALoginFails)
{
    int logins = 0;
    EXPECT_CALL(*authenticator, login(_)).WillRepeatedly([&](auto) {
        storeSession("SID=new");
        return ++logins < 20000 ? 0 : 3;
    });
    implementor.setRequestExecutor(boost::make_shared<ExpiringTransport>());
    EXPECT_FALSE(execute());
    EXPECT_EQ(logins, 20000);
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3"}));
}

} // namespace quorvel::test
