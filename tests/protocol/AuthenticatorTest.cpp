#include "protocol/AspCpeAuthenticatorV1.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/Golden.h"
#include "support/LogCapture.h"
#include "support/ScriptedGateway.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

using testing::_;
using testing::Return;

class AuthenticatorTest : public testing::Test
{
protected:
    AuthenticatorTest()
    {
        authenticator.setAuthenticationInfo({text("admin"), text("secret"), text("192.0.2.1")});
        storage->setSession(text("192.0.2.1"), text("SID=old"));
    }

    QString session() const { return storage->getSession(text("192.0.2.1")); }

    /// Logs in over a transport that answers with one "Set-Cookie", or other, header.
    int loginWithHeader(const char* name, const char* value)
    {
        EXPECT_CALL(*transport, execute(_, _))
            .WillOnce(replying(
                {{text(name), text(value)}, {text("REQUEST_EXEC_PARAM_RESULT"), text("<html/>")}}));
        return authenticator.login(transport);
    }

    int loginWithOutcome(int outcome)
    {
        EXPECT_CALL(*transport, execute(_, _)).WillOnce(Return(outcome));
        return authenticator.login(transport);
    }

    LogCapture log;
    const boost::shared_ptr<AspCpeSessionStorage> storage = AspCpeSessionStorage::getInstance();
    const boost::shared_ptr<MockExecutor> transport = boost::make_shared<MockExecutor>();
    AspCpeAuthenticatorV1 authenticator;
};

} // namespace

TEST_F(AuthenticatorTest, AsksTheTransportToPostTheForm)
{
    ParamMap request;
    EXPECT_CALL(*transport, execute(_, testing::IsEmpty()))
        .WillOnce(testing::DoAll(testing::SaveArg<0>(&request), Return(1)));
    authenticator.login(transport);
    EXPECT_EQ(entries(request),
              lines({"HTTP_PARAM_DATA_TO_SEND=user=admin&password=secret",
                     "HTTP_PARAM_METHOD=HTTP_PARAM_METHOD_POST", "HTTP_PARAM_PATH=/cgi-bin/login",
                     "HTTP_PARAM_URL=192.0.2.1"}));
}

TEST_F(AuthenticatorTest, StoresTheCookieAsSession)
{
    EXPECT_EQ(loginWithHeader("Set-Cookie", "SID=1234"), 0);
    EXPECT_EQ(session(), text("SID=1234"));
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=1234"}));
}

TEST_F(AuthenticatorTest, TrimsTheCookie)
{
    EXPECT_EQ(loginWithHeader("Set-Cookie", " \tSID=1234  "), 0);
    EXPECT_EQ(session(), text("SID=1234"));
}

TEST_F(AuthenticatorTest, StoresAnEmptySessionForACookieOfBlanks)
{
    EXPECT_EQ(loginWithHeader("Set-Cookie", "   "), 0);
    EXPECT_EQ(session(), QString());
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "DEBUG Logged in. / SESSION: "}));
}

TEST_F(AuthenticatorTest, IsRefusedWithoutACookieAndKeepsTheSession)
{
    EXPECT_EQ(loginWithHeader("Content-Type", "text/html"), 1);
    EXPECT_EQ(session(), text("SID=old"));
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "WARN Failed to log in."}));
}

TEST_F(AuthenticatorTest, DoesNotKnowACookieHeaderOfAnotherSpelling)
{
    EXPECT_EQ(loginWithHeader("set-cookie", "SID=1234"), 1);
    EXPECT_EQ(session(), text("SID=old"));
}

TEST_F(AuthenticatorTest, TellsATimeOutAndKeepsTheSession)
{
    EXPECT_EQ(loginWithOutcome(2), 2);
    EXPECT_EQ(session(), text("SID=old"));
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "WARN Log in request timed out."}));
}

TEST_F(AuthenticatorTest, TellsAnyOtherFailureAndKeepsTheSession)
{
    for (const int outcome : {1, 3, 4, 5, -1, 99}) {
        log.clear();
        EXPECT_EQ(loginWithOutcome(outcome), 3) << outcome;
        EXPECT_EQ(session(), text("SID=old"));
        EXPECT_EQ(log.lines(),
                  lines({"DEBUG Logging in...", "WARN Log in request timed out or failed."}));
    }
}

TEST_F(AuthenticatorTest, StoresTheSessionUnderTheAddressWithoutItsScheme)
{
    authenticator.setCpeAddress(text("http://192.0.2.1"));
    EXPECT_EQ(loginWithHeader("Set-Cookie", "SID=2"), 0);
    EXPECT_EQ(session(), text("SID=2"));
}

