#pragma once

#include "assembly/Cpe.h"
#include "support/LogCapture.h"
#include "support/Replies.h"
#include "support/ScriptedGateway.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// What recognition finds on a gateway with dialect 1.0.1 and all functions of the newest kind, but
/// for radios, which it has of both generations.
ParamMap newestParameters();

/// The Cpe that the builder makes for what recognition has found.
boost::shared_ptr<Cpe> builtCpe(const ParamMap& parameters, const QString& address);

/// A scripted gateway and the Cpe that the builder makes for it from given parameters, without
/// recognition and with a session stored already: "SID=1". Its log lines are captured.
class BuiltGateway : public testing::Test
{
protected:
    /// Parameters by name, without their common beginning: {"XML_VERSION", "1.0.1"}. General
    /// settings are always there.
    void build(std::initializer_list<std::pair<const char*, const char*>> parameters);

    /// A gateway with newestParameters.
    void buildNewest();

    LogCapture log;
    ScriptedGateway gateway;
    boost::shared_ptr<Cpe> cpe;

private:
    void takeCpe(const ParamMap& parameters);
};

} // namespace quorvel::test
