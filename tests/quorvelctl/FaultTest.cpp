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
    {"AGatewayThatIsGoneBehindTheLogin",
     "info",
     {"close on=webapp", "close on=probe"},
     4,
     "%1 doesn't answer any more"},
    {"AGatewayThatIsSilentBehindTheLogin",
     "info",
     {"hang on=webapp"},
     4,
     "%1 didn't answer in time"},
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
     "can't reset the gateway: the gateway reports error 6"}};

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlFault, testing::ValuesIn(cases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvelctl::test
