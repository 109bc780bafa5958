#pragma once

#include <quorvel/ParamMap.h>

#include "protocol/RequestExecutor.h"
#include "support/ScriptedGateway.h"
#include "support/Text.h"

#include <QRegularExpression>
#include <gmock/gmock.h>

namespace quorvel::test
{

/// What an executor is given for one request; the keys are written out.
inline ParamMap requestTo(const QString& address, const QString& body = text("<xmlrequest/>"))
{
    return {{text("HTTP_PARAM_URL"), address},
            {text("HTTP_PARAM_METHOD"), text("HTTP_PARAM_METHOD_POST")},
            {text("HTTP_PARAM_PATH"), text("/cgi-bin/webapp")},
            {text("HTTP_PARAM_DATA_TO_SEND"), body}};
}

inline QString bodyOf(const ParamMap& reply)
{
    return reply.value(text("REQUEST_EXEC_PARAM_RESULT"));
}

/// Every byte of a request, for a golden transcript; but Qt names the machine's language in it.
inline QString rawText(const ReceivedRequest& request)
{
    return QString::fromUtf8(request.raw)
        .replace(QRegularExpression(text("(?<=Accept-Language: )[^\r]*")), text("*"));
}

/// A transport whose outcome the test decides.
class MockExecutor : public RequestExecutor
{
public:
    MOCK_METHOD(int, execute, (const ParamMap& params, ParamMap& result), (override));
    MOCK_METHOD(void, abortPendingRequests, (), (override));
};

/// Lets MockExecutor::execute answer with status 0 and these entries.
inline auto replying(const ParamMap& reply)
{
    return testing::DoAll(testing::SetArgReferee<1>(reply), testing::Return(0));
}

} // namespace quorvel::test
