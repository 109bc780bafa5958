#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeAuthenticatorV1.h"
#include "protocol/AspCpeSessionStorage.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParser3g.h"
#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/BuiltGateway.h"
#include "support/Transcript.h"

#include <QThread>
#include <atomic>
#include <memory>
#include <thread>

namespace quorvel::test
{

namespace
{

/// Runs `work` on so many threads at once; each gets its number.
template <typename Work>
void onThreads(int count, Work work)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < count; ++number)
        threads.emplace_back([=, &work] { work(number); });
    for (std::thread& thread : threads)
        thread.join();
}

QByteArray versionReply(const QByteArray& version)
{
    return httpReply(reply101({{"sysmgr-0", "fwversion", QString::fromUtf8(version)}}).toUtf8());
}

} // namespace

TEST(ThreadsWithoutEventLoop, ExchangeManyAtATime)
{
    ScriptedGateway gateway;
    gateway.answerAllOthers([](const ReceivedRequest& request, GatewayConnection& peer) {
        peer.send(httpReply(request.body));
    });
    onThreads(12, [&](int number) {
        HttpRequestExecutor executor;
        for (int round = 0; round < 10; ++round) {
            const QString body = text("<r>%1 %2</r>").arg(number).arg(round);
            ParamMap result;
            EXPECT_EQ(executor.execute(requestTo(gateway.address(), body), result), 0);
            EXPECT_EQ(bodyOf(result), body);
        }
    });
    EXPECT_EQ(gateway.requests().size(), 120);
}

TEST(ThreadsWithoutEventLoop, TimeOutAtTheLimit)
{
    ScriptedGateway gateway;
    gateway.sendAndHold({});
    onThreads(1, [&](int) {
        ParamMap result;
        EXPECT_EQ(HttpRequestExecutor(300).execute(requestTo(gateway.address()), result), 2);
    });
}

TEST(ThreadsWithEventLoop, ExchangeToo)
{
    ScriptedGateway gateway;
    gateway.sendRaw(httpReply("<r/>"));
    QThread thread;
    QObject onThread;
    onThread.moveToThread(&thread);
    thread.start();
    ParamMap result;
    QMetaObject::invokeMethod(
        &onThread,
        [&] { EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 0); },
        Qt::BlockingQueuedConnection);
    thread.quit();
    thread.wait();
    EXPECT_EQ(bodyOf(result), text("<r/>"));
}

TEST(SharedExecutor, IsBusyForAllThreadsButOne)
{
    ScriptedGateway gateway;
    gateway.answer([](const ReceivedRequest&, GatewayConnection& peer) {
        peer.waitForRelease();
        peer.send(httpReply("<r/>"));
    });
    HttpRequestExecutor executor;
    std::atomic<int> busy{0};
    std::atomic<int> succeeded{0};
    onThreads(6, [&](int) {
        ParamMap result;
        const int outcome = executor.execute(requestTo(gateway.address()), result);
        EXPECT_TRUE(outcome == 0 || outcome == 5) << outcome;
        if (outcome == 0)
            ++succeeded;
        else if (++busy == 5)
            gateway.release();
    });
    EXPECT_EQ(succeeded, 1);
    EXPECT_EQ(busy, 5);
}

namespace
{

class GatewayOfManyThreads : public BuiltGateway
{
protected:
    boost::shared_ptr<Cpe> another()
    {
        build({{"XML_VERSION", "1.0.1"}});
        return cpe;
    }

    static void expectVersion(Cpe& cpe, const char* version)
    {
        ParamMap result;
        EXPECT_TRUE(cpe.getGeneralImplementor()->getFirmwareVersion(result));
        EXPECT_EQ(result.value(text("sysmgr-0.fwversion")), text(version));
    }
};

} // namespace

TEST_F(GatewayOfManyThreads, IsAskedByOneThreadOfAFamilyAtATime)
{
    std::atomic<int> open{0};
    std::atomic<int> most{0};
    gateway.answerAllOthers([&](const ReceivedRequest&, GatewayConnection& peer) {
        most = std::max(most.load(), ++open);
        peer.pause(2);
        --open;
        peer.send(versionReply("1.2"));
    });
    const auto shared = another();
    onThreads(6, [&](int) {
        for (int round = 0; round < 5; ++round)
            expectVersion(*shared, "1.2");
    });
    EXPECT_EQ(most, 1);
    const QList<ReceivedRequest> requests = gateway.requests();
    EXPECT_EQ(requests.size(), 30);
    for (const ReceivedRequest& request : requests)
        EXPECT_EQ(commandLines(QString::fromUtf8(request.body)),
                  text("version 1.0.1\nquery \"sysmgr-0\" \"fwversion\" \"\"\n"));
}

TEST(SessionStorageOfManyThreads, IsMadeOnceAndKeepsEachSession)
{
    std::vector<boost::shared_ptr<AspCpeSessionStorage>> found(8);
    onThreads(8, [&](int number) {
        const auto storage = AspCpeSessionStorage::getInstance();
        found[static_cast<size_t>(number)] = storage;
        const QString address = text("192.0.2.%1").arg(number);
        for (int round = 0; round < 200; ++round) {
            const QString session = text("SID=%1").arg(round);
            storage->setSession(address, session);
            EXPECT_EQ(storage->getSession(text("http://") + address), session);
            EXPECT_TRUE(storage->hasSession(address));
            storage->removeSession(address);
        }
    });
    for (const auto& storage : found)
        EXPECT_EQ(storage, found.front());
}

TEST(PartsOfManyThreads, FormatterLosesNoCommand)
{
    AspRequestFormatterV2 formatter;
    std::atomic<int> commands{0};
    onThreads(4, [&](int) {
        for (int round = 0; round < 100; ++round) {
            formatter.addGet(text("wan-0"), text("type"), QString());
            commands += formatter.formatRequest().count(text("<get "));
        }
    });
    commands += formatter.formatRequest().count(text("<get "));
    EXPECT_EQ(commands, 400);
}

TEST(PartsOfManyThreads, ParserKeepsRepliesApart)
{
    AspResponseParser3g parser;
    onThreads(4, [&](int number) {
        const QString reply =
            text("<r><a><key>k</key><value>%1</value></a><a><key>k</key><value>x</value></a></r>")
                .arg(number);
        for (int round = 0; round < 50; ++round) {
            ParamMap result;
            EXPECT_TRUE(parser.parse(reply, result));
            EXPECT_EQ(entries(result),
                      QStringList({text("a.k=%1").arg(number), text("a.k2=x"), text("r=")}));
        }
    });
}

TEST(PartsOfManyThreads, CredentialsAreReadAndWrittenWhole)
{
    AspCpeAuthenticatorV1 authenticator;
    authenticator.setPassword(text("aaaa"));
    onThreads(4, [&](int number) {
        for (int round = 0; round < 200; ++round) {
            authenticator.setPassword(number % 2 == 0 ? text("aaaa") : text("bbbb"));
            const QString password = authenticator.getPassword();
            EXPECT_TRUE(password == text("aaaa") || password == text("bbbb"));
        }
    });
}

} // namespace quorvel::test
