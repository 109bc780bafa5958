#include "wan/AspWanSettingsImplementorV2.h"
#include "wan/WanFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

const QString wan = text("wan-3");
const QString serial = text("serial-0");

} // namespace

TEST_F(WanFacade, FindsModemSupportAmongTheManagers)
{
    gateway.reply(reply101(
        {{"devmgr-0", "mngr0", "wan"}, {"devmgr-0", "mngr1", "serial"}, {"webapp", "error", "3"}}));
    EXPECT_TRUE(facade.has3GSupport(error));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("wan/has3GSupport"), transcript(gateway)));
}

TEST_F(WanFacade, FindsNoModemSupportUnderAnotherSpelling)
{
    gateway.reply(reply101({{"devmgr-0", "mngr0", "Serial"},
                            {"devmgr-0", "serial", "wan"},
                            {"devmgr-0", "mngr1", "serial-0"}}));
    EXPECT_FALSE(facade.has3GSupport(error));
    EXPECT_EQ(error, 0);
}

TEST_F(WanFacade, NamesTheModemsWan)
{
    gateway.reply(reply101({{"devmgr-0", "wan0", "wan-0"}, {"devmgr-0", "wan1", "wan-3"}}))
        .reply(reply101({{"wan-3", "l2type", "Serial"}, {"webapp", "error", "4"}}));
    EXPECT_EQ(facade.get3GWan(error), text("wan-3"));
    EXPECT_EQ(error, 4);
    EXPECT_EQ(lines(), QStringList{text("DEBUG AspWanSettingsFacade::get3GWan -> 3G WAN:wan-3")});
}

TEST_F(WanFacade, NamesNoModemsWanIfThereIsNone)
{
    gateway.reply(reply101({{"devmgr-0", "wan0", "wan-0"}}))
        .reply(reply101({{"wan-0", "l2type", "dsl"}}));
    EXPECT_EQ(facade.get3GWan(error), QString());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), QStringList{text("DEBUG AspWanSettingsFacade::get3GWan -> 3G WAN:")});
}

TEST_F(WanFacade, ReadsEverythingAboutAModem)
{
    gateway.reply(reply101({{"wan-3", "simpin_status", "pin_ok"},
                            {"wan-3", "active", "1"},
                            {"wan-3", "apn", "internet"},
                            {"wan-3", "pin", "1234"},
                            {"wan-3", "puk", "87654321"},
                            {"wan-3", "imei", "490154203237518"},
                            {"wan-3", "roaming", "roaming"},
                            {"wan-3", "operator", "Some Network"},
                            {"wan-3", "connection_mode", "hsupa mode"},
                            {"wan-3", "signal_strength", "-71"},
                            {"wan-3", "prefmode", "2"},
                            {"wan-3", "prefmodelist0", "auto"},
                            {"wan-3", "prefmodelist1", "3g"},
                            {"serial-0", "settings.force3g", "1"},
                            {"webapp", "error", "5"}}));
    EXPECT_EQ(shown(facade.get3GSettings(wan, serial, error)),
              text("1234|87654321|internet|2|true|4|true|490154203237518|true|Some Network|6|-71|"
                   "auto 3g"));
    EXPECT_EQ(error, 5);
    EXPECT_EQ(lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("wan/get3GSettings"), transcript(gateway)));
}

TEST_F(WanFacade, ReadsAModemThatReportsNothing)
{
    gateway.reply(reply101({}));
    EXPECT_EQ(shown(facade.get3GSettings(wan, serial, error)),
              text("|||0|false|0|false||false||8|0|"));
    EXPECT_EQ(error, 0);
}

TEST_F(WanFacade, TakesOnlyTheWordForRoamingAndOnlyOnesForTheOtherFlags)
{
    gateway.reply(reply101({{"wan-3", "roaming", "1"},
                            {"wan-3", "active", "true"},
                            {"wan-3", "force3g", "1"},
                            {"serial-0", "settings.force3g", "yes"},
                            {"serial-0", "force3g", "1"}}));
    EXPECT_EQ(shown(facade.get3GSettings(wan, serial, error)),
              text("|||0|false|0|false||false||8|0|"));
}

TEST_F(WanFacade, TakesNumbersInBase10AndEverythingElseForZero)
{
    gateway.reply(reply101({{"wan-3", "prefmode", "010"}, {"wan-3", "signal_strength", "0x1f"}}));
    const Asp3GSettings settings = facade.get3GSettings(wan, serial, error);
    EXPECT_EQ(settings.prefMode, 10);
    EXPECT_EQ(settings.signalStrength, 0);
}

