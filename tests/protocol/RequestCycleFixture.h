#pragma once

#include "protocol/AspCpeSessionStorage.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV2.h"
#include "protocol/CpeSettingsImplementor.h"
#include "protocol/Exchanges.h"
#include "support/LogCapture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

/// Logs in as the test says, and stores a session if that is to succeed.
class MockAuthenticator : public AuthenticationSettingsImplementor
{
public:
    MOCK_METHOD(int, login, (boost::shared_ptr<RequestExecutor> executor), (override));
    MOCK_METHOD(bool, logout, (boost::shared_ptr<RequestExecutor> executor), (override));
};

class Implementor : public CpeSettingsImplementor
{
public:
    using CpeSettingsImplementor::mutex;
    using CpeSettingsImplementor::queue;
    using CpeSettingsImplementor::run;
    using CpeSettingsImplementor::send;
    using CpeSettingsImplementor::sendQueue;
};

/// An implementor of the gateway 192.0.2.1, whose transport and login the test decides.
class RequestCycleTest : public testing::Test
{
protected:
    RequestCycleTest()
    {
        authenticator->setCpeAddress(text("192.0.2.1"));
        implementor.setAuthenticator(authenticator);
        implementor.setRequestExecutor(transport);
        implementor.setRequestFormatter(boost::make_shared<AspRequestFormatterV2>());
        implementor.setResponseParser(boost::make_shared<AspResponseParserV2>());
        storeSession("SID=1");
    }

    void storeSession(const char* session)
    {
        AspCpeSessionStorage::getInstance()->setSession(text("192.0.2.1"), text(session));
    }

    static ParamMap body(const char* reply)
    {
        return {{text("REQUEST_EXEC_PARAM_RESULT"), text(reply)}};
    }

    auto& expectRequest()
    {
        return EXPECT_CALL(*transport, execute(testing::_, testing::IsEmpty()));
    }

    /// A login that stores this session.
    void expectLogin(const char* session)
    {
        EXPECT_CALL(*authenticator, login(testing::_)).WillOnce([this, session](auto executor) {
            EXPECT_EQ(executor.get(), transport.get());
            storeSession(session);
            return 0;
        });
    }

    bool execute(bool expectNoReply = false)
    {
        return implementor.executeRequest(text("<xmlrequest/>"), result, expectNoReply);
    }

    const boost::shared_ptr<MockExecutor> transport = boost::make_shared<MockExecutor>();
    const boost::shared_ptr<MockAuthenticator> authenticator =
        boost::make_shared<MockAuthenticator>();
    Implementor implementor;
    ParamMap result;
    LogCapture log;
};

inline const char goodReply[] =
    "<response version=\"1.0.1\"><a><key>k</key><value>v</value></a></response>";

} // namespace quorvel::test
