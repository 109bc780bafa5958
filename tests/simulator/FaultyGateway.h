#pragma once

#include "SimulatedGateway.h"

#include <memory>

namespace quorvel::simulator::tests
{

/// A gateway under faults, and a write to try them on.
class FaultyGateway : public SimulatedGateway
{
protected:
    static constexpr const char* write =
        "<xmlrequest version=\"1.0.1\">"
        "<command inst=\"cfgmgr-0\"><key>begin_transaction</key><value>conn-0</value></command>"
        "<set inst=\"conn-0\"><key>hostname</key><value>attic</value></set>"
        "<command inst=\"cfgmgr-0\"><key>commit</key><value>conn-0</value></command>"
        "<command inst=\"cfgmgr-0\"><key>end_transaction</key><value>conn-0</value></command>"
        "<command inst=\"cfgmgr-0\"><key>save</key><value></value></command>"
        "<command inst=\"conn-0\"><key>apply</key><value></value></command>"
        "</xmlrequest>";

    void inject(const std::string& text)
    {
        std::string error;
        const auto fault = Fault::fromText(text, &error);
        ASSERT_TRUE(fault) << error;
        gateway.setFault(*fault);
    }

    // The write under a fault; what came back, to the end of the connection or of the reply.
    std::unique_ptr<RawClient> writeUnder(const std::string& fault)
    {
        inject(fault);
        auto client = std::make_unique<RawClient>(gateway.port());
        client->send(post("/cgi-bin/webapp", write, cookie));
        client->readReply();
        return client;
    }

    void expectHealthy()
    {
        gateway.clearFaults();
        EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    }

    bool isWritten() const { return gateway.storedValue("conn-0", "hostname") == "attic"; }
};

} // namespace quorvel::simulator::tests
