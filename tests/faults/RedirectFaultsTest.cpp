#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/Resources.h"

namespace quorvel::test
{

namespace
{

/// A status that sends the client elsewhere, and the transport's outcome.
struct RedirectStatus {
    const char* name;
    const char* line;
    int outcome;
};

void PrintTo(const RedirectStatus& status, std::ostream* out)
{
    *out << status.line;
}

class Redirection : public testing::TestWithParam<RedirectStatus>
{
};

/// A demand for credentials.
struct Challenge {
    const char* name;
    QByteArray status;
    QByteArray challenge;
};

void PrintTo(const Challenge& challenge, std::ostream* out)
{
    *out << challenge.name;
}

class Challenged : public testing::TestWithParam<Challenge>
{
};

template <typename Param>
std::string nameOf(const testing::TestParamInfo<Param>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(Redirection, IsNotFollowed)
{
    ScriptedGateway target;
    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    const QString targets[] = {
        text("/cgi-bin/webapp"), text("http://") + target.address() + text("/"),
        text("//") + target.address() + text("/"), text("file:///etc/passwd"),
        text("http://") + gateway.address() + text("/cgi-bin/webapp")};
    for (int round = 0; round < 20; ++round) {
        for (const QString& location : targets) {
            gateway.sendRaw(QByteArray("HTTP/1.1 ") + GetParam().line + "\r\nLocation: " +
                            location.toUtf8() + "\r\nContent-Length: 4\r\n\r\n<r/>");
            ParamMap result;
            EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), GetParam().outcome);
            EXPECT_EQ(bodyOf(result), GetParam().outcome == 0 ? text("<r/>") : QString());
        }
    }
    EXPECT_EQ(gateway.connections(), 100);
    EXPECT_EQ(target.connections(), 0);
}

// The latter two ask for the same request once more, and that Qt can't send.
INSTANTIATE_TEST_SUITE_P(Statuses, Redirection,
                         testing::Values(RedirectStatus{"Moved", "301 Moved", 0},
                                         RedirectStatus{"Found", "302 Found", 0},
                                         RedirectStatus{"SeeOther", "303 See Other", 0},
                                         RedirectStatus{"Temporary", "307 Temporary", 1},
                                         RedirectStatus{"Permanent", "308 Permanent", 1}),
                         nameOf<RedirectStatus>);

TEST_P(Challenged, SendsNoCredentials)
{
    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    for (int round = 0; round < 20; ++round) {
        gateway.sendRaw("HTTP/1.1 " + GetParam().status + "-Authenticate: " + GetParam().challenge +
                        "\r\nContent-Length: 4\r\n\r\n<r/>");
        ParamMap result;
        EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 1);
        EXPECT_EQ(gateway.requests().size(), round + 1);
        EXPECT_FALSE(gateway.request(round).raw.contains("Authorization"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Challenged,
    testing::Values(Challenge{"Basic", "401 Unauthorized\r\nWWW", "Basic realm=\"x\""},
                    Challenge{"Digest", "401 Unauthorized\r\nWWW",
                              "Digest realm=\"x\", nonce=\"1\", qop=\"auth\""},
                    Challenge{"Ntlm", "401 Unauthorized\r\nWWW", "NTLM"},
                    Challenge{"Negotiate", "401 Unauthorized\r\nWWW", "Negotiate"},
                    Challenge{"OfAProxy", "407 Proxy\r\nProxy", "Basic realm=\"x\""}),
    nameOf<Challenge>);

} // namespace quorvel::test
