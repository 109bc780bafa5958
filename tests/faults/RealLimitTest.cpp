#include "faults/FaultRow.h"

#include <quorvel/AspGeneralSettingsFacade.h>

#include "general/GeneralSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "support/BuiltGateway.h"
#include "support/DeafPort.h"
#include "support/Resources.h"
#include "support/Text.h"

#include <QElapsedTimer>
#include <thread>

namespace quorvel::test
{

namespace
{

/// A read that waits for as long as an exchange may take.
struct LongWait {
    const char* name;
    Misbehaviour way;
    int error;
    int fewestMs = 19990;
    bool logsInFirst = false;
};

void expectOutcome(const LongWait& wait)
{
    SCOPED_TRACE(wait.name);
    Opponent opponent(wait.way);
    const auto cpe = builtCpe(opponent.address(), {{"XML_VERSION", "1.0.1"}});
    AspGeneralSettingsFacade facade(cpe);
    AspWebAppErrorCodes error = AspWebAppNoError;
    opponent.behave();
    EXPECT_EQ(facade.getFirmwareVersion(error), text("1.2"));
    if (wait.logsInFirst)
        AspCpeSessionStorage::getInstance()->removeSession(opponent.address());

    opponent.misbehave();
    QElapsedTimer clock;
    clock.start();
    const QString version = facade.getFirmwareVersion(error);
    EXPECT_GE(clock.elapsed(), wait.fewestMs);
    EXPECT_LT(clock.elapsed(), 26000);
    EXPECT_EQ(error, wait.error);
    EXPECT_EQ(version, wait.fewestMs < 19990 ? text("1.2") : QString());

    opponent.behave();
    AspCpeSessionStorage::getInstance()->setSession(opponent.address(), text("SID=1"));
    EXPECT_EQ(facade.getFirmwareVersion(error), text("1.2"));
    EXPECT_EQ(error, 0);
}

/// Reads the request and answers it after so long, with another version if that is too late.
Misbehaviour answeringAfter(int milliseconds, const char* version)
{
    return playing([=](ScriptedGateway& gateway) {
        gateway.answer([=](const ReceivedRequest&, GatewayConnection& peer) {
            peer.pause(milliseconds);
            peer.send(httpReply(reply101({{"sysmgr-0", "fwversion", version}}).toUtf8()));
        });
    });
}

std::vector<LongWait> waits()
{
    const Misbehaviour unread = playing([](ScriptedGateway& gateway) { gateway.holdUnread(); });
    return {{"NoAnswer", injected("hang"), 28},
            {"NeverReads", unread, 28},
            {"BodyTooShortAndHeld", holding(withHeaders("Content-Length: 1000\r\n")), 28},
            {"DripsForEver", dripping(withHeaders("", QByteArray(100000, 'x')), 100), 28},
            {"AnswersOneSecondBefore", answeringAfter(19000, "1.2"), 0, 18990},
            {"AnswersOneSecondAfter", answeringAfter(21000, "late"), 28},
            {"LoginHangs", holding(""), 0, 19990, true}};
}

/// Nobody accepts, and then the same object is pointed at a gateway.
void expectTimeOutOfTheConnect()
{
    DeafPort port;
    port.fillBacklog();
    ScriptedGateway gateway;
    const auto cpe = builtCpe(port.address(), {{"XML_VERSION", "1.0.1"}});
    AspGeneralSettingsFacade facade(cpe);
    AspWebAppErrorCodes error = AspWebAppNoError;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(facade.getFirmwareVersion(error), QString());
    EXPECT_EQ(error, 28);
    EXPECT_GE(clock.elapsed(), 19990);
    EXPECT_LT(clock.elapsed(), 26000);
    gateway.logIn().sendRaw(httpReply(goodBody()));
    cpe->getGeneralImplementor()->getAuthenticator()->setCpeAddress(gateway.address());
    EXPECT_EQ(facade.getFirmwareVersion(error), text("1.2"));
}

} // namespace

// All at the same time, since each takes the 20 seconds that an exchange may take.
TEST(RealLimit, EndsEveryWait)
{
    { // What is opened once and for all is open behind this.
        ScriptedGateway gateway;
        const auto cpe = builtCpe(gateway.address(), {{"XML_VERSION", "1.0.1"}});
        gateway.sendRaw(httpReply(goodBody()));
        AspWebAppErrorCodes error = AspWebAppNoError;
        AspGeneralSettingsFacade(cpe).getFirmwareVersion(error);
    }
    const Resources before;
    std::vector<std::thread> threads;
    for (const LongWait& wait : waits())
        threads.emplace_back([wait] { expectOutcome(wait); });
    threads.emplace_back(expectTimeOutOfTheConnect);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_TRUE(before.areBack());
}

} // namespace quorvel::test
