#include "support/FacadeHandle.h"
#include "voice/AspVoipImplementorV1.h"
#include "voice/VoiceFixture.h"

namespace quorvel::test
{

namespace
{

const char* const absent =
    "ERROR AspCpeFacadeObject::getVoipSettingsFacade -> VoipVersion is invalid.";

using VoiceHandle = FacadeHandle<AspVoipSettingsFacade>;
using BuiltVoice = BuiltGateway;

} // namespace

TEST_F(VoiceHandle, HandsOutAFacadeOfAGatewayWithTelephony)
{
    scriptRecognition("voice");
    gateway.reply(reply100({{"voice-0", "Enable", "1"}}));
    const auto facade = object.getVoipSettingsFacade(&result);
    ASSERT_TRUE(facade);
    EXPECT_EQ(result, 0);
    AspWebAppErrorCodes error;
    EXPECT_TRUE(facade->getVoipAccounts(error).enabled);
    EXPECT_NE(object.getVoipSettingsFacade(), facade);
}

TEST_F(VoiceHandle, HandsOutNoFacadeOfAGatewayWithoutTelephony)
{
    expectNoneOfGatewayWithoutFamily(&AspCpeFacadeObject::getVoipSettingsFacade, absent);
}

TEST_F(VoiceHandle, HandsOutNoFacadeOfAGatewayThatCannotBeRecognised)
{
    expectNoneOfGatewayThatRefusesLogin(&AspCpeFacadeObject::getVoipSettingsFacade, absent);
}

TEST_F(BuiltVoice, IsOfTheOlderGenerationForVersion1AndOfTheNewerForAnyOther)
{
    build({{"VOIP_VERSION", "1"}});
    EXPECT_TRUE(dynamic_cast<AspVoipImplementorV1*>(cpe->getVoipImplementor().get()));
    for (const char* version : {"2", "3", "", "01"}) {
        build({{"VOIP_VERSION", version}});
        EXPECT_TRUE(dynamic_cast<AspVoipImplementorV2*>(cpe->getVoipImplementor().get()))
            << version;
    }
    build({{"WAN_VERSION", "1"}});
    EXPECT_FALSE(cpe->hasVoipImplementor());
}

} // namespace quorvel::test
