#pragma once

#include "QuorvelctlRun.h"

namespace quorvelctl::test
{

/// A gateway whose connections are written.
class QuorvelctlInternetWrite : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;

    Outcome runWith(const std::string& variable, const std::string& secret,
                    const std::string& arguments) const
    {
        return runQuorvelctl(arguments, {simulator.address(), "admin", {}, {{variable, secret}}});
    }

    /// Whether anything was written to the gateway.
    bool wasWrittenTo() const
    {
        for (const auto& exchange : simulator.exchanges()) {
            if (exchange.requestBody.find("<set ") != std::string::npos)
                return true;
        }
        return false;
    }
};

} // namespace quorvelctl::test
