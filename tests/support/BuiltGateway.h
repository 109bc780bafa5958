#pragma once

#include "assembly/Cpe.h"
#include "support/LogCapture.h"
#include "support/Replies.h"
#include "support/ScriptedGateway.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// The Cpe that the builder makes for a gateway of given parameters, without recognition and with
/// a session stored already: "SID=1". Parameters by name, without their common beginning:
/// {"XML_VERSION", "1.0.1"}. General settings are always there.
boost::shared_ptr<Cpe> builtCpe(
    const QString& address, std::initializer_list<std::pair<const char*, const char*>> parameters);

/// A scripted gateway and the Cpe that is built for it. Its log lines are captured.
class BuiltGateway : public testing::Test
{
protected:
    void build(std::initializer_list<std::pair<const char*, const char*>> parameters);

    /// A gateway with dialect 1.0.1 and all functions of the newest kind, but for radios, which it
    /// has of both generations.
    void buildNewest();

    LogCapture log;
    ScriptedGateway gateway;
    boost::shared_ptr<Cpe> cpe;
};

} // namespace quorvel::test
