#include "general/GeneralSettings.h"
#include "support/Transcript.h"
#include "wan/WanSettingsImplementor.h"

#include <QObject>
#include <QSemaphore>
#include <QWaitCondition>
#include <functional>
#include <ostream>
#include <thread>

namespace quorvel::test
{

namespace
{

using Facade = AspGeneralSettingsFacade;
using Error = AspWebAppErrorCodes;

/// A transport in which requests meet: it answers each only when so many are under way at once, or
/// when it was told to let them go.
class MeetingPoint : public RequestExecutor
{
public:
    explicit MeetingPoint(int expected) : expected(expected) {}

    int execute(const ParamMap&, ParamMap& result) override
    {
        QMutexLocker locker(&mutex);
        ++underWay;
        most = qMax(most, underWay);
        changed.wakeAll();
        const QDeadlineTimer deadline(10000);
        while (most < expected && changed.wait(&mutex, deadline)) {
        }
        // Room for requests that nothing keeps out.
        locker.unlock();
        for (int i = 0; i < 100; ++i)
            std::this_thread::yield();
        locker.relock();
        --underWay;
        result = {{text("REQUEST_EXEC_PARAM_RESULT"), text("<response/>")}};
        return 0;
    }
    void abortPendingRequests() override {}

    /// Whether so many requests are under way within 10 seconds.
    bool waitFor(int count)
    {
        QMutexLocker locker(&mutex);
        const QDeadlineTimer deadline(10000);
        while (most < count && changed.wait(&mutex, deadline)) {
        }
        return most >= count;
    }

