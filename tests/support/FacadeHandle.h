#pragma once

#include <quorvel/AspCpeFacadeObject.h>

#include "support/LogCapture.h"
#include "support/Replies.h"
#include "support/ScriptedGateway.h"
#include "support/Text.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace quorvel::test
{

/// The host's handle on a gateway that is recognised over the wire, and one family's getter of it.
template <typename Facade>
class FacadeHandle : public testing::Test
{
protected:
    using Getter = boost::shared_ptr<Facade> (AspCpeFacadeObject::*)(int* result);

    /// Scripts the recognition of a gateway with dialect 1.0.0 and this manager.
    void scriptRecognition(const char* manager)
    {
        gateway.logIn().reply(
            reply100({{"devmgr-0", "mngr0", "devmgr"}, {"devmgr-0", "mngr1", manager}}));
    }

    void expectNoneOfGatewayWithoutFamily(Getter getter, const char* line)
    {
        scriptRecognition("dsl");
        EXPECT_FALSE((object.*getter)(&result));
        EXPECT_EQ(result, 0);
        EXPECT_EQ(log.lines().last(), text(line));
        EXPECT_FALSE((object.*getter)(nullptr));
    }

    void expectNoneOfGatewayThatRefusesLogin(Getter getter, const char* line)
    {
        gateway.refuseLogin().refuseLogin();
        EXPECT_FALSE((object.*getter)(&result));
        EXPECT_EQ(result, -1);
        EXPECT_FALSE(log.lines().contains(text(line)));
    }

    LogCapture log;
    ScriptedGateway gateway;
    AspCpeFacadeObject object{{text("admin"), text("secret"), gateway.address()}};
    int result = 77;
};

} // namespace quorvel::test
