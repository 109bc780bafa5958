#include "internet/AdslSettingsImplementor.h"
#include "internet/InternetFixture.h"
#include "protocol/HttpRequestExecutor.h"
#include "support/RequestCases.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

using Facade = AspAdslSettingsFacade;
using Error = AspWebAppErrorCodes;

/// An operation of the facade and how it fails.
struct Operation {
    const char* name;
    ShownCall call;
    const char* onFailure; ///< the default result
    const char* failureLine;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

const Operation operations[] = {
    {"getPppoxSettings", reading(&Facade::getPppoxSettings, "any-0"), "|||||||",
     "ERROR AspAdslSettingsFacade::getPppoxSettings -> Failed to get pppox settings!"},
    {"getUsernameExtension", [](Facade& f, Error& e) { return f.getUsernameExtension(e); }, "",
     "ERROR AspAdslSettingsFacade::getUsernameExtension -> Failed to get username extension!"},
    {"getPppoxState", reading(&Facade::getPppoxState, "any-0"), "|||||||",
     "ERROR AspAdslSettingsFacade::getPppoxState -> Failed to get pppox state!"},
    {"getRussianPppoxSettings", reading(&Facade::getRussianPppoxSettings, "any-0"), "||false|false",
     "ERROR AspAdslSettingsFacade::getPppoxSettings -> Failed to get VpnSettings!"},
    {"getVpnSettings", reading(&Facade::getVpnSettings, "any-0"), "||||false|false",
     "ERROR AspAdslSettingsFacade::getVpnSettings -> Failed to get VpnSettings!"},
    {"getDhcpSettings", reading(&Facade::getDhcpSettings, "any-0"), "|",
     "ERROR AspAdslSettingsFacade::getDhcpSettings -> Failed to get getDhcpSettings!"},
    {"getStaticSettings", reading(&Facade::getStaticSettings, "any-0"), "||||",
     "ERROR AspAdslSettingsFacade::getStaticSettings -> Failed to get StaticSettings!"},
    {"getWanVlanSettings", reading(&Facade::getWanVlanSettings, "any-0"), "||",
     "ERROR AspAdslSettingsFacade::getWanVlanSettings -> Failed to get WanVlanSettings!"},
    {"getPvcSettings", reading(&Facade::getPvcSettings, "any-0"), "||||||",
     "ERROR AspAdslSettingsFacade::getPvcSettings -> Failed to get pvc settings!"},
    {"getDslState", reading(&Facade::getDslState, "any-0"), "||||",
     "ERROR AspAdslSettingsFacade::getDslState -> Failed to get dsl state!"},
    {"getSupportedAnnexMode", reading(&Facade::getSupportedAnnexMode, "any-0"), "3",
     "ERROR AspAdslSettingsFacade::getSupportedAnnexMode -> Failed to get supported annex modes!"},
    {"getCurrentAnnexMode", reading(&Facade::getCurrentAnnexMode, "any-0"), "3",
     "ERROR AspAdslSettingsFacade::getCurrentAnnexMode -> Failed to get current annex!"},
    {"getRfc2684VdslSupport", reading(&Facade::getRfc2684VdslSupport, "any-0"), "false",
     "ERROR AspAdslSettingsFacade::getRfc2684VdslSupport -> Failed to fetch VdslSupport!"},
    {"getRfc2684Encapsulation", reading(&Facade::getRfc2684Encapsulation, "any-0"), "2",
     "ERROR AspAdslSettingsFacade::getRfc2684Encapsulation -> Failed to fetch encapsulation type!"},
    {"setAdslSettings",
     [](Facade& f, Error& e) {
         return shown(f.setAdslSettings(text("wan-3"), text("dsl-1"), hostConnection("vpn"), e));
     },
     "false", "ERROR AspAdslSettingsFacade::setAdslSettings -> Failed to set adsl settings!"},
    {"setEthSettings",
     [](Facade& f, Error& e) {
         return shown(f.setEthSettings(text("wan-3"), hostConnection("vpn"), e));
     },
     "false", "ERROR AspAdslSettingsFacade::setEthSettings -> Failed to set eth settings!"}};

class InternetFailure : public InternetFacade, public testing::WithParamInterface<Operation>
{
protected:
    /// Calls the operation and expects its default, this error and these lines.
    void expectDefault(Facade& asked, int code, const QStringList& expectedLines)
    {
        EXPECT_EQ(GetParam().call(asked, error), text(GetParam().onFailure));
        EXPECT_EQ(error, code);
        EXPECT_EQ(ownLines(), expectedLines);
    }
};

} // namespace

TEST_P(InternetFailure, GivesTheDefaultWithoutAGateway)
{
    AspAdslSettingsFacade empty{boost::shared_ptr<Cpe>()};
    expectDefault(empty, 26, lines({"ERROR AspFacade::validateCpe -> Cpe is null!"}));
}

TEST_P(InternetFailure, GivesTheDefaultOnAGatewayThatIsNotBuilt)
{
    cpe->setGeneralImplementor(boost::shared_ptr<GeneralSettingsImplementor>());
    expectDefault(facade, 27, lines({"ERROR AspFacade::validateCpe -> Cpe::not correctly build!"}));
}

TEST_P(InternetFailure, GivesTheDefaultOnAGatewayWithoutTheFamily)
{
    cpe->setAdslImplementor(boost::shared_ptr<AdslSettingsImplementor>());
    expectDefault(facade, 0, lines({GetParam().failureLine}));
}

TEST_P(InternetFailure, GivesTheDefaultIfTheRequestFails)
{
    gateway.sendRaw(failedReply);
    expectDefault(facade, 29, lines({GetParam().failureLine}));
}

TEST_P(InternetFailure, GivesTheDefaultIfTheReplyIsUnreadable)
{
    gateway.reply(text("<html>"));
    expectDefault(facade, 25, lines({GetParam().failureLine}));
}

INSTANTIATE_TEST_SUITE_P(AllOperations, InternetFailure, testing::ValuesIn(operations), CaseName());

TEST_F(InternetFacade, ReportsAGatewayThatDoesNotAnswerInTime)
{
    cpe->getAdslImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    gateway.sendAndHold(QByteArray());
    EXPECT_FALSE(facade.setEthSettings(text("wan-3"), hostConnection("dhcp"), error));
    EXPECT_EQ(error, 28);
    EXPECT_EQ(
        ownLines(),
        lines({"ERROR AspAdslSettingsFacade::setEthSettings -> Failed to set eth settings!"}));
    EXPECT_TRUE(gateway.waitForRequests(1));
}

} // namespace quorvel::test