    /// The most requests that were under way at once.
    int mostAtOnce()
    {
        QMutexLocker locker(&mutex);
        return most;
    }

private:
    const int expected;
    QMutex mutex;
    QWaitCondition changed;
    int underWay = 0;
    int most = 0;
};

/// An operation that takes no lock, with its outcome as a text.
struct Unlocked {
    const char* name;
    std::function<QString(Facade&, Error&)> run;
    const char* failure;
};

void PrintTo(const Unlocked& operation, std::ostream* out)
{
    *out << operation.name;
}

class UnlockedOperation : public GeneralSettings, public testing::WithParamInterface<Unlocked>
{
};

} // namespace

TEST_P(UnlockedOperation, IsToldThatTheTransportIsBusyDuringAnotherCallOfItsThread)
{
    reply({{"sysmgr-0", "fwversion", "9"}});
    Error inner = AspWebAppNoError;
    QString outcome;
    QObject here;
    QMetaObject::invokeMethod(
        &here, [&] { outcome = GetParam().run(*facade, inner); }, Qt::QueuedConnection);
    EXPECT_EQ(facade->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(outcome, text("failed"));
    EXPECT_EQ(static_cast<int>(inner), 29);
    EXPECT_EQ(log.lines(), lines({GetParam().failure, "DEBUG AspGeneralSettingsFacade::"
                                                      "getFirmwareVersion -> Firmware Version:9"}));
}

TEST_P(UnlockedOperation, LeavesNothingQueuedForTheNextRequestWhenItIsTurnedAway)
{
    reply({});
    Error inner = AspWebAppNoError;
    QObject here;
    QMetaObject::invokeMethod(
        &here, [&] { GetParam().run(*facade, inner); }, Qt::QueuedConnection);
    facade->getFirmwareVersion(error);
    reply({{"product-0", "router_mode", "ap"}});
    EXPECT_EQ(static_cast<int>(facade->getRouterMode(error)), 1);
    EXPECT_EQ(commandLines(QString::fromUtf8(gateway.request(1).body)),
              text("version 1.0.1\n"
                   "command \"cfgmgr-0\" \"begin_transaction\" \"product-0\"\n"
                   "get \"product-0\" \"router_mode\" \"\"\n"
                   "command \"cfgmgr-0\" \"end_transaction\" \"product-0\"\n"));
}

TEST_P(UnlockedOperation, DoesNotWaitForAnotherThread)
{
    const auto meeting = boost::make_shared<MeetingPoint>(2);
    cpe->getGeneralImplementor()->setRequestExecutor(meeting);
    std::thread other([this] {
        Error own;
        facade->getFirmwareVersion(own);
    });
    EXPECT_TRUE(meeting->waitFor(1));
    GetParam().run(*facade, error);
    other.join();
    EXPECT_EQ(meeting->mostAtOnce(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    BothOperations, UnlockedOperation,
    testing::Values(Unlocked{"getRouterMode",
                             [](Facade& f, Error& e) {
                                 return f.getRouterMode(e) == TelvoraCpeRouterModeUnknown
                                            ? text("failed")
                                            : text("answered");
                             },
                             "ERROR AspGeneralSettingsFacade::getRouterMode -> Failed to fetch "
                             "Router mode!"},
                    Unlocked{"isRebootRequired",
                             [](Facade& f, Error& e) {
                                 return f.isRebootRequired(e) ? text("answered") : text("failed");
                             },
                             "ERROR AspGeneralSettingsFacade::isRebootRequired -> Failed to fetch "
                             "isRebootRequired!"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(GeneralSettings, SendWhatIsQueuedAlreadyInFrontOfTheRouterMode)
{
    cpe->getGeneralImplementor()->getRequestFormatter()->addQuery(text("a-0"), text("b"),
                                                                  text("c"));
    reply({});
    facade->getRouterMode(error);
    EXPECT_EQ(commandLines(QString::fromUtf8(gateway.request(0).body)),
              text("version 1.0.1\n"
                   "query \"a-0\" \"b\" \"c\"\n"
                   "command \"cfgmgr-0\" \"begin_transaction\" \"product-0\"\n"
                   "get \"product-0\" \"router_mode\" \"\"\n"
                   "command \"cfgmgr-0\" \"end_transaction\" \"product-0\"\n"));
}

TEST_F(GeneralSettings, ForgetWhatIsQueuedAlreadyWithEveryOtherOperation)
{
    const auto formatter = cpe->getGeneralImplementor()->getRequestFormatter();
    formatter->addQuery(text("a-0"), text("b"), text("c"));
    reply({});
    facade->isRebootRequired(error);
    formatter->addQuery(text("a-0"), text("b"), text("c"));
    reply({});
    facade->getFirmwareVersion(error);
    EXPECT_EQ(commandLines(QString::fromUtf8(gateway.request(0).body)),
              text("version 1.0.1\nquery \"sysmgr-0\" \"reboot_req\" \"\"\n"));
    EXPECT_EQ(commandLines(QString::fromUtf8(gateway.request(1).body)),
              text("version 1.0.1\nquery \"sysmgr-0\" \"fwversion\" \"\"\n"));
}

TEST_F(GeneralSettings, PutOperationsOfSeveralThreadsInARow)
{
    const auto transport = boost::make_shared<MeetingPoint>(0);
    cpe->getGeneralImplementor()->setRequestExecutor(transport);
    std::vector<std::thread> callers;
    for (int i = 0; i < 8; ++i) {
        callers.emplace_back([this] {
            Error own;
            for (int k = 0; k < 25; ++k) {
                facade->getFirmwareVersion(own);
                facade->setDefaultGw(text("route-0"), text("wan-0"), own);
            }
        });
    }
    for (std::thread& caller : callers)
        caller.join();
    EXPECT_EQ(transport->mostAtOnce(), 1);
}

TEST_F(GeneralSettings, RunBesideAnotherFamily)
{
    build({{"WAN_VERSION", "1"}});
    const auto meeting = boost::make_shared<MeetingPoint>(2);
    cpe->getGeneralImplementor()->setRequestExecutor(meeting);
    cpe->getWanImplementor()->setRequestExecutor(meeting);
    std::thread other([this] {
        ParamMap result;
        cpe->getWanImplementor()->getWanInstances(result);
    });
    AspGeneralSettingsFacade(cpe).getFirmwareVersion(error);
    other.join();
    EXPECT_EQ(meeting->mostAtOnce(), 2);
}

} // namespace quorvel::test
