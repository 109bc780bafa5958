#include "support/FacadeFailure.h"
#include "voice/VoiceFixture.h"

namespace quorvel::test
{

namespace
{

using Facade = AspVoipSettingsFacade;
using Error = AspWebAppErrorCodes;
using Operation = FailingOperation<Facade>;
using VoiceFailure = FacadeFailure<Facade>;

AspVoipAccount changedLine()
{
    AspVoipAccount account;
    account.id = text("0");
    account.changed = true;
    return account;
}

const Operation operations[] = {
    {"getVoipAccounts",
     [](Facade& f, Error& e) { return shown(f.getVoipAccounts(e)).join(QLatin1Char('\n')); },
     "false", 2},
    {"setVoipSettings",
     [](Facade& f, Error& e) {
         return shown(f.setVoipSettings(text("voice-0"), changedLine(), e));
     },
     "false"},
    {"getGainSettings", [](Facade& f, Error& e) { return shown(f.getGainSettings(e)); },
     "||0||||||||||false|false|false"},
    {"setGainSettings",
     [](Facade& f, Error& e) {
         return shown(f.setGainSettings(text("voice-0"), {changedLine()}, e));
     },
     "false"},
    {"getVoipCallHistory",
     [](Facade& f, Error& e) {
         return text("%1 calls").arg(f.getVoipCallHistory({0, 3, 0, 0, 0}, e).size());
     },
     "0 calls"}};

} // namespace

TEST_P(VoiceFailure, GivesTheDefaultWithoutAGateway)
{
    expectDefaultWithoutGateway();
}

TEST_P(VoiceFailure, GivesTheDefaultOnAGatewayThatIsNotBuilt)
{
    expectDefaultOnGatewayThatIsNotBuilt();
}

TEST_P(VoiceFailure, GivesTheDefaultOnAGatewayWithoutTelephony)
{
    cpe->setVoipImplementor(boost::shared_ptr<VoipSettingsImplementor>());
    expectDefaultWithoutFamily();
}

TEST_P(VoiceFailure, GivesTheDefaultIfTheRequestFails)
{
    expectDefaultIfTheRequestFails();
}

TEST_P(VoiceFailure, GivesTheDefaultIfTheReplyIsUnreadable)
{
    expectDefaultIfTheReplyIsUnreadable();
}

TEST_P(VoiceFailure, GivesTheDefaultIfTheGatewayDoesNotAnswerInTime)
{
    expectDefaultIfTheGatewayDoesNotAnswer(cpe->getVoipImplementor());
}

INSTANTIATE_TEST_SUITE_P(AllOperations, VoiceFailure, testing::ValuesIn(operations), CaseName());

} // namespace quorvel::test
