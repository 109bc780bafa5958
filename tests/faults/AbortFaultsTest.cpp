#include <quorvel/AspGeneralSettingsFacade.h>

#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "support/BuiltGateway.h"
#include "support/Resources.h"
#include "support/Text.h"

#include <QSemaphore>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace quorvel::test
{

namespace
{

using Clock = std::chrono::steady_clock;

/// When other threads abort, and what a read of the firmware version makes of it.
struct Moment {
    const char* name;
    /// Leads to the moment and tells when it has come.
    std::function<void(ScriptedGateway& gateway, QSemaphore& come)> lead;
    int error = 29;
    bool loggedIn = true;
    int threads = 1;
    int abortsEach = 1;
};

void PrintTo(const Moment& moment, std::ostream* out)
{
    *out << moment.name;
}

/// Sends this, tells and says no more.
std::function<void(ScriptedGateway&, QSemaphore&)> stoppingBehind(const QByteArray& bytes)
{
    return [=](ScriptedGateway& gateway, QSemaphore& come) {
        gateway.answer([=, &come](const ReceivedRequest&, GatewayConnection& peer) {
            peer.send(bytes);
            come.release();
            peer.waitForPeer();
        });
    };
}

void expire(ScriptedGateway& gateway)
{
    gateway.reply(reply101({{"webapp", "error", "1"}}));
}

std::vector<Moment> moments()
{
    const auto waiting = stoppingBehind({});
    return {{"WhileWaiting", waiting},
            {"WhileReadingTheHead", stoppingBehind("HTTP/1.1 200 OK\r\nContent-")},
            {"WhileReadingTheBody",
             stoppingBehind("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<r>")},
            {"WhileReadingChunks",
             stoppingBehind("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nff\r\n<r>")},
            {"Twice", waiting, 29, true, 1, 2},
            {"FromFourThreads", waiting, 29, true, 4, 2},
            // A login that fails in transport names no error.
            {"WhileLoggingIn", waiting, 0, false},
            {"WhileLoggingInAgain",
             [=](ScriptedGateway& gateway, QSemaphore& come) {
                 expire(gateway);
                 waiting(gateway, come);
             },
             0},
            {"WhileRepeating", [=](ScriptedGateway& gateway, QSemaphore& come) {
                 expire(gateway);
                 gateway.logIn();
                 waiting(gateway, come);
             }}};
}

class AbortFault : public BuiltGateway, public testing::WithParamInterface<Moment>
{
protected:
    AbortFault() { build({{"XML_VERSION", "1.0.1"}}); }

    void setLoggedIn(bool loggedIn)
    {
        AspCpeSessionStorage::getInstance()->setSession(gateway.address(),
                                                        loggedIn ? text("SID=1") : QString());
    }

    void expectGoodExchange()
    {
        setLoggedIn(true);
        gateway.reply(reply101({{"sysmgr-0", "fwversion", "1.2"}}));
        EXPECT_EQ(facade().getFirmwareVersion(error), text("1.2"));
        EXPECT_EQ(error, 0);
    }

    AspGeneralSettingsFacade facade() const { return AspGeneralSettingsFacade(cpe); }

    /// How many milliseconds the read goes on behind the abort.
    int readAndAbort(const Moment& moment)
    {
        QSemaphore come;
        moment.lead(gateway, come);
        Clock::time_point aborted;
        std::thread first([&] {
            EXPECT_TRUE(come.tryAcquire(1, 10000));
            aborted = Clock::now();
            std::vector<std::thread> aborters;
            for (int i = 0; i < moment.threads; ++i)
                aborters.emplace_back([&] {
                    for (int abort = 0; abort < moment.abortsEach; ++abort)
                        cpe->abortPendingRequests();
                });
            for (std::thread& aborter : aborters)
                aborter.join();
        });
        EXPECT_EQ(facade().getFirmwareVersion(error), QString());
        EXPECT_EQ(error, moment.error);
        const auto ended = Clock::now();
        first.join();
        return static_cast<int>(
            std::chrono::duration_cast<std::chrono::milliseconds>(ended - aborted).count());
    }

    AspWebAppErrorCodes error = AspWebAppNoError;
};

} // namespace

TEST_P(AbortFault, EndsTheReadSoonAndTheNextExchangeWorks)
{
    expectGoodExchange();
    const Resources before;
    int quickest = 100000;
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        setLoggedIn(GetParam().loggedIn);
        quickest = std::min(quickest, readAndAbort(GetParam()));
        expectGoodExchange();
    }
    // The best of all, so that a busy machine doesn't count.
    EXPECT_LT(quickest, 100);
    EXPECT_TRUE(before.areBack());
}

INSTANTIATE_TEST_SUITE_P(Moments, AbortFault, testing::ValuesIn(moments()),
                         [](const auto& info) { return std::string(info.param.name); });

namespace
{

using AbortAside = AbortFault;

} // namespace

TEST_F(AbortAside, BeforeAndAfterAReadChangesNothing)
{
    for (int round = 0; round < 20; ++round) {
        cpe->abortPendingRequests();
        expectGoodExchange();
        cpe->abortPendingRequests();
    }
}

TEST_F(AbortAside, EndsAReadThatAGatewayKeepsRepeating)
{
    gateway.answerAllOthers([](const ReceivedRequest& request, GatewayConnection& peer) {
        peer.send(request.path == "/cgi-bin/login"
                      ? httpReply("", "Set-Cookie: SID=2\r\n")
                      : httpReply(reply101({{"webapp", "error", "1"}}).toUtf8()));
    });
    for (int round = 0; round < 20; ++round) {
        std::atomic<bool> ended{false};
        std::thread aborter([&] {
            EXPECT_TRUE(gateway.waitForRequests(3 * round + 3));
            while (!ended)
                cpe->abortPendingRequests();
        });
        EXPECT_EQ(facade().getFirmwareVersion(error), QString());
        ended = true;
        aborter.join();
        // In the middle of a login it names no error.
        EXPECT_TRUE(error == 29 || error == 0) << error;
    }
}

} // namespace quorvel::test
