#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "wireless/WirelessFixture.h"
#include "wireless/WirelessSettingsImplementor.h"

namespace quorvel::test
{

namespace
{

const QString answered = reply101({{"webapp", "error", "0"}});

class WirelessManager : public WirelessRadios
{
protected:
    /// A manager of these radios. Those of the newer generation are asked what they can do, and say
    /// that it is nothing much.
    AspWirelessSettingsFacadeManager of(const QStringList& names)
    {
        for (const QString& name : names) {
            if (name == text("wireless-0"))
                gateway.reply(answered);
        }
        const AspWirelessSettingsFacadeManager manager(cpe, names);
        log.clear();
        return manager;
    }

    /// A manager of an older radio and a newer one behind it.
    AspWirelessSettingsFacadeManager ofBoth()
    {
        return of(lines({"wireless_core-0", "wireless-0"}));
    }
};

} // namespace

TEST_F(WirelessManager, ServesTheRadiosWhoseNamesItKnowsInTheirOrder)
{
    auto manager = of(lines({"wireless_core-0", "foo", "wireless-0"}));
    EXPECT_EQ(manager.getManagerCount(), 2);
    gateway.reply(reply101({{"wireless_ap-0", "ssid", "older"}}))
        .reply(reply101({{"wireless-0", "ap0_ssid", "newer"}}));
    manager.setManagerId(0);
    EXPECT_EQ(manager.getWirelessSettings(0, error).ssid, text("older"));
    manager.setManagerId(1);
    EXPECT_EQ(manager.getWirelessSettings(0, error).ssid, text("newer"));
}

TEST_F(WirelessManager, TellsTheGenerationByAPartOfTheNameInItsExactSpelling)
{
    EXPECT_EQ(of(lines({"Wireless_core-0", "WIRELESS-0", "wireless-1", "wireless", ""}))
                  .getManagerCount(),
              0);
    EXPECT_EQ(of(lines({"my wireless_core", "wireless_core-7"})).getManagerCount(), 2);
    gateway.reply(answered).reply(answered);
    EXPECT_EQ(of(lines({"a wireless-0 b", "wireless-01"})).getManagerCount(), 2);
    // The older generation is looked for first, so nobody is asked what it can do.
    EXPECT_EQ(of(lines({"wireless-0 wireless_core"})).getManagerCount(), 1);
}

TEST_F(WirelessManager, AsksEachNewerRadioOnceWhatItCanDo)
{
    gateway.reply(
        reply101({{"wireless-0", "wireless_capabilities",
                   R"({"band": {"5000": {"modes": {"an": {"securityModes": {"wpa2": {}}}}}}};)"}}));
    AspWirelessSettingsFacadeManager manager(cpe, lines({"wireless_core-0", "wireless-0"}));
    EXPECT_TRUE(matchesGolden(text("wireless/managerConstruction"), transcript(gateway)));
    manager.setManagerId(1);
    gateway.reply(reply101({{"wireless-0", "txmode", "an"}}));
    EXPECT_EQ(manager.getSupportSecurityModes(1, 0), lines({"wpa2"}));
}

TEST_F(WirelessManager, ServesARadioThatDoesNotTellWhatItCanDo)
{
    gateway.sendRaw(failedReply);
    AspWirelessSettingsFacadeManager manager(cpe, lines({"wireless-0"}));
    EXPECT_EQ(manager.getManagerCount(), 1);
    manager.setManagerId(0);
    gateway.reply(reply101({{"wireless-0", "txmode", "an"}}));
    EXPECT_EQ(manager.getSupportSecurityModes(1, 0), QStringList());
    EXPECT_EQ(shown(manager.getWirelessMeshInstances(error)), QString());
    EXPECT_EQ(error, 0);
}

TEST_F(WirelessManager, KeepsItsRadiosWhenTheNamesAreReplaced)
{
    auto manager = of(lines({"wireless_core-0"}));
    manager.setManagerList(lines({"wireless_core-0", "wireless_core-1"}));
    EXPECT_EQ(manager.getManagerCount(), 1);
    manager.setManagerList({});
    EXPECT_EQ(manager.getManagerCount(), 1);
}

TEST_F(WirelessManager, AsksTheChosenRadioWhateverTheIndexSays)
{
    auto manager = ofBoth();
    gateway.reply(reply101({{"wireless_core-0", "enabled", "1"}, {"webapp", "error", "3"}}))
        .reply(reply101({{"wireless_core-0", "wps_enabled", "0"}}))
        .reply(reply101({{"wireless-0", "wps_enabled", "1"}}));
    manager.setManagerId(0);
    EXPECT_EQ(manager.checkWirelessStatus(1, error), 0);
    EXPECT_EQ(error, 3);
    EXPECT_EQ(manager.checkWpsEnabledStatus(99, error), 1);
    EXPECT_EQ(manager.getSupportSecurityModes(1, 5), lines({"off", "wep", "wpa_both"}));
    manager.setManagerId(1);
    EXPECT_EQ(manager.checkWpsEnabledStatus(0, error), 0);
    EXPECT_EQ(manager.checkWirelessStatus(0, error), 2);
    EXPECT_EQ(error, 0);
}

TEST_F(WirelessManager, AsksNobodyWithAnIndexBelowZero)
{
    auto manager = of(lines({"wireless_core-0"}));
    manager.setManagerId(0);
    EXPECT_EQ(manager.checkWirelessStatus(-1, error), 2);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(manager.checkWpsEnabledStatus(-1, error), 2);
    EXPECT_EQ(shown(manager.getWirelessSettings(-1, error)), text("0|||||||||||||||||||0"));
    EXPECT_EQ(manager.getSupportSecurityModes(0, -1), QStringList());
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessManager, GivesDefaultsAndSendsNothingWhileTheChosenRadioDoesNotExist)
{
    for (const int id : {-1, -2147483647 - 1, 1, 2147483647}) {
        auto manager = of(lines({"wireless_core-0"}));
        manager.setManagerId(id);
        EXPECT_EQ(manager.checkWirelessStatus(0, error), 2);
        EXPECT_EQ(manager.checkWpsEnabledStatus(0, error), 2);
        EXPECT_EQ(shown(manager.getWirelessSettings(0, error)), text("0|||||||||||||||||||0"));
        EXPECT_EQ(manager.getSupportSecurityModes(0, 0), QStringList());
        EXPECT_FALSE(manager.setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
        EXPECT_EQ(error, 0);
    }
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessManager, HasNoRadioChosenAtFirst)
{
    auto manager = of(lines({"wireless_core-0"}));
    EXPECT_EQ(manager.checkWirelessStatus(0, error), 2);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessManager, WritesTheChosenRadioWhateverTheRecordsIndexSays)
{
    auto manager = of(lines({"wireless_core-0"}));
    manager.setManagerId(0);
    gateway.reply(reply101({{"webapp", "error", "3"}})).reply(answered);
    AspWirelessSettings settings = wholeRecord("off");
    // The status of the call counts, not the record's.
    EXPECT_TRUE(manager.setWirelessSettings(AspWirelessDisabled, settings, error));
    EXPECT_EQ(error, 3);
    settings.managerIndex = -1;
    EXPECT_TRUE(manager.setWirelessSettings(AspWirelessEnabled, settings, error));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("wireless/managerWrites"), transcript(gateway)));
}

