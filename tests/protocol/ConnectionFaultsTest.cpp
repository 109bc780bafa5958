#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"

#include <QElapsedTimer>
#include <arpa/inet.h>
#include <boost/make_shared.hpp>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvel::test
{

namespace
{

/// A port that is taken and that nobody serves.
class DeafPort
{
public:
    DeafPort()
    {
        sockets.push_back(open(0));
        where.sin_family = AF_INET;
        where.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof where;
        EXPECT_EQ(::bind(sockets[0], address(), size), 0);
        EXPECT_EQ(::getsockname(sockets[0], address(), &size), 0);
    }

    ~DeafPort()
    {
        for (const int socket : sockets)
            ::close(socket);
    }

    /// Listens, and fills the queue of connections that wait to be accepted.
    void fillBacklog()
    {
        EXPECT_EQ(::listen(sockets[0], 0), 0);
        for (int i = 0; i < 8; ++i) {
            sockets.push_back(open(SOCK_NONBLOCK));
            const bool begun = ::connect(sockets.back(), address(), sizeof where) == 0;
            EXPECT_TRUE(begun || errno == EINPROGRESS);
        }
    }

    QString text() const { return QStringLiteral("127.0.0.1:%1").arg(ntohs(where.sin_port)); }

private:
    static int open(int flags) { return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | flags, 0); }
    sockaddr* address() { return reinterpret_cast<sockaddr*>(&where); }

    std::vector<int> sockets;
    sockaddr_in where{};
};

} // namespace

TEST(ConnectionFault, NobodyListensAndItFailsAtOnce)
{
    const DeafPort port;
    HttpRequestExecutor executor;
    ParamMap result;
    for (int round = 0; round < 20; ++round)
        EXPECT_EQ(executor.execute(requestTo(port.text()), result), 1);
    EXPECT_EQ(entries(result), QStringList());
}

TEST(ConnectionFault, NobodyAcceptsAndItTimesOut)
{
    DeafPort port;
    port.fillBacklog();
    HttpRequestExecutor executor(500);
    ParamMap result;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(executor.execute(requestTo(port.text()), result), 2);
    EXPECT_GE(clock.elapsed(), 490);
}

TEST(ConnectionFault, ClosedAndResetConnectionsFailAndAreNotAsked)
{
    for (const bool reset : {false, true}) {
        ScriptedGateway gateway;
        HttpRequestExecutor executor;
        ParamMap result;
        for (int round = 0; round < 20; ++round) {
            // Qt may try a second connection; a request that goes out on it would be recorded.
            if (reset)
                gateway.resetOnAccept();
            else
                gateway.closeOnAccept();
            const int before = gateway.requests().size();
            gateway.answerAllOthers(
                [](const ReceivedRequest&, GatewayConnection& peer) { peer.reset(); });
            EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 1);
            EXPECT_LE(gateway.requests().size() - before, 1);
        }
        gateway.sendRaw(httpReply("<r/>"));
        EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 0);
    }
}

TEST(ConnectionFault, ChallengesGetNoCredentials)
{
    for (const char* challenge :
         {"Basic realm=\"x\"", "Digest realm=\"x\", nonce=\"1\", qop=\"auth\"", "NTLM",
          "Negotiate"}) {
        for (const QByteArray status : {"401 Unauthorized\r\nWWW", "407 Proxy\r\nProxy"}) {
            ScriptedGateway gateway;
            gateway.sendRaw("HTTP/1.1 " + status + "-Authenticate: " + challenge +
                            "\r\nContent-Length: 4\r\n\r\n<r/>");
            ParamMap result;
            EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 1);
            EXPECT_EQ(gateway.requests().size(), 1);
            EXPECT_FALSE(gateway.request(0).raw.contains("Authorization"));
        }
    }
}

} // namespace quorvel::test