TEST_F(WanFacade, EndsTheListOfModesAtAGapButNotAtAnEmptyOne)
{
    gateway.reply(reply101({{"wan-3", "prefmodelist0", ""},
                            {"wan-3", "prefmodelist1", "3g"},
                            {"wan-3", "prefmodelist3", "2g"}}));
    EXPECT_EQ(facade.get3GSettings(wan, serial, error).prefModeList,
              (QList<QString>{QString(), text("3g")}));
}

TEST_F(WanFacade, ReadsNoListOfModesWithoutTheNumberZero)
{
    gateway.reply(reply101({{"wan-3", "prefmodelist1", "3g"}, {"wan-3", "prefmodelist", "2g"}}));
    EXPECT_EQ(facade.get3GSettings(wan, serial, error).prefModeList, QList<QString>());
}

TEST_F(WanFacade, TellsTheStatesOfASimCardApartByTheirExactWords)
{
    const struct {
        const char* word;
        int status;
    } cases[] = {
        {"pin_init", 1}, {"pin_required", 2}, {"puk_required", 3}, {"pin_ok", 4}, {"pin_failed", 5},
        {"puk_ok", 6},   {"puk_failed", 7},   {"pin_null", 8},     {"PIN_OK", 0}, {"locked", 0},
        {"", 0}};
    for (const auto& [word, status] : cases) {
        gateway.reply(reply101({{"wan-3", "simpin_status", word}}));
        EXPECT_EQ(facade.get3GSettings(wan, serial, error).simPinStatus, status) << word;
    }
}

TEST_F(WanFacade, TellsTheTechnologiesApartByTheirExactWords)
{
    const struct {
        const char* word;
        int mode;
    } cases[] = {{"no service", 0},
                 {"gsm mode", 1},
                 {"gprs mode", 2},
                 {"edge mode", 3},
                 {"wcdma mode", 4},
                 {"hsdpa mode", 5},
                 {"hsupa mode", 6},
                 {"hsdpa and hsupa mode", 7},
                 {"lte mode", 8},
                 {"GSM mode", 8},
                 {"", 8}};
    for (const auto& [word, mode] : cases) {
        gateway.reply(reply101({{"wan-3", "connection_mode", word}}));
        EXPECT_EQ(facade.get3GSettings(wan, serial, error).connectionMode, mode) << word;
    }
}

TEST_F(WanFacade, WritesTheModemsSettingsAndForces3GAtItsOwnObject)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    Asp3GSettings settings;
    settings.pin = text("1234");
    settings.puk = text("87654321");
    settings.apn = text("internet");
    settings.prefMode = 2;
    settings.force3g = true;
    settings.imei = text("not sent");
    EXPECT_TRUE(facade.set3GSettings(wan, serial, settings, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("wan/set3GSettings"), transcript(gateway)));
}

TEST_F(WanFacade, WritesEmptyModemSettingsAsTheyAre)
{
    gateway.reply(reply101({{"webapp", "error", "6"}}));
    EXPECT_TRUE(facade.set3GSettings(wan, serial, {}, error));
    EXPECT_EQ(error, 6);
    EXPECT_TRUE(matchesGolden(text("wan/set3GSettingsOfAnEmptyRecord"), transcript(gateway)));
}

namespace
{

/// Fails and leaves a reply of the test's choice.
class FailingWan : public AspWanSettingsImplementorV2
{
public:
    explicit FailingWan(const ParamMap& reply) : reply(reply) {}

    bool set3GSettings(const QString&, const QString&, const ParamMap&, ParamMap& result) override
    {
        result = reply;
        return false;
    }

private:
    ParamMap reply;
};

} // namespace

TEST_F(WanFacade, CountsAFailedModemWriteWithoutAnyTraceAsDone)
{
    cpe->setWanImplementor(boost::make_shared<FailingWan>(ParamMap()));
    EXPECT_TRUE(facade.set3GSettings(wan, serial, {}, error));
    EXPECT_EQ(error, 0);
}

TEST_F(WanFacade, CountsAFailedModemWriteWithATraceAsFailed)
{
    cpe->setWanImplementor(
        boost::make_shared<FailingWan>(ParamMap{{text("AUTH_PARAM_LOGINRESULT"), text("2")}}));
    EXPECT_FALSE(facade.set3GSettings(wan, serial, {}, error));
    EXPECT_EQ(error, 0);
}

} // namespace quorvel::test
