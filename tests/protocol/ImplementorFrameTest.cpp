#include "protocol/RequestCycleFixture.h"

namespace quorvel::test
{

namespace
{

using testing::_;
using testing::DoAll;
using testing::Return;
using testing::SaveArg;

using ImplementorFrame = RequestCycleTest;

} // namespace

TEST(NewImplementor, HasNoPartsYet)
{
    CpeSettingsImplementor implementor;
    EXPECT_EQ(implementor.getResponseParser(), nullptr);
    EXPECT_EQ(implementor.getRequestFormatter(), nullptr);
    EXPECT_EQ(implementor.getRequestExecutor(), nullptr);
    EXPECT_EQ(implementor.getAuthenticator(), nullptr);
    implementor.abortRequests();
}

TEST_F(ImplementorFrame, TakesNoLockToExecuteOrToAbort)
{
    const QMutexLocker locker(&implementor.mutex);
    expectRequest().WillOnce(replying(body(goodReply)));
    EXPECT_TRUE(execute());
    EXPECT_CALL(*transport, abortPendingRequests());
    implementor.abortRequests();
}

TEST_F(ImplementorFrame, HoldsItsLockForAWholeOperation)
{
    bool free = true;
    expectRequest().WillOnce([&](const ParamMap&, ParamMap& reply) {
        free = implementor.mutex.tryLock();
        reply = body(goodReply);
        return 0;
    });
    EXPECT_TRUE(implementor.run({wire::save()}, result));
    EXPECT_FALSE(free);
    EXPECT_TRUE(implementor.mutex.tryLock());
    implementor.mutex.unlock();
}

TEST_F(ImplementorFrame, ClearsTheQueueBeforeAnOperation)
{
    ParamMap params;
    expectRequest().WillOnce(DoAll(SaveArg<0>(&params), replying(body(goodReply))));
    implementor.queue({wire::get(text("stale-0"), text("k"))});
    EXPECT_TRUE(implementor.run({wire::get(text("wan-0"), text("type"))}, result));
    EXPECT_EQ(params.value(text("HTTP_PARAM_DATA_TO_SEND")),
              text("<xmlrequest version=\"1.0.1\">\n <get inst=\"wan-0\">\n"
                   "  <key>type</key>\n  <value></value>\n </get>\n</xmlrequest>\n"));
}

TEST_F(ImplementorFrame, SendsWhatIsQueuedAlready)
{
    ParamMap params;
    expectRequest().WillOnce(DoAll(SaveArg<0>(&params), Return(2)));
    implementor.queue({wire::save()});
    EXPECT_TRUE(implementor.sendQueue(result, true));
    EXPECT_EQ(params.value(text("HTTP_PARAM_DATA_TO_SEND")),
              text("<xmlrequest version=\"1.0.1\">\n <command inst=\"cfgmgr-0\">\n"
                   "  <key>save</key>\n  <value></value>\n </command>\n</xmlrequest>\n"));
}

} // namespace quorvel::test
