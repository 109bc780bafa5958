#pragma once

#include "protocol/RequestExecutor.h"
#include "support/Text.h"

#include <deque>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// A transport whose outcomes are set beforehand, for those that a gateway can't be made to give at
/// once.
class ProgrammedExecutor : public RequestExecutor
{
public:
    struct Outcome {
        int status;
        QString body; ///< of the reply, with status 0
    };

    explicit ProgrammedExecutor(std::deque<Outcome> outcomes) : outcomes(std::move(outcomes)) {}
    ~ProgrammedExecutor() override
    {
        EXPECT_TRUE(outcomes.empty()) << "outcomes were not asked for";
    }

    int execute(const ParamMap&, ParamMap& result) override
    {
        if (outcomes.empty()) {
            ADD_FAILURE() << "more requests than outcomes";
            return RequestNetworkFailure;
        }
        const Outcome outcome = outcomes.front();
        outcomes.pop_front();
        if (outcome.status == RequestSucceeded)
            result = {{text("REQUEST_EXEC_PARAM_RESULT"), outcome.body}};
        return outcome.status;
    }
    void abortPendingRequests() override {}

private:
    std::deque<Outcome> outcomes;
};

} // namespace quorvel::test
