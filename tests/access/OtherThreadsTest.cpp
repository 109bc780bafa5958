#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "protocol/AspCpeSessionStorage.h"
#include "support/RecognisedGateway.h"
#include "support/Replies.h"

#include <QObject>
#include <QSemaphore>
#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

class OtherThreads : public RecognisedGateway
{
protected:
    OtherThreads()
    {
        scriptRecognition({text("devmgr")});
        general = object->getGeneralSettingsFacade();
        log.clear();
    }

    /// Asks for the firmware version while another thread aborts as soon as the gateway has
    /// received the last of so many requests.
    void askWithAbortAfter(int requests)
    {
        std::thread aborter([this, requests] {
            EXPECT_TRUE(gateway.waitForRequests(requests));
            object->abortPendingRequests();
        });
        version = general->getFirmwareVersion(error);
        aborter.join();
    }

    boost::shared_ptr<AspCpeFacadeObject> object = boost::make_shared<AspCpeFacadeObject>(info());
    boost::shared_ptr<AspGeneralSettingsFacade> general;
    QString version = text("old");
    AspWebAppErrorCodes error = AspWebAppNoError;
};

const char failure[] =
    "ERROR AspGeneralSettingsFacade::getFirmwareVersion -> Failed to fetch firmware version!";

} // namespace

TEST_F(OtherThreads, EndARequestByAnAbort)
{
    gateway.sendAndHold({});
    askWithAbortAfter(4);
    EXPECT_EQ(version, QString());
    EXPECT_EQ(static_cast<int>(error), 29);
    EXPECT_EQ(log.lines(), lines({failure}));
}

TEST_F(OtherThreads, EndARequestInTheMiddleOfItsReply)
{
    gateway.sendAndHold("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n<response version=\"1");
    askWithAbortAfter(4);
    EXPECT_EQ(version, QString());
    EXPECT_EQ(static_cast<int>(error), 29);
}

TEST_F(OtherThreads, DoNotHarmLaterRequestsByAnAbort)
{
    gateway.sendAndHold({}).reply(reply101({{"sysmgr-0", "fwversion", "9"}}));
    askWithAbortAfter(4);
    EXPECT_EQ(general->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(static_cast<int>(error), 0);
}

TEST_F(OtherThreads, EndTheLoginOfARequestByAnAbort)
{
    AspCpeSessionStorage::getInstance()->removeSession(gateway.address());
    gateway.sendAndHold({});
    askWithAbortAfter(4);
    EXPECT_EQ(version, QString());
    // A login that a request needed and that failed in transport leaves no code.
    EXPECT_EQ(static_cast<int>(error), 0);
    EXPECT_EQ(log.lines(),
              lines({"DEBUG Logging in...", "WARN Log in request timed out or failed.", failure}));
}

TEST_F(OtherThreads, AreNotDisturbedWhenTheObjectGoesDuringTheirRequest)
{
    gateway.reply(reply101({{"sysmgr-0", "fwversion", "9"}}));
    QSemaphore waiting;
    QSemaphore gone;
    std::thread caller([&] {
        // Served by the wait for the reply, which can't end before it.
        QObject here;
        QMetaObject::invokeMethod(
            &here,
            [&] {
                waiting.release();
                EXPECT_TRUE(gone.tryAcquire(1, 10000));
            },
            Qt::QueuedConnection);
        version = general->getFirmwareVersion(error);
    });
    EXPECT_TRUE(waiting.tryAcquire(1, 10000));
    object.reset();
    gone.release();
    caller.join();
    EXPECT_EQ(version, text("9"));
    EXPECT_EQ(static_cast<int>(error), 0);
}

TEST_F(OtherThreads, MayUseTheirFacadesSideBySide)
{
    for (int i = 0; i < 8; ++i)
        gateway.reply(reply101({{"sysmgr-0", "fwversion", "9"}}));
    std::vector<std::thread> callers;
    for (int i = 0; i < 8; ++i) {
        callers.emplace_back([this] {
            AspWebAppErrorCodes own = AspWebAppRequestFailed;
            EXPECT_EQ(general->getFirmwareVersion(own), text("9"));
            EXPECT_EQ(static_cast<int>(own), 0);
        });
    }
    for (std::thread& caller : callers)
        caller.join();
}

TEST_F(OtherThreads, AreNotNeededForTheObjectToGoDuringARequest)
{
    gateway.reply(reply101({{"sysmgr-0", "fwversion", "9"}}));
    QObject here;
    QMetaObject::invokeMethod(
        &here, [this] { object.reset(); }, Qt::QueuedConnection);
    EXPECT_EQ(general->getFirmwareVersion(error), text("9"));
    EXPECT_FALSE(object);
}

} // namespace quorvel::test
