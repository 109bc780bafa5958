#include "support/RequestCases.h"
#include "voice/AspVoipImplementorV1.h"

namespace quorvel::test
{

namespace
{

using I = VoipSettingsImplementor;
using Case = RequestCase<I>;

const QString voice = text("voice-1");

AspVoipCallHistoryFilter page(int line, int first, int last)
{
    return {line, 3, 20, first, last};
}

class NewerVoiceRequest : public BuiltGateway, public testing::WithParamInterface<Case>
{
};

class OlderVoiceRequest : public BuiltGateway, public testing::WithParamInterface<Case>
{
};

class OlderVoiceSilence : public BuiltGateway, public testing::WithParamInterface<Case>
{
};

/// The older generation with its lock within reach.
class LockableVoice : public AspVoipImplementorV1
{
public:
    using CpeSettingsImplementor::mutex;
};

const Case silentOperations[] = {
    {"getLineList", [](I& i, ParamMap& r) { return i.getLineList(voice, r); }},
    {"getGainSettings", [](I& i, ParamMap& r) { return i.getGainSettings(voice, r); }},
    {"setGainSettings",
     [](I& i, ParamMap& r) {
         return i.setGainSettings(voice,
                                  {{text("voice-1.0.VoiceProcessing.TransmitGain"), text("5")}}, r);
     }},
    {"getVoipCallHistory",
     [](I& i, ParamMap& r) { return i.getVoipCallHistory(page(0, 0, 19), voice, r); }},
    {"getCallEntriesCount",
     [](I& i, ParamMap& r) { return i.getCallEntriesCount(text("0"), voice, r); }}};

} // namespace

TEST_P(NewerVoiceRequest, PutsItsCommandsOnTheWire)
{
    build({{"XML_VERSION", "1.0.1"}, {"VOIP_VERSION", "2"}});
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(*cpe->getVoipImplementor(), result));
    EXPECT_TRUE(matchesGolden(text("voice/") + text(GetParam().name), transcript(gateway)));
    EXPECT_EQ(entries(result), lines({"response=1.0.1", "webapp.error=0"}));
}

INSTANTIATE_TEST_SUITE_P(
    AllOperations, NewerVoiceRequest,
    testing::Values(
        Case{"getLineList", [](I& i, ParamMap& r) { return i.getLineList(voice, r); }},
        Case{"getGainSettings", [](I& i, ParamMap& r) { return i.getGainSettings(voice, r); }},
        Case{"getVoipCallHistoryFirstPage",
             [](I& i, ParamMap& r) { return i.getVoipCallHistory(page(1, 0, 19), voice, r); }},
        Case{"getVoipCallHistorySecondPage",
             [](I& i, ParamMap& r) { return i.getVoipCallHistory(page(0, 20, 39), voice, r); }},
        Case{"getCallEntriesCount",
             [](I& i, ParamMap& r) { return i.getCallEntriesCount(text("1"), voice, r); }},
        Case{"getVoipAccounts", [](I& i, ParamMap& r) { return i.getVoipAccounts(voice, r); }},
        Case{"setGainSettings",
             [](I& i, ParamMap& r) {
                 return i.setGainSettings(
                     voice,
                     {{text("voice-1.0.VoiceProcessing.TransmitGain"), text("1")},
                      {text("voice-1.0.VoiceProcessing.ReceiveGain"), text("-2")},
                      {text("voice-1.1.VoiceProcessing.TransmitGain"), text("3")},
                      {text("voice-1.1.VoiceProcessing.ReceiveGain"), text("4")},
                      {text("voice-1.pstn.VoiceProcessing.TransmitGain"), text("5")},
                      {text("voice-1.pstn.VoiceProcessing.ReceiveGain"), text("6")}},
                     r);
             }},
        Case{"setGainSettingsOfOneGain",
             [](I& i, ParamMap& r) {
                 return i.setGainSettings(
                     voice,
                     {{text("voice-1.1.VoiceProcessing.ReceiveGain"), text("4")},
                      {text("voice-1.0.VoiceProcessing.ReceiveGain"), QString()}},
                     r);
             }},
        Case{"setGainSettingsOfNone",
             [](I& i, ParamMap& r) { return i.setGainSettings(voice, {}, r); }},
        Case{"setVoipSettings",
             [](I& i, ParamMap& r) {
                 return i.setVoipSettings(voice, text("1"),
                                          {{text("voice-1.1AuthUserName"), text("user")},
                                           {text("voice-1.1AuthPassword"), text("a<b&c")},
                                           {text("voice-1.1URI"), text("SIP:1234@voip.example")},
                                           {text("voice-1.1Enable"), text("1")}},
                                          r);
             }},
        Case{"setVoipSettingsOfALineByName",
             [](I& i, ParamMap& r) {
                 return i.setVoipSettings(voice, text("01"),
                                          {{text("voice-1.01AuthUserName"), text("user")}}, r);
             }}),
    CaseName());

TEST_P(OlderVoiceRequest, PutsItsCommandsOnTheWire)
{
    build({{"XML_VERSION", "1.0.0"}, {"VOIP_VERSION", "1"}});
    gateway.reply(reply100({{"webapp", "error", "0"}}));
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(*cpe->getVoipImplementor(), result));
    EXPECT_TRUE(matchesGolden(text("voice/older/") + text(GetParam().name), transcript(gateway)));
    EXPECT_EQ(entries(result), lines({"response=1.0.0", "webapp.error=0"}));
}

INSTANTIATE_TEST_SUITE_P(
    AllOperations, OlderVoiceRequest,
    testing::Values(
        Case{"getVoipAccounts", [](I& i, ParamMap& r) { return i.getVoipAccounts(voice, r); }},
        Case{"setVoipSettings",
             [](I& i, ParamMap& r) {
                 const QString path = text("voice-1.VoiceService.VoiceProfile.Line[1].SIP.");
                 return i.setVoipSettings(voice, text("01"),
                                          {{path + text("AuthUserName"), text("user")},
                                           {path + text("AuthPassword"), text("a<b&c")},
                                           {path + text("URI_USER"), text("1234")},
                                           {path + text("Enable"), text("1")},
                                           {text("voice-1.DslPhoneNumber"), text("5678")}},
                                          r);
             }},
        Case{"setVoipSettingsWithTheNewerNames",
             [](I& i, ParamMap& r) {
                 return i.setVoipSettings(voice, text("1"),
                                          {{text("voice-1.1AuthUserName"), text("user")},
                                           {text("voice-1.1Enable"), text("1")}},
                                          r);
             }},
        Case{"setVoipSettingsOfALineWithoutNumber",
             [](I& i, ParamMap& r) { return i.setVoipSettings(voice, text("pstn"), {}, r); }}),
    CaseName());

TEST_P(OlderVoiceSilence, SucceedsWithoutSendingAnything)
{
    build({{"XML_VERSION", "1.0.0"}, {"VOIP_VERSION", "1"}});
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(*cpe->getVoipImplementor(), result));
    EXPECT_EQ(entries(result), QStringList());
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_P(OlderVoiceSilence, DoesNotWaitForAnotherOperation)
{
    LockableVoice implementor;
    QMutexLocker otherOperation(&implementor.mutex);
    ParamMap result;
    EXPECT_TRUE(GetParam().operation(implementor, result));
}

INSTANTIATE_TEST_SUITE_P(AllOperations, OlderVoiceSilence, testing::ValuesIn(silentOperations),
                         CaseName());

} // namespace quorvel::test
