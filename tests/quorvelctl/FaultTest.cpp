#include "QuorvelctlRun.h"

namespace quorvelctl::test
{

namespace
{

struct Case {
    const char* name;
    const char* arguments;
    std::vector<const char*> faults;
    int status;
    /// After "quorvelctl: "; %1 stands for the address.
    const char* complaint;
};

class QuorvelctlFault : public QuorvelctlTest, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(QuorvelctlFault, IsToldAndNeverTakenForSuccess)
{
    for (const char* fault : GetParam().faults)
        spoil(fault);
    const Outcome result = run(GetParam().arguments);
    EXPECT_EQ(result.status, GetParam().status);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "quorvelctl: " +
                  QString::fromUtf8(GetParam().complaint)
                      .replace(QStringLiteral("%1"), QString::fromStdString(simulator.address()))
                      .toStdString() +
                  "\n");
}

const Case cases[] = {
    {"TheGatewaysErrorCode",
     "warranty show",
     {"error:7 key=name"},
     1,
     "can't read the warranty record: the gateway reports error 7"},
    {"AWriteThatTheGatewayRefuses",
     "warranty set --name Ada",
     {"error:9 key=name after=1"},
     1,
     "can't write the warranty record: the gateway reports error 9"},
    {"AReplyThatCanNotBeRead",
     "warranty show --json",
     {"html key=name"},
     1,
     "can't read the warranty record: the gateway's reply can't be read"},
    {"ARequestThatGotLost",
     "warranty show",
     {"close key=name"},
     4,
     "can't read the warranty record: the request failed on the way"},
    {"NoAnswerInTime",
     "warranty show",
     {"hang key=name"},
     4,
     "can't read the warranty record: the gateway didn't answer in time"},
    {"ALoginThatIsRefusedMeanwhile",
     "warranty show",
     {"session-expired 1 key=name", "html on=login after=1"},
     3,
     "can't read the warranty record: the login was refused"},
    // The library reports no error then, and an empty record.
    {"ALoginThatGetsLostMeanwhile",
     "warranty show --json",
     {"session-expired 1 key=name", "close on=login after=1 effect=no"},
     4,
     "can't read the warranty record: the login got no answer"},
    {"ALoginThatGetsLostAtFirst", "info", {"close on=login"}, 4, "%1 can't be reached"},
    {"SomethingThatIsNoGateway",
     "info",
     {"html on=webapp"},
     1,
     "%1 answers, but not as a gateway does"},
    {"AProbeWithAnError", "probe", {"http:500 on=probe"}, 4, "%1 doesn't answer"},
    {"ARestartThatDidNotArrive",
     "reboot --yes",
     {"close key=reboot effect=no"},
     4,
     "can't restart the gateway: the request failed on the way"},
    {"AResetThatTheGatewayRefuses",
     "factory-reset --yes",
     {"error:6 key=factory_default"},
     1,
     "can't reset the gateway: the gateway reports error 6"},
    {"ALostListOfLines",
     "phone accounts",
     {"close key=AllLineList"},
     1,
     "can't read the accounts: the gateway tells of no lines"},
    // The gains that follow hide the error.
    {"ARefusedStateOfTheLines",
     "phone accounts",
     {"error:7 key=status"},
     1,
     "can't read the accounts: the gateway tells of no lines"},
    {"LostGains",
     "phone gains --line-range 0:12",
     {"close key=VoiceService.VoiceProfile.Line[2].VoiceProcessing.TransmitGain"},
     1,
     "can't read the gains: the gateway tells of none, or their range isn't given"},
    {"GainsOfALineThatIsNotThere", "phone gains 7 --line-range 0:12", {}, 1, "%1 has no line 7"},
    {"AnAccountThatTheGatewayRefuses",
     "phone set 0 --login ada",
     {"error:9 key=apply"},
     1,
     "can't write the account: the gateway reports error 9"},
    {"AnAccountOfALineThatIsNotThere", "phone set 7 --login ada", {}, 1, "%1 has no line 7"},
    {"AnAccountOfTheAnaloguePort", "phone set 2 --login ada", {}, 1, "%1 has no line 2"},
    {"GainsThatGotLost",
     "phone gains 0 --transmit 50 --line-range 0:12",
     {"close key=apply effect=no"},
     4,
     "can't write the gains: the request failed on the way"},
    {"AnUnreadableNumberOfCalls",
     "phone history --line 0",
     {"html key=loglength:0"},
     1,
     "can't read the calls of line 0: the gateway's reply can't be read"},
    // The library leaves such a page out.
    {"ALostPageOfCalls",
     "phone history --line 0",
     {"close key=callhistory:20:39:0"},
     4,
     "can't read the calls of line 0: the request failed on the way"},
    {"ARefusedPageOfCalls",
     "phone history --csv --kind 1",
     {"error:7 key=callhistory:0:19:0"},
     1,
     "can't read the calls of line 0: the gateway reports error 7"},
    {"ALoginThatGetsLostBetweenPagesOfCalls",
     "phone history --line 0 --json",
     {"session-expired 1 key=callhistory:20:39:0", "close 1 on=login after=1 effect=no"},
     4,
     "can't read the calls of line 0: the login got no answer"},
    {"AListOfDevicesThatGotLost",
     "usb devices",
     {"close key=device_list"},
     4,
     "can't list the USB devices: the request failed on the way"},
    {"AStateOfTheUsbPortThatIsRefused",
     "usb status --json",
     {"error:7 key=device_list"},
     1,
     "can't read the state of the USB port: the gateway reports error 7"},
    {"MountingADiskThatIsNotThere",
     "usb mount 9",
     {},
     1,
     "can't mount disk 9: the gateway reports error 9"},
    {"MountingThatIsConfirmedAndNotDone",
     "usb mount 3",
     {"error:0 key=disk_mount"},
     1,
     "can't mount disk 3: the gateway didn't do it"},
    {"UnmountingThatIsConfirmedAndNotDone",
     "usb unmount 1",
     {"error:0 key=disk_unmount"},
     1,
     "can't unmount disk 1: the gateway didn't do it"},
    {"SharingThatTheGatewayRefuses",
     "usb sharing --hostname attic",
     {"error:9 key=apply"},
     1,
     "can't write the sharing settings: the gateway reports error 9"},
    // An unreadable reply counts as success there.
    {"SharingThatDidNotArrive",
     "usb sharing --hostname attic",
     {"html key=apply effect=no"},
     1,
     "can't write the sharing settings: the gateway didn't do it"},
    {"SharingWithoutAPlaceForIt",
     "usb sharing --hostname attic",
     {"error:0 key=inst_list"},
     1,
     "can't write the sharing settings: the gateway doesn't tell where"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlFault, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvelctl::test
