#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "support/RecognisedGateway.h"
#include "support/Replies.h"

#include <ostramw/ConfigDataFactory.h>

#include <functional>
#include <ostream>

namespace quorvel::test
{

namespace
{

class AspCpeFacadeObjectTest : public RecognisedGateway
{
protected:
    /// The lines of two attempts at a gateway that refuses the login.
    QStringList linesOfRefusedAttempts() const
    {
        const QStringList attempt =
            lines({"DEBUG AspCpeFacadeObject::refreshCpe -> Cpe is NULL. Reconstructing Cpe...",
                   "DEBUG Logging in...", "WARN Failed to log in.",
                   "ERROR AspCpeFacadeObject::refreshCpe -> Failed to construct cpe."});
        return attempt + attempt;
    }

    AspCpeFacadeObject object{info()};
};

/// All twelve fields in the record's order.
QStringList fields(const AspCpeProperties& found)
{
    return {found.xmlVersion,     found.generalSettingsVersion,
            found.adslVersion,    found.ethernetVersion,
            found.wanVersion,     found.wirelessVersion,
            found.voipVersion,    found.threeGVersion,
            found.usbHostVersion, found.pptpVersion,
            found.l2tpVersion,    found.warrantyVersion};
}

/// A function, the manager that it needs, and the test for it.
struct Function {
    const char* name;
    const char* manager;
    bool (AspCpeFacadeObject::*has)();
};

void PrintTo(const Function& function, std::ostream* out)
{
    *out << function.name;
}

class FunctionOfGateway : public AspCpeFacadeObjectTest,
                          public testing::WithParamInterface<Function>
{
};

const char noProperties[] =
    "ERROR AspCpeFacadeObject::getCpeProperties -> Failed to fetch properties.Cpe does not exist";

} // namespace

TEST_F(AspCpeFacadeObjectTest, SendsNothingWhenItIsMadeOrCopied)
{
    AspCpeFacadeObject copy(object);
    copy = object;
    copy.abortPendingRequests();
    EXPECT_EQ(gateway.connections(), 0);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(AspCpeFacadeObjectTest, TellsAllPropertiesOfAGateway)
{
    scriptRecognition(lines({"devmgr", "dsl", "wan_vlan", "wan", "wireless", "voice", "serial",
                             "usbhost_mngr", "vpn", "l2tp", "warranty"}));
    int result = 7;
    EXPECT_EQ(fields(object.getCpeProperties(&result)),
              lines({"1.0.1", "1", "1", "1", "2", "1", "2", "1", "1", "1", "1", "1"}));
    EXPECT_EQ(result, 0);
}

TEST_F(AspCpeFacadeObjectTest, LeavesEmptyWhatAGatewayLacks)
{
    gateway.logIn().reply(managerList100({}));
    EXPECT_EQ(fields(object.getCpeProperties()),
              lines({"1.0.0", "", "", "", "", "", "", "", "", "", "", ""}));
}

TEST_F(AspCpeFacadeObjectTest, RecognisesAGatewayOnce)
{
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(object.hasGeneral());
    log.clear();
    EXPECT_TRUE(object.hasGeneral());
    EXPECT_FALSE(object.hasWan());
    EXPECT_EQ(fields(object.getCpeProperties()).first(), text("1.0.1"));
    EXPECT_TRUE(object.getGeneralSettingsFacade());
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(AspCpeFacadeObjectTest, TriesTwiceAndTellsThatNoPropertiesCanBeHad)
{
    scriptRefusal(2);
    int result = 7;
    EXPECT_EQ(fields(object.getCpeProperties(&result)).join(QString()), QString());
    EXPECT_EQ(result, -1);
    EXPECT_EQ(log.lines(), linesOfRefusedAttempts() + lines({noProperties}));
}

TEST_F(AspCpeFacadeObjectTest, TriesTwiceAndGivesNoFacade)
{
    scriptRefusal(2);
    int result = 7;
    EXPECT_FALSE(object.getGeneralSettingsFacade(&result));
    EXPECT_EQ(result, -1);
    EXPECT_EQ(log.lines(), linesOfRefusedAttempts());
}

TEST_F(AspCpeFacadeObjectTest, GivesNoFacadeWithoutSayingWhyToo)
{
    scriptRefusal(2);
    EXPECT_FALSE(object.getGeneralSettingsFacade());
}

TEST_F(AspCpeFacadeObjectTest, FailsAtAGatewayThatDoesNotAnswer)
{
    gateway.sendRaw({}).sendRaw({});
    int result = 7;
    EXPECT_FALSE(object.getGeneralSettingsFacade(&result));
    EXPECT_EQ(result, -1);
    EXPECT_EQ(log.lines().filter(text("ERROR")),
              lines({"ERROR AspCpeFacadeObject::refreshCpe -> Failed to construct cpe.",
                     "ERROR AspCpeFacadeObject::refreshCpe -> Failed to construct cpe."}));
}

TEST_F(AspCpeFacadeObjectTest, SucceedsAtTheSecondAttempt)
{
    scriptRefusal(1);
    scriptRecognition({text("devmgr")});
    int result = 7;
    EXPECT_TRUE(object.getGeneralSettingsFacade(&result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(log.lines().filter(text("refreshCpe")),
              lines({"DEBUG AspCpeFacadeObject::refreshCpe -> Cpe is NULL. Reconstructing Cpe...",
                     "ERROR AspCpeFacadeObject::refreshCpe -> Failed to construct cpe.",
                     "DEBUG AspCpeFacadeObject::refreshCpe -> Cpe is NULL. Reconstructing Cpe...",
                     "DEBUG AspCpeFacadeObject::refreshCpe -> Cpe constructed."}));
}

TEST_F(AspCpeFacadeObjectTest, TriesAnewAtEveryCallUntilItSucceeds)
{
    scriptRefusal(4);
    EXPECT_FALSE(object.hasGeneral());
    EXPECT_FALSE(object.hasWireless());
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(object.hasGeneral());
}

TEST_F(AspCpeFacadeObjectTest, GivesNoFacadeForWhatTheGatewayLacks)
{
    scriptRecognition({text("dsl")});
    int result = 7;
    EXPECT_FALSE(object.getGeneralSettingsFacade(&result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(log.lines().last(), text("ERROR AspCpeFacadeObject::getGeneralSettingsFacade -> "
                                       "GeneralSettingsVersion is invalid."));
}

TEST_F(AspCpeFacadeObjectTest, GivesANewFacadeAtEveryCall)
{
    scriptRecognition({text("devmgr")});
    int result = 7;
    const auto first = object.getGeneralSettingsFacade(&result);
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(first);
    EXPECT_NE(first, object.getGeneralSettingsFacade());
}

TEST_F(AspCpeFacadeObjectTest, SharesTheRecognisedGatewayWithCopies)
{
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(object.hasGeneral());
    AspCpeFacadeObject copy(object);
    AspCpeFacadeObject assigned{AuthenticationInfo()};
    assigned = object;
    EXPECT_TRUE(copy.hasGeneral());
    EXPECT_TRUE(assigned.hasGeneral());
    EXPECT_EQ(gateway.connections(), 3);
}

TEST_F(AspCpeFacadeObjectTest, GivesItsCredentialsToCopies)
{
    AspCpeFacadeObject copy(object);
    AspCpeFacadeObject assigned{AuthenticationInfo()};
    assigned = object;
    scriptRecognition({text("devmgr")});
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(copy.hasGeneral());
    EXPECT_TRUE(assigned.hasGeneral());
    EXPECT_EQ(form(0), QByteArray("user=admin&password=secret"));
    EXPECT_EQ(form(3), QByteArray("user=admin&password=secret"));
}

TEST_F(AspCpeFacadeObjectTest, ShowsVdslAsTheHostIsConfiguredWhateverTheGatewayHas)
{
    scriptRecognition({text("devmgr")});
    const auto configuration = ostramw::ConfigDataFactory::getInstance();
    EXPECT_FALSE(object.hasVdsl());
    for (const char* value : {"true", "0", "", " 1", "01", "yes"}) {
        configuration->setConfigValue(text("OSTRA_CONFIG_SHOWVDSLSETTINGS"), text(value));
        EXPECT_FALSE(object.hasVdsl()) << value;
    }
    configuration->setConfigValue(text("OSTRA_CONFIG_SHOWVDSLSETTINGS"), text("1"));
    EXPECT_TRUE(object.hasVdsl());
    EXPECT_FALSE(object.hasDsl());
    configuration->setConfigValue(text("OSTRA_CONFIG_SHOWVDSLSETTINGS"), QString());
}

TEST_F(AspCpeFacadeObjectTest, ShowsVdslAsConfiguredAlsoOfAGatewayThatCannotBeReached)
{
    const auto configuration = ostramw::ConfigDataFactory::getInstance();
    configuration->setConfigValue(text("OSTRA_CONFIG_SHOWVDSLSETTINGS"), text("1"));
    scriptRefusal(2);
    EXPECT_TRUE(object.hasVdsl());
    EXPECT_EQ(log.lines(), linesOfRefusedAttempts() + lines({noProperties}));
    configuration->setConfigValue(text("OSTRA_CONFIG_SHOWVDSLSETTINGS"), QString());
}

TEST_P(FunctionOfGateway, IsThereWithItsManager)
{
    scriptRecognition({text(GetParam().manager)});
    EXPECT_TRUE((object.*GetParam().has)());
}

TEST_P(FunctionOfGateway, IsNotThereWithAllOtherManagersOnly)
{
    QStringList others = lines({"devmgr", "vpn", "l2tp", "dsl", "wan", "wireless_core", "voice",
                                "serial", "usbhost_mngr", "wan_vlan", "warranty"});
    EXPECT_EQ(others.removeAll(text(GetParam().manager)), 1);
    scriptRecognition(others);
    EXPECT_FALSE((object.*GetParam().has)());
}

TEST_P(FunctionOfGateway, IsNotThereOnAGatewayThatCannotBeReached)
{
    scriptRefusal(2);
    EXPECT_FALSE((object.*GetParam().has)());
    EXPECT_EQ(log.lines(), linesOfRefusedAttempts() + lines({noProperties}));
}

INSTANTIATE_TEST_SUITE_P(
    AllFunctions, FunctionOfGateway,
    testing::Values(Function{"General", "devmgr", &AspCpeFacadeObject::hasGeneral},
                    Function{"Pptp", "vpn", &AspCpeFacadeObject::hasPptp},
                    Function{"L2tp", "l2tp", &AspCpeFacadeObject::hasL2tp},
                    Function{"Dsl", "dsl", &AspCpeFacadeObject::hasDsl},
                    Function{"Wan", "wan", &AspCpeFacadeObject::hasWan},
                    Function{"Wireless", "wireless_core", &AspCpeFacadeObject::hasWireless},
                    Function{"Voip", "voice", &AspCpeFacadeObject::hasVoip},
                    Function{"ThreeG", "serial", &AspCpeFacadeObject::has3G},
                    Function{"UsbHost", "usbhost_mngr", &AspCpeFacadeObject::hasUsbHost},
                    Function{"Ethernet", "wan_vlan", &AspCpeFacadeObject::hasEth},
                    Function{"Warranty", "warranty",
                             &AspCpeFacadeObject::hasWarrantyRegistrationSupport}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvel::test