TEST_F(AuthenticatorTest, LogsOutWithoutARequest)
{
    EXPECT_CALL(*transport, execute(_, _)).Times(0);
    EXPECT_TRUE(authenticator.logout(transport));
    EXPECT_EQ(session(), text("SID=old"));
}

TEST_F(AuthenticatorTest, HandsOutWhatItWasGiven)
{
    EXPECT_EQ(authenticator.getUser(), text("admin"));
    EXPECT_EQ(authenticator.getPassword(), text("secret"));
    EXPECT_EQ(authenticator.getCpeAddress(), text("192.0.2.1"));
    authenticator.setUser(text("u"));
    authenticator.setPassword(text("p"));
    authenticator.setCpeAddress(text("a"));
    EXPECT_EQ(authenticator.getUser(), text("u"));
    EXPECT_EQ(authenticator.getPassword(), text("p"));
    EXPECT_EQ(authenticator.getCpeAddress(), text("a"));
    const AspCpeAuthenticatorV1 empty;
    EXPECT_EQ(empty.getUser() + empty.getPassword() + empty.getCpeAddress(), QString());
}

namespace
{

/// Logs in to a gateway on real TCP.
class LoginOnTheWire : public testing::Test
{
protected:
    int login(const char* user, const char* password)
    {
        authenticator.setAuthenticationInfo({text(user), text(password), gateway.address()});
        return authenticator.login(boost::make_shared<HttpRequestExecutor>());
    }

    QString session() const
    {
        return AspCpeSessionStorage::getInstance()->getSession(gateway.address());
    }

    ScriptedGateway& replyWithHeaders(const char* headers)
    {
        return gateway.sendRaw(httpReply("<html/>", headers));
    }

    LogCapture log;
    ScriptedGateway gateway;
    AspCpeAuthenticatorV1 authenticator;
};

} // namespace

TEST_F(LoginOnTheWire, SendsTheFormWithoutACookie)
{
    gateway.logIn("SID=77");
    EXPECT_EQ(login("admin", "secret"), 0);
    EXPECT_TRUE(matchesGolden(text("protocol/login"), rawText(gateway.request(0))));
    EXPECT_EQ(session(), text("SID=77"));
}

TEST_F(LoginOnTheWire, EscapesAllButUnreservedCharacters)
{
    gateway.logIn();
    login("-._~aZ09", "a&b=c d+e%f/\xc3\xa4");
    EXPECT_EQ(gateway.request(0).body,
              QByteArray("user=-._~aZ09&password=a%26b%3Dc%20d%2Be%25f%2F%C3%A4"));
}

TEST_F(LoginOnTheWire, SendsEmptyCredentials)
{
    gateway.logIn();
    login("", "");
    EXPECT_EQ(gateway.request(0).body, QByteArray("user=&password="));
}

TEST_F(LoginOnTheWire, LooksAtNothingButTheCookieHeader)
{
    gateway.sendRaw("HTTP/1.1 302 Found\r\nLocation: /denied\r\nSet-Cookie: SID=5\r\n"
                    "Content-Length: 6\r\n\r\ndenied");
    EXPECT_EQ(login("a", "b"), 0);
    EXPECT_EQ(session(), text("SID=5"));
}

TEST_F(LoginOnTheWire, IsRefusedByAReplyWithoutACookie)
{
    gateway.refuseLogin();
    EXPECT_EQ(login("a", "b"), 1);
    EXPECT_EQ(session(), QString());
}

TEST_F(LoginOnTheWire, FindsNoHeaderInLowerCase)
{
    replyWithHeaders("set-cookie: SID=5; path=/\r\n");
    EXPECT_EQ(login("a", "b"), 1);
}

TEST_F(LoginOnTheWire, StoresAnEmptySessionForACookieHeaderOfBlanks)
{
    replyWithHeaders("Set-Cookie:    \r\n");
    EXPECT_EQ(login("a", "b"), 0);
    EXPECT_EQ(session(), QString());
}

TEST_F(LoginOnTheWire, TakesTheLastOfSeveralCookies)
{
    replyWithHeaders("Set-Cookie: SID=1; path=/\r\nSet-Cookie: SID=2; path=/\r\n");
    EXPECT_EQ(login("a", "b"), 0);
    EXPECT_EQ(session(), text("SID=2"));
}

TEST_F(LoginOnTheWire, FailsAtAnErrorStatusEvenWithACookie)
{
    gateway.sendRaw("HTTP/1.1 403 Forbidden\r\nSet-Cookie: SID=5\r\nContent-Length: 0\r\n\r\n");
    EXPECT_EQ(login("a", "b"), 3);
    EXPECT_EQ(session(), QString());
}

} // namespace quorvel::test
