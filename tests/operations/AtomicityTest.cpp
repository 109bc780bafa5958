#include "operations/SimulatedHome.h"
#include "support/LogCapture.h"

#include <algorithm>
#include <array>
#include <map>

namespace quorvel::test
{

namespace
{

struct Write {
    std::string name;
    Operation operation;
};

/// The operations that ask the gateway something before they write, or make what they then use.
const std::array withTwoRequests{"AspGeneralSettingsFacade_factoryDefault",
                                 "AspWanSettingsFacade_addEntity",
                                 "AspWanSettingsFacade_deleteEntity"};

std::vector<Write> everyWrite()
{
    std::vector<Write> writes;
    for (const auto& [className, operations] : allWrites()) {
        for (const Operation& operation : operations) {
            std::string name = std::string(className) + "_" + operation.name;
            std::replace(name.begin(), name.end(), ' ', '_');
            writes.push_back({name, operation});
        }
    }
    return writes;
}

std::ostream& operator<<(std::ostream& out, const Write& write)
{
    return out << write.name;
}

/// Everything that a gateway holds: what it tells, what is in effect and what a restart would bring
/// back.
using Holding = std::map<std::string, std::string>;

Holding holdingOf(const SimulatedHome& home)
{
    Holding all;
    const auto add = [&](const char* copy, const simulator::Objects& objects) {
        for (const auto& [instance, values] : objects) {
            for (const auto& [key, value] : values) {
                const std::string name = instance + " " + key;
                all[copy + name] = value;
                all["effective " + name] = home.gateway.value(instance, key);
            }
        }
    };
    add("told ", home.gateway.configuredObjects());
    add("stored ", home.gateway.storedObjects());
    add("at first ", home.scenario.status);
    return all;
}

/// What differs, for people.
std::vector<std::string> difference(const Holding& before, const Holding& after)
{
    std::vector<std::string> lines;
    for (const auto& [name, value] : after) {
        const auto found = before.find(name);
        if (found == before.end() || found->second != value)
            lines.push_back(name + " is " + value);
    }
    for (const auto& [name, value] : before) {
        if (after.count(name) == 0)
            lines.push_back(name + " is gone");
    }
    return lines;
}

/// A write as the host sees it is one request: whatever strikes in its middle, the gateway holds
/// all of it or nothing. The few operations with two requests can be left between them.
class WriteAtomicity : public testing::TestWithParam<Write>
{
protected:
    void SetUp() override
    {
        begin();
        before = holdingOf(*home);
        while (writeUnder("error", requests)) {
            between.push_back(holdingOf(*home));
            ASSERT_LE(++requests, 2);
            begin();
        }
        after = holdingOf(*home);
        ASSERT_NE(after, before);
        const bool takesTwo =
            std::count(withTwoRequests.begin(), withTwoRequests.end(), GetParam().name) > 0;
        ASSERT_EQ(requests, takesTwo ? 2 : 1);
        begin();
    }

    /// A gateway on which nothing has happened yet.
    void begin() { home = std::make_unique<SimulatedHome>(); }

    /// Writes under a fault of one of the operation's requests; false if it has no such request.
    bool writeUnder(const std::string& fault, int request)
    {
        home->gateway.clearFaults();
        // Renews a session that has ended, so that the fault meets the write.
        home->asked->general.getFirmwareVersion(home->asked->error);
        EXPECT_EQ(home->asked->error, 0);
        home->gateway.clearExchanges();
        home->inject(fault + " after=" + std::to_string(request));
        GetParam().operation.run(*home->asked);
        return home->wasStruck();
    }

    /// Expects what a fault may leave, and goes on with a gateway as it was.
    void expectAllOrNothing(bool tookEffect)
    {
        const Holding now = holdingOf(*home);
        if (requests == 1) {
            EXPECT_EQ(difference(tookEffect ? after : before, now), nothing);
        } else {
            const bool known = std::count(between.begin(), between.end(), now) > 0;
            EXPECT_TRUE(now == before || now == after || known)
                << testing::PrintToString(difference(before, now));
        }
        if (now != before)
            begin();
    }

    /// The error is what the host goes by, unless the last of several requests went well.
    void expectError(int error)
    {
        if (requests == 1) {
            EXPECT_EQ(home->asked->error, error);
        }
    }

    /// Lets a kind of fault strike at each command of each request.
    void strikeEachCommand(const std::string& fault, int error)
    {
        for (int request = 0; request < requests; ++request) {
            int command = 1;
            while (writeUnder(fault + std::to_string(command), request)) {
                SCOPED_TRACE(fault + std::to_string(command));
                expectError(error);
                expectAllOrNothing(false);
                ++command;
            }
            EXPECT_GT(command, 1);
            begin();
        }
    }

    /// Loses the reply of each request in every way.
    void loseReplies(const std::string& option, bool takesEffect)
    {
        for (const char* fault : {"close", "reset:60", "truncate", "garbage", "http:500"}) {
            for (int request = 0; request < requests; ++request) {
                SCOPED_TRACE(fault);
                EXPECT_TRUE(writeUnder(fault + option, request));
                expectError(29);
                expectAllOrNothing(takesEffect);
            }
        }
    }

    LogCapture log;
    std::unique_ptr<SimulatedHome> home;
    int requests = 0;
    Holding before;
    /// What is left if one of the requests is refused.
    std::vector<Holding> between;
    Holding after;
    const std::vector<std::string> nothing;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Writes, WriteAtomicity, testing::ValuesIn(everyWrite()),
                         [](const auto& info) { return info.param.name; });

TEST_P(WriteAtomicity, HoldsWhicheverCommandIsRefused)
{
    strikeEachCommand("command-fails:", 11);
}

TEST_P(WriteAtomicity, HoldsWheneverThePowerIsCut)
{
    strikeEachCommand("power-cut:", 29);
}

TEST_P(WriteAtomicity, HoldsWhenTheReplyIsLostToAWriteThatWasMade)
{
    loseReplies("", true);
    // Only writes of radios meet this one.
    if (writeUnder("radio-restart", 0))
        expectError(29);
    expectAllOrNothing(true);
}

TEST_P(WriteAtomicity, HoldsWhenTheReplyIsLostToAWriteThatWasNotMade)
{
    loseReplies(" effect=no", false);
}

} // namespace quorvel::test
