#pragma once

#include "assembly/Cpe.h"
#include "support/LogCapture.h"
#include "support/Replies.h"
#include "support/ScriptedGateway.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// Parameters by name, without their common beginning: {"XML_VERSION", "1.0.1"}.
using Parameters = std::initializer_list<std::pair<const char*, const char*>>;

/// What recognition finds on a gateway with dialect 1.0.1 and all functions of the newest kind, but
/// for radios, which it has of both generations.
ParamMap newestParameters();

/// The Cpe that the builder makes for what recognition has found, with a session stored already:
/// "SID=1".
boost::shared_ptr<Cpe> builtCpe(const QString& address, const ParamMap& found);
/// The same for named parameters; general settings are always there.
boost::shared_ptr<Cpe> builtCpe(const QString& address, Parameters parameters);

/// A scripted gateway and the Cpe that is built for it. Its log lines are captured.
class BuiltGateway : public testing::Test
{
protected:
    void build(Parameters parameters);

    /// A gateway with newestParameters.
    void buildNewest();

    LogCapture log;
    ScriptedGateway gateway;
    boost::shared_ptr<Cpe> cpe;
};

} // namespace quorvel::test
