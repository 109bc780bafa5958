#include <quorvel/AspGeneralSettingsFacade.h>

#include "protocol/AspCpeSessionStorage.h"
#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/Resources.h"

#include <atomic>
#include <thread>

namespace quorvel::test
{

namespace
{

const int callers = 8;

/// Eight threads that see the session expire at once, each with a handle of its own, beside one
/// that talks to another gateway.
class ExpiryForAll : public BuiltGateway
{
protected:
    ExpiryForAll()
    {
        for (int i = 0; i < callers; ++i)
            handles.push_back(builtCpe(gateway.address(), {{"XML_VERSION", "1.0.1"}}));
        gateway.answerAllOthers([this](const ReceivedRequest& request, GatewayConnection& peer) {
            answer(request, peer);
        });
        neighbour.answerAllOthers([](const ReceivedRequest& request, GatewayConnection& peer) {
            peer.send(httpReply(request.header("Cookie")));
        });
    }

    void expectAllToSucceed(int newRound)
    {
        round = newRound;
        refused = 0;
        const auto sessions = AspCpeSessionStorage::getInstance();
        sessions->setSession(gateway.address(), text("OLD=%1").arg(round));
        sessions->setSession(neighbour.address(), text("NEIGHBOUR=1"));
        std::vector<std::thread> threads;
        for (const auto& handle : handles)
            threads.emplace_back([&handle] { expectVersion(handle); });
        threads.emplace_back([this] { expectNeighbour(); });
        for (std::thread& thread : threads)
            thread.join();
        EXPECT_EQ(refused, callers);
    }

private:
    void answer(const ReceivedRequest& request, GatewayConnection& peer)
    {
        if (request.path == "/cgi-bin/login") {
            peer.send(httpReply("", "Set-Cookie: NEW=" + QByteArray::number(++logins) + "\r\n"));
        } else if (request.header("Cookie") == "OLD=" + QByteArray::number(round)) {
            // None is told before all have asked.
            ++refused;
            while (refused < callers && peer.pause(1)) {
            }
            peer.send(httpReply(reply101({{"webapp", "error", "1"}}).toUtf8()));
        } else {
            const QByteArray cookie = request.header("Cookie");
            // One that has just removed the session leaves others without any.
            EXPECT_TRUE(cookie.isEmpty() || cookie.startsWith("NEW=")) << cookie.toStdString();
            const bool known = !cookie.isEmpty();
            peer.send(httpReply(known ? reply101({{"sysmgr-0", "fwversion", "1.2"}}).toUtf8()
                                      : reply101({{"webapp", "error", "1"}}).toUtf8()));
        }
    }

    static void expectVersion(const boost::shared_ptr<Cpe>& handle)
    {
        AspWebAppErrorCodes error = AspWebAppRequestFailed;
        EXPECT_EQ(AspGeneralSettingsFacade(handle).getFirmwareVersion(error), text("1.2"));
        EXPECT_EQ(error, 0);
    }

    void expectNeighbour()
    {
        ParamMap params = requestTo(neighbour.address());
        params.insert(text("HTTP_PARAM_SESSION"),
                      AspCpeSessionStorage::getInstance()->getSession(neighbour.address()));
        ParamMap result;
        EXPECT_EQ(HttpRequestExecutor().execute(params, result), 0);
        EXPECT_EQ(bodyOf(result), text("NEIGHBOUR=1"));
    }

    ScriptedGateway neighbour;
    std::vector<boost::shared_ptr<Cpe>> handles;
    std::atomic<int> round{0};
    std::atomic<int> refused{0};
    std::atomic<int> logins{0};
};

} // namespace

TEST_F(ExpiryForAll, LetsEachSucceedWithATokenOfItsOwnGateway)
{
    expectAllToSucceed(0);
    const Resources before;
    for (int round = 1; round <= 20; ++round)
        expectAllToSucceed(round);
    EXPECT_TRUE(before.areBack());
}

} // namespace quorvel::test
