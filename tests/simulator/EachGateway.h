#pragma once

#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

/// A gateway of either kind.
class EachGateway : public SimulatedGateway, public testing::WithParamInterface<const char*>
{
protected:
    EachGateway() : SimulatedGateway(GetParam()) {}
};

/// Names a test by the gateway that it runs against.
inline std::string scenarioName(const testing::TestParamInfo<const char*>& info)
{
    return info.param;
}

} // namespace quorvel::simulator::tests