TEST_F(WirelessManager, CannotWriteANewerRadioAlone)
{
    auto manager = ofBoth();
    manager.setManagerId(1);
    EXPECT_FALSE(manager.setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(WirelessManager, JoinsTheStationsOfAllRadios)
{
    auto manager = of(lines({"wireless_core-0", "wireless-0", "wireless_core-1"}));
    gateway
        .reply(reply101(
            {{"wireless_ap-0", "station1.sta_mac", "00:00:5e:00:53:01"}, {"webapp", "error", "3"}}))
        .reply(reply101({{"wireless_ap-0", "station1.sta_mac", "00:00:5e:00:53:02"},
                         {"webapp", "error", "4"}}));
    EXPECT_EQ(manager.getWirelessClientMacList(error),
              lines({"00:00:5e:00:53:01", "00:00:5e:00:53:02"}));
    EXPECT_EQ(error, 4);
}

TEST_F(WirelessManager, JoinsTheStationsOfTheOtherRadiosIfOneFails)
{
    auto manager = of(lines({"wireless_core-0", "wireless_core-1"}));
    gateway.sendRaw(failedReply)
        .reply(reply101({{"wireless_ap-0", "station1.sta_mac", "00:00:5e:00:53:02"}}));
    EXPECT_EQ(manager.getWirelessClientMacList(error), lines({"00:00:5e:00:53:02"}));
    EXPECT_EQ(error, 0);
}

TEST_F(WirelessManager, KeepsTheErrorOfTheLastRadioThatHasOne)
{
    auto manager = ofBoth();
    gateway.sendRaw(failedReply);
    EXPECT_EQ(manager.getWirelessClientMacList(error), QStringList());
    // The newer radio behind isn't asked for stations and leaves the error alone.
    EXPECT_EQ(error, 29);
}

TEST_F(WirelessManager, JoinsTheMeshLinksOfAllRadios)
{
    gateway.reply(reply101(
        {{"wireless-0", "wireless_capabilities", R"({"wdsPrefix": ["wds0"], "band": {}};)"}}));
    AspWirelessSettingsFacadeManager manager(cpe, lines({"wireless_core-0", "wireless-0"}));
    gateway.reply(reply101({{"devmgr-0", "wireless_wds.inst0", "wireless_wds-0"}}))
        .reply(reply101({{"wireless_wds-0", "mac", "00:00:5e:00:53:01"}}))
        .reply(reply101({{"wireless-0", "wds0_mac", "00:00:5e:00:53:02"},
                         {"wireless-0", "wds0_enabled", "1"},
                         {"webapp", "error", "4"}}));
    EXPECT_EQ(shown(manager.getWirelessMeshInstances(error)),
              text("00:00:5e:00:53:01 off,00:00:5e:00:53:02 on"));
    EXPECT_EQ(error, 4);
}

TEST_F(WirelessManager, AsksForSecurityUntilARadioHasIt)
{
    auto manager = of(lines({"wireless_core-0", "wireless-0", "wireless_core-1"}));
    gateway.reply(reply101({{"wireless_ap-0", "sec_mode", "off"}, {"webapp", "error", "3"}}))
        .reply(reply101({{"wireless-0", "security_mode", "off"}, {"webapp", "error", "4"}}));
    EXPECT_TRUE(manager.isWirelessSecurityEnabled(error));
    EXPECT_EQ(error, 4);
    // The question for the capabilities and the two for security.
    EXPECT_EQ(gateway.connections(), 3);
}

TEST_F(WirelessManager, FindsNoSecurityIfNoRadioHasIt)
{
    auto manager = of(lines({"wireless_core-0", "wireless_core-1"}));
    gateway.reply(reply101({{"wireless_ap-0", "sec_mode", "off"}})).sendRaw(failedReply);
    EXPECT_FALSE(manager.isWirelessSecurityEnabled(error));
    EXPECT_EQ(error, 29);
}

TEST_F(WirelessManager, AsksNobodyForTheSecurityProxyAndThePartInWps)
{
    auto manager = of(lines({"wireless_core-0"}));
    manager.setManagerId(0);
    EXPECT_FALSE(manager.isSecurityProxyEnabled(error));
    EXPECT_EQ(error, 0);
    error = static_cast<AspWebAppErrorCodes>(77);
    EXPECT_EQ(manager.getWpsRole(error), 2);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(WirelessManager, SharesItsRadiosWithACopyThatChoosesForItself)
{
    auto manager = ofBoth();
    manager.setManagerId(0);
    AspWirelessSettingsFacadeManager copy(manager);
    copy.setManagerId(1);
    AspWirelessSettingsFacadeManager assigned(boost::shared_ptr<Cpe>(), {});
    assigned = copy;
    EXPECT_EQ(copy.getManagerCount(), 2);
    EXPECT_EQ(assigned.getManagerCount(), 2);
    gateway.reply(reply101({{"wireless_core-0", "wps_enabled", "0"}}))
        .reply(reply101({{"wireless-0", "wps_enabled", "1"}}))
        .reply(reply101({{"wireless-0", "wps_enabled", "1"}}));
    EXPECT_EQ(manager.checkWpsEnabledStatus(0, error), 1);
    EXPECT_EQ(copy.checkWpsEnabledStatus(0, error), 0);
    EXPECT_EQ(assigned.checkWpsEnabledStatus(0, error), 0);
}

TEST_F(WirelessManager, LeavesItsRadiosToACopyThatOutlivesIt)
{
    AspWirelessSettingsFacadeManager copy(boost::shared_ptr<Cpe>(), {});
    {
        auto manager = of(lines({"wireless_core-0"}));
        manager.setManagerId(0);
        copy = manager;
    }
    gateway.reply(reply101({{"wireless_core-0", "enabled", "0"}}));
    EXPECT_EQ(copy.checkWirelessStatus(0, error), 1);
}

TEST_F(WirelessManager, AnswersForAllOfNoRadios)
{
    auto manager = of({});
    EXPECT_EQ(manager.getManagerCount(), 0);
    EXPECT_EQ(manager.getWirelessClientMacList(error), QStringList());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(shown(manager.getWirelessMeshInstances(error)), QString());
    EXPECT_FALSE(manager.isWirelessSecurityEnabled(error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.connections(), 0);
}

} // namespace quorvel::test
