#include "protocol/HttpRequestExecutor.h"

#include "protocol/Exchanges.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

class HttpRequestExecutorTest : public testing::Test
{
protected:
    /// Sends one request whose reply is 200 with `body`.
    int execute(const ParamMap& params, const QByteArray& extraHeaders = {},
                const QByteArray& body = "<r/>")
    {
        gateway.sendRaw(httpReply(body, extraHeaders));
        return executor.execute(params, result);
    }

    ParamMap request() const { return requestTo(gateway.address()); }

    ParamMap requestWith(const char* key, const QString& value) const
    {
        ParamMap params = request();
        params.insert(text(key), value);
        return params;
    }

    ParamMap requestWithout(std::initializer_list<const char*> keys) const
    {
        ParamMap params = request();
        for (const char* key : keys)
            params.remove(text(key));
        return params;
    }

    QByteArray sentHeader(const QByteArray& name) const { return gateway.request(0).header(name); }

    LogCapture log;
    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    ParamMap result{{text("old"), text("1")}};
};

} // namespace

TEST_F(HttpRequestExecutorTest, PostsTheBodyToTheAddressAndPath)
{
    EXPECT_EQ(execute(requestTo(gateway.address(), text("a=1&\xc3\xa4"))), 0);
    EXPECT_EQ(gateway.request(0).method, QByteArray("POST"));
    EXPECT_EQ(gateway.request(0).path, QByteArray("/cgi-bin/webapp"));
    EXPECT_EQ(gateway.request(0).body, QByteArray("a=1&\xc3\xa4"));
    EXPECT_EQ(sentHeader("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
    EXPECT_EQ(sentHeader("Content-Length"), QByteArray("6"));
    EXPECT_EQ(sentHeader("Accept-Encoding"), QByteArray("identity"));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(HttpRequestExecutorTest, NamesTheHostWithoutThePort)
{
    EXPECT_EQ(execute(request()), 0);
    EXPECT_EQ(sentHeader("Host"), QByteArray("127.0.0.1"));
}

TEST_F(HttpRequestExecutorTest, TakesAnAddressWithItsScheme)
{
    EXPECT_EQ(execute(requestTo(text("http://") + gateway.address())), 0);
    EXPECT_EQ(gateway.request(0).path, QByteArray("/cgi-bin/webapp"));
}

TEST_F(HttpRequestExecutorTest, PutsItsSchemeBeforeAnyOther)
{
    HttpRequestExecutor impatient(3000);
    for (const char* scheme : {"https://", "HTTP://", "ftp://"})
        EXPECT_NE(impatient.execute(requestTo(text(scheme) + gateway.address()), result), 0);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(HttpRequestExecutorTest, AppendsThePathAsItStands)
{
    EXPECT_EQ(execute(requestWith("HTTP_PARAM_PATH", text("/a//b/?c=d"))), 0);
    EXPECT_EQ(gateway.request(0).path, QByteArray("/a//b/?c=d"));
}

TEST_F(HttpRequestExecutorTest, SendsTheSessionAsCookie)
{
    EXPECT_EQ(execute(requestWith("HTTP_PARAM_SESSION", text("SID=\xc3\xa4"))), 0);
    EXPECT_EQ(sentHeader("Cookie"), QByteArray("SID=\xc3\xa4"));
}

TEST_F(HttpRequestExecutorTest, SendsNoCookieWithoutASession)
{
    EXPECT_EQ(execute(request()), 0);
    EXPECT_EQ(execute(requestWith("HTTP_PARAM_SESSION", QString())), 0);
    EXPECT_FALSE(gateway.request(0).raw.contains("Cookie"));
    EXPECT_FALSE(gateway.request(1).raw.contains("Cookie"));
}

TEST_F(HttpRequestExecutorTest, SendsNoLineFeedInACookie)
{
    EXPECT_EQ(execute(requestWith("HTTP_PARAM_SESSION", text("A=1\r\nX-Evil: 1\nSID=2\r"))), 0);
    EXPECT_EQ(sentHeader("Cookie"), QByteArray("SID=2"));
    EXPECT_EQ(sentHeader("X-Evil"), QByteArray());
}

TEST_F(HttpRequestExecutorTest, SendsAnEmptyBody)
{
    EXPECT_EQ(execute(requestTo(gateway.address(), QString())), 0);
    EXPECT_EQ(sentHeader("Content-Length"), QByteArray("0"));
    EXPECT_EQ(gateway.request(0).body, QByteArray());
}

TEST_F(HttpRequestExecutorTest, SendsALargeBodyWhole)
{
    const QString large(3000000, QLatin1Char('x'));
    EXPECT_EQ(execute(requestTo(gateway.address(), large)), 0);
    EXPECT_EQ(gateway.request(0).body, large.toUtf8());
}

TEST_F(HttpRequestExecutorTest, NamesTheFirstParameterThatIsMissing)
{
    const struct {
        std::initializer_list<const char*> missing;
        const char* line;
    } cases[] = {
        {{"HTTP_PARAM_URL", "HTTP_PARAM_METHOD", "HTTP_PARAM_DATA_TO_SEND", "HTTP_PARAM_PATH"},
         "HttpRequestExecutor:You have to declare parameter HTTP_PARAM_URL"},
        {{"HTTP_PARAM_METHOD", "HTTP_PARAM_DATA_TO_SEND", "HTTP_PARAM_PATH"},
         "HttpRequestExecutor:You have to declare parameter HTTP_PARAM_METHOD"},
        {{"HTTP_PARAM_DATA_TO_SEND", "HTTP_PARAM_PATH"},
         "HttpRequestExecutor: You have to declare parameter HTTP_PARAM_DATA_TO_SEND"},
        {{"HTTP_PARAM_PATH"},
         "HttpRequestExecutor: You have to declare parameter HTTP_PARAM_PATH"}};
    for (const auto& one : cases) {
        log.clear();
        EXPECT_EQ(executor.execute(requestWithout(one.missing), result), 3);
        EXPECT_EQ(log.lines(), QStringList(text("HTTP_REQUEST_EXECUTOR: ERROR ") + text(one.line)));
    }
    EXPECT_EQ(entries(result), lines({"old=1"}));
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(HttpRequestExecutorTest, KnowsNoMethodButPost)
{
    EXPECT_EQ(executor.execute(requestWith("HTTP_PARAM_METHOD", text("GET")), result), 3);
    EXPECT_EQ(log.lines(), lines({"HTTP_REQUEST_EXECUTOR: ERROR "
                                  "HttpRequestExecutor:Invalid  parameter GET"}));
    EXPECT_EQ(entries(result), lines({"old=1"}));
}

TEST_F(HttpRequestExecutorTest, LooksForAllParametersBeforeTheMethod)
{
    ParamMap params = requestWith("HTTP_PARAM_METHOD", text("GET"));
    params.remove(text("HTTP_PARAM_PATH"));
    EXPECT_EQ(executor.execute(params, result), 3);
    EXPECT_EQ(log.lines(),
              lines({"HTTP_REQUEST_EXECUTOR: ERROR "
                     "HttpRequestExecutor: You have to declare parameter HTTP_PARAM_PATH"}));
}

TEST_F(HttpRequestExecutorTest, WorksAgainAfterInvalidParameters)
{
    EXPECT_EQ(executor.execute(ParamMap(), result), 3);
    EXPECT_EQ(execute(request()), 0);
}

TEST_F(HttpRequestExecutorTest, GivesHeadersAsWrittenAndTheBodyInPlaceOfTheOldMap)
{
    EXPECT_EQ(execute(request(), "x-Lower: a b \r\nX-UPPER:c\r\nX-Empty:\r\n", "<r>\xc3\xa4</r>"),
              0);
    EXPECT_EQ(entries(result), lines({"Content-Length=9", "Content-Type=text/xml",
                                      "REQUEST_EXEC_PARAM_RESULT=<r>\xc3\xa4</r>",
                                      "X-Empty=", "X-UPPER=c", "x-Lower=a b"}));
}

TEST_F(HttpRequestExecutorTest, GivesTheBodyAloneForAReplyWithoutHeaders)
{
    gateway.sendRaw("HTTP/1.0 200 OK\r\n\r\n<r/>");
    EXPECT_EQ(executor.execute(request(), result), 0);
    EXPECT_EQ(entries(result), lines({"REQUEST_EXEC_PARAM_RESULT=<r/>"}));
}

TEST_F(HttpRequestExecutorTest, GivesAnEmptyBody)
{
    EXPECT_EQ(execute(request(), {}, ""), 0);
    EXPECT_EQ(bodyOf(result), QString());
    EXPECT_TRUE(result.contains(text("REQUEST_EXEC_PARAM_RESULT")));
}

TEST_F(HttpRequestExecutorTest, EndsTheBodyAtTheFirstNul)
{
    EXPECT_EQ(execute(request(), {}, QByteArray("<r/>\0<s/>", 9)), 0);
    EXPECT_EQ(bodyOf(result), text("<r/>"));
}

TEST_F(HttpRequestExecutorTest, ReplacesWhatIsNotUtf8)
{
    EXPECT_EQ(execute(request(), {}, "a\xff\xfe z"), 0);
    EXPECT_EQ(bodyOf(result), text("a\xef\xbf\xbd\xef\xbf\xbd z"));
}

TEST_F(HttpRequestExecutorTest, TakesSemicolonsAndThePathOutOfCookies)
{
    const struct {
        const char* header;
        const char* session;
    } cases[] = {{"Set-Cookie: SID=1234; path=/\r\n", "SID=1234"},
                 {"Set-Cookie: SID=1;path=/;path=/\r\n", "SID=1"},
                 {"Set-Cookie: SID=1; path=/cgi-bin; HttpOnly\r\n", "SID=1 cgi-bin HttpOnly"},
                 {"Set-Cookie: SID=1; Path=/\r\n", "SID=1 Path=/"},
                 {"Set-Cookie: pat;h=/SID=1\r\n", "SID=1"},
                 {"Set-Cookie: SID=1\r\nSet-Cookie: SID=2; path=/\r\n", "SID=2"},
                 {"Set-Cookie:    \r\n", ""}};
    for (const auto& one : cases) {
        EXPECT_EQ(execute(request(), one.header), 0);
        EXPECT_EQ(result.value(text("Set-Cookie")), text(one.session)) << one.header;
    }
}

TEST_F(HttpRequestExecutorTest, LeavesACookieOfAnotherSpellingAsItIs)
{
    EXPECT_EQ(execute(request(), "set-cookie: SID=1; path=/\r\n"), 0);
    EXPECT_EQ(result.value(text("set-cookie")), text("SID=1; path=/"));
    EXPECT_FALSE(result.contains(text("Set-Cookie")));
}

TEST_F(HttpRequestExecutorTest, TakesAnErrorStatusAsANetworkFailureAndDropsItsBody)
{
    for (const char* status : {"400 Bad", "401 No", "403 No", "404 No", "500 No", "503 No"}) {
        gateway.sendRaw(QByteArray("HTTP/1.1 ") + status + "\r\nContent-Length: 4\r\n\r\n<r/>");
        EXPECT_EQ(executor.execute(request(), result), 1) << status;
    }
    EXPECT_EQ(entries(result), lines({"old=1"}));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(HttpRequestExecutorTest, LooksAtNoOtherStatus)
{
    gateway.sendRaw("HTTP/1.1 299 Odd\r\nContent-Length: 4\r\n\r\n<r/>");
    EXPECT_EQ(executor.execute(request(), result), 0);
    EXPECT_EQ(bodyOf(result), text("<r/>"));
}

TEST_F(HttpRequestExecutorTest, TellsAnUnknownNetworkErrorOfTheSystems)
{
    // Refused by this machine itself, in its own words: nobody connects to everybody.
    EXPECT_EQ(executor.execute(requestTo(text("255.255.255.255")), result), 4);
    EXPECT_EQ(entries(result), lines({"old=1"}));
}

TEST_F(HttpRequestExecutorTest, OpensAConnectionForEveryExchange)
{
    EXPECT_EQ(execute(request(), "Connection: Keep-Alive\r\nSet-Cookie: SID=1\r\n"), 0);
    EXPECT_EQ(execute(request()), 0);
    EXPECT_EQ(gateway.connections(), 2);
    EXPECT_EQ(gateway.request(1).header("Cookie"), QByteArray());
}

TEST_F(HttpRequestExecutorTest, TakesABodyOf4MebibytesAndNoByteMore)
{
    const QByteArray largest(4194304, 'x');
    EXPECT_EQ(execute(request(), {}, largest), 0);
    EXPECT_EQ(bodyOf(result).size(), 4194304);
    EXPECT_EQ(execute(request(), {}, largest + 'x'), 1);
    gateway.sendRaw("HTTP/1.1 200 OK\r\n\r\n" + largest + 'x');
    EXPECT_EQ(executor.execute(request(), result), 1);
    EXPECT_EQ(execute(request()), 0);
}

} // namespace quorvel::test
