#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

namespace
{

struct Case {
    const char* name;
    const char* arguments;
    const char* complaint;
};

class QuorvelctlUsage : public QuorvelctlTest, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(QuorvelctlUsage, IsComplainedOfBeforeAnythingIsSent)
{
    const Outcome result = run(GetParam().arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, testing::HasSubstr(GetParam().complaint));
    EXPECT_EQ(simulator.requestCount(), 0u);
}

const Case cases[] = {
    {"AnAccountWithoutAChange", "phone set 0", "quorvelctl: name at least one thing to change\n"},
    {"AnAccountOfNoLine", "phone set --login ada", "line is required"},
    {"AWholeAddressForItsUser", "phone set 0 --sip-user SIP:1@example.net",
     "quorvelctl: the SIP user is what stands before the @ of the address\n"},
    {"AnEmptySipUser", "phone set 0 --sip-user ''", "quorvelctl: the SIP user is empty\n"},
    {"ALineBothOnAndOff", "phone set 0 --enable --disable", "excludes"},
    {"GainsOfTheAnaloguePort", "phone gains 2 --receive 5 --line-range 0:12",
     "quorvelctl: gains can be changed of lines 0 and 1 only\n"},
    {"GainsOfNoLine", "phone gains --receive 5 --line-range 0:12",
     "quorvelctl: gains can be changed of lines 0 and 1 only\n"},
    {"GainsOver100", "phone gains 0 --receive 101 --line-range 0:12",
     "a gain is a number from 0 to 100, and not 101"},
    // The library reads decimal numbers only, and would write 131 for the last.
    {"AHexadecimalGain", "phone gains 0 --transmit 0x32 --line-range 0:12", "and not 0x32"},
    {"AnOctalGain", "phone gains 0 --transmit 0131 --line-range 0:12", "and not 0131"},
    {"AnEmptyGain", "phone gains 0 --transmit '' --line-range 0:12",
     "a gain is a number from 0 to 100, and not "},
    {"GainsWithoutARange", "phone gains",
     "quorvelctl: no range in which the gateway stores gains: give --line-range or "
     "--port-range\n"},
    {"AGainToBeWrittenWithoutItsRange", "phone gains 0 --transmit 50 --port-range 0:12",
     "quorvelctl: no range in which the gateway stores gains: give --line-range\n"},
    {"ARangeOfWords", "phone gains --line-range low:high",
     "a gain range is two numbers, as -10:10, and not low:high"},
    {"ARangeWithoutExtent", "phone gains --port-range 5:5",
     "a gain range goes from the lower number to the higher, and not 5:5"},
    {"CallsAsCsvAndJson", "phone history --csv --json", "quorvelctl: --csv excludes --json\n"},
    {"CallsOfALineBelowZero", "phone history --line -1", "-1"},
    {"MountingWithoutADisk", "usb mount", "disk is required"},
    {"AnEntityOfAnEmptyType", "wan add-entity wan-1 ''", "quorvelctl: the type is empty\n"},
    {"DeletingAnEntityOfAnEmptyType", "wan delete-entity wan-1 ''",
     "quorvelctl: the type is empty\n"},
    {"AnEmptyInterface", "wan add-iface wan-1 ''", "quorvelctl: the iface is empty\n"},
    {"TakingAnEmptyInterface", "wan delete-iface wan-1 ''", "quorvelctl: the iface is empty\n"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlUsage, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvelctl::test
