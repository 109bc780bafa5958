#include "general/AspGeneralSettingsImplV1.h"
#include "protocol/AspCpeAuthenticatorV1.h"
#include "protocol/AspRequestFormatterV2.h"
#include "protocol/AspResponseParserV2.h"
#include "protocol/Exchanges.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <boost/make_shared.hpp>
#include <thread>

namespace quorvel::test
{

namespace
{

const char complaint[] = "HTTP_REQUEST_EXECUTOR: ERROR "
                         "HttpRequestExecutor: A QCoreApplication is needed for requests";

} // namespace

TEST(WithoutApplication, ARequestFailsWithAnErrorLineAndReachesNobody)
{
    LogCapture log;
    ScriptedGateway gateway;
    HttpRequestExecutor executor;
    ParamMap result{{text("old"), text("1")}};
    EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 1);
    EXPECT_EQ(executor.execute(requestTo(gateway.address()), result), 1);
    EXPECT_EQ(log.lines(), lines({complaint, complaint}));
    EXPECT_EQ(entries(result), lines({"old=1"}));
    EXPECT_EQ(gateway.connections(), 0);
}

TEST(WithoutApplication, ARequestOfAnotherThreadFailsToo)
{
    LogCapture log;
    ScriptedGateway gateway;
    std::thread([&] {
        ParamMap result;
        EXPECT_EQ(HttpRequestExecutor().execute(requestTo(gateway.address()), result), 1);
    }).join();
    EXPECT_EQ(log.lines(), lines({complaint}));
    EXPECT_EQ(gateway.connections(), 0);
}

TEST(WithoutApplication, ParametersAreStillCheckedFirst)
{
    LogCapture log;
    ParamMap result;
    EXPECT_EQ(HttpRequestExecutor().execute(ParamMap(), result), 3);
    EXPECT_EQ(log.lines(), lines({"HTTP_REQUEST_EXECUTOR: ERROR HttpRequestExecutor:"
                                  "You have to declare parameter HTTP_PARAM_URL"}));
}

TEST(WithoutApplication, AnOperationTellsTheFailedLogin)
{
    LogCapture log;
    AspGeneralSettingsImplV1 implementor;
    const auto authenticator = boost::make_shared<AspCpeAuthenticatorV1>();
    authenticator->setCpeAddress(text("192.0.2.1"));
    implementor.setAuthenticator(authenticator);
    implementor.setRequestExecutor(boost::make_shared<HttpRequestExecutor>());
    implementor.setRequestFormatter(boost::make_shared<AspRequestFormatterV2>());
    implementor.setResponseParser(boost::make_shared<AspResponseParserV2>());
    ParamMap result;
    EXPECT_FALSE(implementor.getFirmwareVersion(result));
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3"}));
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", complaint,
                                  "WARN Log in request timed out or failed."}));
}

TEST(WithoutApplication, AbortingAndDestroyingAnExecutorIsHarmless)
{
    HttpRequestExecutor executor;
    executor.abortPendingRequests();
    EXPECT_EQ(QCoreApplication::instance(), nullptr);
}

} // namespace quorvel::test
