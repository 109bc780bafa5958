#include <quorvel/AspAdslSettingsFacade.h>
#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspUsbHostSettingsFacade.h>
#include <quorvel/AspVoipSettingsFacade.h>
#include <quorvel/AspWanSettingsFacade.h>

#include "SimulatedRadios.h"
#include "wireless/WirelessFixture.h"

namespace quorvel::test
{

namespace
{

class RadiosOfDual : public SimulatedRadios
{
};

class RadioOfModern : public SimulatedRadios
{
protected:
    RadioOfModern() : SimulatedRadios("modern") {}
};

class RadioOfClassic : public SimulatedRadios
{
protected:
    RadioOfClassic() : SimulatedRadios("classic") {}
};

/// The names of a container's items, with commas between.
template <typename Container>
QString namesIn(const boost::shared_ptr<Container>& container)
{
    QStringList names;
    for (const auto& item : container->getItems())
        names.append(item->getName());
    return names.join(QLatin1Char(','));
}

/// The channels that are for radar, with commas between.
QString dfsChannels(const boost::shared_ptr<Ghz>& band)
{
    QStringList names;
    for (const auto& channel : band->getChannels()->getItems()) {
        if (channel->getDfs() == 1)
            names.append(channel->getName());
    }
    return names.join(QLatin1Char(','));
}

/// Each mode of a band as "name:width,width".
QStringList widthsByMode(const boost::shared_ptr<Ghz>& band)
{
    QStringList modes;
    for (const auto& mode : band->getModes()->getItems())
        modes.append(mode->getName() + QLatin1Char(':') + namesIn(mode->getChanbws()));
    return modes;
}

} // namespace

TEST_F(RadiosOfDual, AreReadThroughTheHandleOfTheGateway)
{
    AspCpeFacadeObject handle(
        {text("admin"), text("admin"), QString::fromStdString(gateway.address())});
    const auto manager = handle.getWirelessSettingsFacade(1);
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->getManagerCount(), 2);
    EXPECT_EQ(manager->getWirelessSettings(1, error).ssid, text("quorvel-2001"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(manager->checkWirelessStatus(1, error), AspWirelessEnabled);
}

TEST_F(RadiosOfDual, StandBesideAllOtherFamilies)
{
    AspCpeFacadeObject handle(
        {text("admin"), text("admin"), QString::fromStdString(gateway.address())});
    EXPECT_EQ(handle.getGeneralSettingsFacade()->getFirmwareVersion(error), text("3.4.1-r2"));
    EXPECT_TRUE(handle.hasDsl() && handle.hasEth() && handle.hasPptp() && handle.hasL2tp());
    EXPECT_TRUE(handle.has3G() && handle.hasWarrantyRegistrationSupport());
    EXPECT_EQ(handle.getWanSettingsFacade()->getWanList(error),
              (QList<QString>{text("wan-0"), text("wan-1"), text("wan-2")}));
    EXPECT_EQ(handle.getAdslSettingsFacade()->getPvcSettings(text("pvc-0"), error).vci, text("35"));
    EXPECT_EQ(handle.getVoipSettingsFacade()->getVoipAccounts(error).accounts.size(), 3);
    bool printer = false;
    bool disk = false;
    handle.getUsbHostSettingsFacade()->getUsbStatus(printer, disk, error);
    EXPECT_TRUE(printer && disk);
    EXPECT_EQ(error, 0);
}

TEST_F(RadiosOfDual, TellTheirNetworks)
{
    EXPECT_EQ(settingsOf(0), text("0|quorvel-2001-5g|wpa2|open|hex|1|||||psk|radio-secret-2001-5g"
                                  "|||||||5000|0"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(settingsOf(1), text("0|quorvel-2001|wpa_both|open|hex|1|||||psk|radio-secret-2001"
                                  "|3600||1812||0|0|2437|0"));
    EXPECT_EQ(error, 0);
}

TEST_F(RadiosOfDual, TellTheStateOfWps)
{
    EXPECT_EQ(newer->checkWpsEnabledStatus(error), AspWpsEnabled);
    EXPECT_EQ(newer->getWpsRole(error), AspWpsRegistrar);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), AspWpsDisabled);
    EXPECT_EQ(older->getWpsRole(error), AspWpsEnrollee);
}

TEST_F(RadiosOfDual, TellWhetherTheirProxyIsOn)
{
    EXPECT_FALSE(newer->isSecurityProxyEnabled(error));
    EXPECT_FALSE(older->isSecurityProxyEnabled(error));
    gateway.setValue("wireless-0", "security_proxy", "1");
    gateway.setValue("wireless_core-0", "security_proxy", "1");
    EXPECT_TRUE(newer->isSecurityProxyEnabled(error));
    EXPECT_TRUE(older->isSecurityProxyEnabled(error));
    EXPECT_EQ(error, 0);
}

TEST_F(RadiosOfDual, TellTheirDevicesAndMeshLinks)
{
    EXPECT_EQ(shown(radios->getWirelessClientMacList(error)), text("02:00:5E:20:01:23"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(shown(radios->getWirelessMeshInstances(error)),
              text("02:00:5E:30:01:01 on,02:00:5E:30:01:02 off,"
                   "02:00:5E:30:02:01 on,02:00:5E:30:02:02 off"));
    EXPECT_EQ(error, 0);
}

TEST_F(RadiosOfDual, TellMeshLinksThatCameAndWent)
{
    gateway.setValue("wireless-0", "wds0_mac", "");
    gateway.setValue("wireless-0", "wds2_mac", "02:00:5E:30:01:03");
    gateway.setValue("wireless-0", "wds2_enabled", "1");
    gateway.setValue("wireless_wds-1", "enabled", "1");
    gateway.setValue("wireless_wds-2", "mac", "02:00:5E:30:02:03");
    EXPECT_EQ(shown(radios->getWirelessMeshInstances(error)),
              text("02:00:5E:30:01:02 off,02:00:5E:30:01:03 on,"
                   "02:00:5E:30:02:01 on,02:00:5E:30:02:02 on,02:00:5E:30:02:03 off"));
}

TEST_F(RadiosOfDual, TellWhetherTheirNetworksAreSecure)
{
    EXPECT_TRUE(older->isWirelessSecurityEnabled(error));
    gateway.setValue("wireless_ap-0", "sec_mode", "off");
    EXPECT_FALSE(older->isWirelessSecurityEnabled(error));
    EXPECT_TRUE(newer->isWirelessSecurityEnabled(error));
    EXPECT_EQ(error, 0);
}

TEST_F(RadiosOfDual, OfferSecurityModesOfTheirOwn)
{
    radios->setManagerId(0);
    EXPECT_EQ(shown(radios->getSupportSecurityModes(1, 0)), text("off,wpa2"));
    EXPECT_EQ(shown(radios->getSupportSecurityModes(0, 0)), text(""));
    gateway.setValue("wireless-0", "txmode", "11b");
    EXPECT_EQ(shown(radios->getSupportSecurityModes(0, 0)), text("off,wep,wpa,wpa2,wpa_both"));
    radios->setManagerId(1);
    EXPECT_EQ(shown(radios->getSupportSecurityModes(0, 1)), text("off,wep,wpa_both"));
}

TEST_F(RadioOfModern, TellsItsNetwork)
{
    EXPECT_EQ(radios->getManagerCount(), 1);
    EXPECT_EQ(settingsOf(0), text("0|quorvel-1903|wpa_both|open|hex|1|||||psk|radio-secret-1903"
                                  "|||||||2400|0"));
    EXPECT_EQ(shown(radios->getSupportSecurityModes(0, 0)), text("off,wpa2,wpa_both"));
    EXPECT_EQ(shown(radios->getWirelessClientMacList(error)), text(""));
    EXPECT_EQ(shown(radios->getWirelessMeshInstances(error)),
              text("02:00:5E:30:01:01 on,02:00:5E:30:01:02 off"));
}

TEST_F(RadioOfModern, TellsWhatItCanDo)
{
    newer->getWirelessCapabilities(error);
    EXPECT_EQ(error, 0);
    const auto capabilities = newer->getCapabilities();
    ASSERT_TRUE(capabilities && capabilities->getBand());
    EXPECT_EQ(capabilities->getOperationModes(),
              (QVariantList{text("ap"), text("sta"), text("wds")}));
    EXPECT_EQ(capabilities->getApPrefix(), (QVariantList{text("ap0"), text("ap1")}));
    EXPECT_EQ(capabilities->getStaPrefix(), QVariantList{text("sta0")});
    EXPECT_EQ(capabilities->getWdsPrefix(),
              (QVariantList{text("wds0"), text("wds1"), text("wds2")}));
    const auto low = capabilities->getBand()->getGhz2400();
    EXPECT_EQ(low->getText(), text("2.4 GHz"));
    EXPECT_EQ(low->getDefaultMode(), text("11ng"));
    EXPECT_EQ(low->getDefaultChannel(), text("6"));
    EXPECT_EQ(namesIn(low->getChannels()), text("1,10,11,12,13,2,3,4,5,6,7,8,9"));
    EXPECT_EQ(dfsChannels(low), text(""));
    EXPECT_EQ(widthsByMode(low), lines({"11b:20", "11bg:20", "11ng:20,40"}));
}

TEST_F(RadioOfModern, TellsWhatItCanDoAtFiveGigahertz)
{
    newer->getWirelessCapabilities(error);
    ASSERT_TRUE(newer->getCapabilities() && newer->getCapabilities()->getBand());
    const auto high = newer->getCapabilities()->getBand()->getGhz5000();
    EXPECT_EQ(high->getDefaultMode(), text("11ac"));
    EXPECT_EQ(namesIn(high->getChannels()),
              text("100,104,108,112,116,120,124,128,132,136,140,36,40,44,48,52,56,60,64"));
    EXPECT_EQ(dfsChannels(high), text("100,104,108,112,116,120,124,128,132,136,140,52,56,60,64"));
    EXPECT_EQ(widthsByMode(high), lines({"11a:20", "11ac:20,40,80", "11na:20,40"}));
    const auto channel = high->getChannels()->getItems().first();
    EXPECT_EQ(channel->getShow(), 1);
    EXPECT_EQ(channel->getZenPair(), 0);
    EXPECT_EQ(channel->getFreqVal(), 5500);
    const auto mode = high->getModes()->getItems().at(1);
    EXPECT_EQ(mode->getText(), text("802.11ac"));
    EXPECT_EQ(mode->getDefaultChannelBw(), text("80"));
    EXPECT_EQ(namesIn(mode->getSecurityModes()), text("off,wpa2"));
    const auto width = mode->getChanbws()->getItems().last();
    EXPECT_EQ(width->getText(), text("80 MHz"));
    EXPECT_EQ(width->getRates().size(), 7);
    EXPECT_EQ(width->getRates().last(), QVariant(text("433.3")));
}

TEST_F(RadioOfClassic, TellsItsNetwork)
{
    EXPECT_EQ(radios->getManagerCount(), 1);
    EXPECT_EQ(settingsOf(0), text("0|quorvel-0417|wpa_both|open|hex|1|||||psk|radio-secret-0417"
                                  "|3600||1812||0|0|2437|0"));
    EXPECT_EQ(radios->checkWirelessStatus(0, error), AspWirelessEnabled);
    EXPECT_EQ(radios->checkWpsEnabledStatus(0, error), AspWpsDisabled);
    EXPECT_EQ(older->getWpsRole(error), AspWpsEnrollee);
    EXPECT_EQ(shown(radios->getWirelessClientMacList(error)),
              text("02:00:5E:20:00:21,02:00:5E:20:00:22"));
    EXPECT_EQ(shown(radios->getWirelessMeshInstances(error)),
              text("02:00:5E:30:00:01 on,02:00:5E:30:00:02 off"));
    EXPECT_EQ(error, 0);
}

} // namespace quorvel::test
