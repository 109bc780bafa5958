#include "ConnectionWrites.h"

#include <array>

namespace quorvel::simulator::tests
{

struct Write {
    const char* name;
    Lines lines;
    /// Whether the request keeps what it changes.
    bool saves = true;
};

std::ostream& operator<<(std::ostream& out, const Write& write)
{
    return out << write.name;
}

/// A write of a connection is one request: whatever strikes in its middle, what a restart would
/// bring back is all of it or nothing.
class ConnectionAtomicityTest : public SimulatedGateway, public testing::WithParamInterface<Write>
{
protected:
    void SetUp() override
    {
        SimulatedGateway::SetUp();
        gateway.setRebootTime(std::chrono::milliseconds(0));
        prepare();
    }

    // A gateway as it was made, with an object for those that add it.
    void prepare()
    {
        cookie = logIn();
        ASSERT_EQ(errorOf({"command devmgr-0 create_inst vpn", "command cfgmgr-0 save"}), 0);
        before = gateway.storedObjects();
    }

    // The request under a fault that strikes once.
    // Returns the error in the reply, -1 if none came.
    int writeUnder(const std::string& text)
    {
        const auto fault = Fault::fromText(text + " 1 on=webapp");
        EXPECT_TRUE(fault) << text;
        gateway.setFault(*fault);
        RawClient client(gateway.port());
        client.send(post("/cgi-bin/webapp", xml(dialect, GetParam().lines), cookie));
        client.readReply();
        return errorIn(client.body());
    }

    void expectUnchangedUnder(const std::string& fault, int error)
    {
        SCOPED_TRACE(fault);
        EXPECT_EQ(writeUnder(fault), error);
        EXPECT_EQ(gateway.storedObjects(), before);
        cookie = logIn();
        EXPECT_EQ(errorOf({"get conn-0 hostname"}), 0);
    }

    static constexpr std::array lostReplies{"close", "reset:60", "truncate", "garbage", "empty"};
    Objects before;
};

INSTANTIATE_TEST_SUITE_P(
    Writes, ConnectionAtomicityTest,
    testing::Values(Write{"PppoeOverDsl", pppoeOverDsl()}, Write{"StaticOverDsl", staticOverDsl()},
                    Write{"PppoeOverEthernet", pppoeOverEthernet()},
                    Write{"StaticOverEthernet", staticOverEthernet()},
                    Write{"VpnOverEthernet", tunnelOverEthernet("vpn", "vpn-0")},
                    Write{"L2tpOverEthernet", tunnelOverEthernet("l2tp", "l2tp-0")},
                    Write{"DhcpOverEthernet", overEthernet("dhcp")},
                    Write{"DefaultGateway", defaultGateway("wan-0")},
                    Write{"AddedEntity", addedEntity("wan-1", "vpn", "vpn-1")},
                    Write{"DeletedEntity", deletedEntity("wan-1", "vpn", "vpn-0")},
                    Write{"Switch", switchToDsl(), false},
                    Write{"ModemSettings", modemSettings("1234", "")}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_P(ConnectionAtomicityTest, ACommandThatFailsLeavesTheOldState)
{
    for (std::size_t number = 1; number <= GetParam().lines.size(); ++number)
        expectUnchangedUnder("command-fails:" + std::to_string(number), 11);
}

TEST_P(ConnectionAtomicityTest, APowerCutLeavesTheOldState)
{
    for (std::size_t number = 1; number <= GetParam().lines.size(); ++number)
        expectUnchangedUnder("power-cut:" + std::to_string(number), -1);
}

TEST_P(ConnectionAtomicityTest, ALostReplyWithoutEffectLeavesTheOldState)
{
    for (const char* fault : lostReplies)
        expectUnchangedUnder(fault + std::string(" effect=no"), -1);
}

TEST_P(ConnectionAtomicityTest, ALostReplyWithEffectLeavesTheNewState)
{
    ASSERT_EQ(errorOf(GetParam().lines), 0);
    const Objects after = gateway.storedObjects();
    EXPECT_EQ(after != before, GetParam().saves);
    for (const char* fault : lostReplies) {
        SCOPED_TRACE(fault);
        ASSERT_EQ(errorOf({"command cfgmgr-0 factory_default"}), 0);
        prepare();
        writeUnder(fault);
        EXPECT_EQ(gateway.storedObjects(), after);
    }
}

} // namespace quorvel::simulator::tests
