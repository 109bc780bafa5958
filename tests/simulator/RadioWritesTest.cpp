#include "SimulatedRadios.h"
#include "protocol/HttpRequestExecutor.h"
#include "wireless/WirelessFixture.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

class RadioWrites : public SimulatedRadios
{
};

class ModernRadioWrites : public SimulatedRadios
{
protected:
    ModernRadioWrites() : SimulatedRadios("modern") {}
};

class ClassicRadioWrites : public SimulatedRadios
{
protected:
    ClassicRadioWrites() : SimulatedRadios("classic") {}
};

} // namespace

TEST_F(RadioWrites, RenameAndRekeyBothRadiosInOneRequest)
{
    const std::size_t before = gateway.requestCount();
    EXPECT_TRUE(radios->setWirelessSettings(bothNetworks(), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(gateway.requestCount(), before + 1);
    EXPECT_EQ(settingsOf(0), text("0|Attic 5 GHz <&>|wpa_both|open|hex|1|||||psk|new pass phrase 5"
                                  "|||||||5000|0"));
    EXPECT_EQ(settingsOf(1), text("0|Attic|wpa_both|open|hex|1|||||psk|new pass phrase 2"
                                  "|3600||1812||0|0|2437|0"));
}

TEST_F(RadioWrites, AreInEffectAndSurviveARestart)
{
    ASSERT_TRUE(radios->setWirelessSettings(bothNetworks(), error));
    EXPECT_EQ(gateway.value("wireless_ap-0", "ssid"), "Attic");
    EXPECT_EQ(gateway.value("wireless-0", "ap0_ssid"), "Attic 5 GHz <&>");
    gateway.restart();
    EXPECT_EQ(settingsOf(0).section(QLatin1Char('|'), 1, 1), text("Attic 5 GHz <&>"));
    EXPECT_EQ(settingsOf(1).section(QLatin1Char('|'), 1, 1), text("Attic"));
}

TEST_F(RadioWrites, ChangeTheKindOfSecurity)
{
    EXPECT_TRUE(radios->setWirelessSettings(
        {network("Open", "off", "unsent"), network("Old", "wep", "0123456789")}, error));
    EXPECT_EQ(error, 0);
    // What isn't sent stays: a network without security keeps its key.
    EXPECT_EQ(settingsOf(0),
              text("0|Open|off|open|hex|1|||||psk|radio-secret-2001-5g|||||||5000|0"));
    EXPECT_EQ(settingsOf(1), text("0|Old|wep||||0123456789||||psk|radio-secret-2001"
                                  "|3600||1812||0|0|2437|0"));
    EXPECT_TRUE(older->isWirelessSecurityEnabled(error));
}

TEST_F(RadioWrites, GiveANewerRadioAWepKey)
{
    EXPECT_TRUE(radios->setWirelessSettings(
        {network("Old", "wep", "0123456789"), network("Open", "off", "unsent")}, error));
    EXPECT_EQ(settingsOf(0), text("0|Old|wep|open|hex|1|0123456789||||psk|radio-secret-2001-5g"
                                  "|||||||5000|0"));
    EXPECT_FALSE(older->isWirelessSecurityEnabled(error));
}

TEST_F(RadioWrites, SwitchRadiosOffAndOn)
{
    for (const AspWirelessStatus status : {AspWirelessDisabled, AspWirelessEnabled}) {
        QList<AspWirelessSettings> records{network("quorvel-2001-5g", "off", ""),
                                           network("quorvel-2001", "off", "")};
        records[0].status = status;
        records[1].status = status;
        ASSERT_TRUE(radios->setWirelessSettings(records, error));
        const bool on = status == AspWirelessEnabled;
        EXPECT_EQ(older->checkWirelessStatus(error), status);
        EXPECT_EQ(stored("wireless_core-0", "enabled"), on ? "1" : "0");
        EXPECT_EQ(gateway.value("wireless-0", "enabled"), on ? "1" : "0");
        EXPECT_EQ(stored("wireless-0", "enabled"), on ? "1" : "0");
        EXPECT_TRUE(radios->getWirelessClientMacList(error).isEmpty());
    }
}

TEST_F(RadioWrites, PutWpsIntoTheRegistrarRole)
{
    gateway.setValue("wireless-0", "wps_role", "enrollee");
    ASSERT_TRUE(radios->setWirelessSettings(bothNetworks(), error));
    EXPECT_EQ(newer->getWpsRole(error), AspWpsRegistrar);
    EXPECT_EQ(older->getWpsRole(error), AspWpsRegistrar);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), AspWpsDisabled);
}

TEST_F(RadioWrites, StartAndStopWps)
{
    EXPECT_EQ(older->setWpsEnabledStatus(true, error), AspWpsEnabled);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), AspWpsEnabled);
    EXPECT_EQ(older->getWpsRole(error), AspWpsRegistrar);
    EXPECT_EQ(stored("wireless_core-0", "wps_enabled"), "1");
    EXPECT_EQ(older->setWpsEnabledStatus(false, error), AspWpsDisabled);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), AspWpsDisabled);
    EXPECT_EQ(stored("wireless_core-0", "wps_enabled"), "0");
}

TEST_F(RadioWrites, ReachANewerRadioThroughItsImplementor)
{
    ParamMap reply;
    const auto radio = cpe->getWirelessImplementorNG();
    EXPECT_TRUE(radio->setWirelessSettings({{text("wireless-0.ssid"), text("Attic")},
                                            {text("wireless-0.security_mode"), text("wpa2")},
                                            {text("wireless-0.wpa_password"), text("pass phrase")},
                                            {text("wireless-0.enabled"), text("1")}},
                                           text("wireless-0"), reply));
    EXPECT_EQ(entries(reply), lines({"response=1.0.1", "webapp.error=0"}));
    EXPECT_EQ(settingsOf(0), text("0|Attic|wpa2|open|hex|1|||||psk|pass phrase|||||||5000|0"));
    EXPECT_TRUE(radio->setWpsEnabledStatus(reply, false, text("wireless-0")));
    EXPECT_EQ(newer->checkWpsEnabledStatus(error), AspWpsDisabled);
    ParamMap stations;
    EXPECT_TRUE(radio->getWirelessClientMacList(text("wireless-0"), stations));
    EXPECT_EQ(entries(stations), lines({"response=1.0.1", "webapp.error=0"}));
}

TEST_F(RadioWrites, LoseTheirReplyWhileTheRadioRestarts)
{
    inject("radio-restart 1");
    EXPECT_TRUE(radios->setWirelessSettings(bothNetworks(), error));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(settingsOf(0).section(QLatin1Char('|'), 1, 1), text("Attic 5 GHz <&>"));
    EXPECT_EQ(settingsOf(1).section(QLatin1Char('|'), 1, 1), text("Attic"));
    EXPECT_EQ(error, 0);
}

TEST_F(RadioWrites, AreRepeatedWithoutHarmBehindALostSession)
{
    gateway.expireSessions();
    EXPECT_TRUE(radios->setWirelessSettings(bothNetworks(), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Attic");
}

TEST_F(RadioWrites, CountAReplyThatNeverComesAsSuccess)
{
    cpe->getWirelessImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    inject("hang 1 key=apply");
    EXPECT_TRUE(older->setWirelessSettings(AspWirelessEnabled,
                                           network("Attic", "wpa_both", "pass phrase"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(stored("wireless_ap-0", "ssid"), "Attic");
}

TEST_F(ModernRadioWrites, ReachTheOnlyRadio)
{
    EXPECT_TRUE(radios->setWirelessSettings({network("Attic", "wpa2", "pass phrase")}, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(settingsOf(0), text("0|Attic|wpa2|open|hex|1|||||psk|pass phrase|||||||2400|0"));
}

TEST_F(ClassicRadioWrites, ReachTheOnlyRadio)
{
    radios->setManagerId(0);
    AspWirelessSettings wep = network("Old", "wep", "0123456789");
    wep.wepAuthType = text("shared");
    wep.wepKeyType = text("ascii");
    wep.wepKeyIndex = text("2");
    EXPECT_TRUE(radios->setWirelessSettings(AspWirelessDisabled, wep, error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(settingsOf(0), text("0|Old|wep|shared|ascii|2|0123456789||||psk|radio-secret-0417"
                                  "|3600||1812||0|0|2437|0"));
    EXPECT_EQ(radios->checkWirelessStatus(0, error), AspWirelessDisabled);
    EXPECT_EQ(stored("wireless_ap-0", "wep_key1"), "0123456789");
}

TEST_F(ClassicRadioWrites, OfAllRadiosAreNoRequestInItsDialect)
{
    EXPECT_TRUE(radios->setWirelessSettings({network("Attic", "off", "")}, error));
    EXPECT_EQ(error, 2);
    EXPECT_EQ(settingsOf(0).section(QLatin1Char('|'), 1, 1), text("quorvel-0417"));
}

TEST_F(ClassicRadioWrites, LoseTheirReplyWhileTheRadioRestarts)
{
    radios->setManagerId(0);
    inject("radio-restart 1");
    EXPECT_FALSE(radios->setWirelessSettings(AspWirelessEnabled,
                                             network("Attic", "wpa_both", "pass phrase"), error));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(settingsOf(0).section(QLatin1Char('|'), 1, 1), text("Attic"));
    inject("radio-restart 1");
    EXPECT_EQ(older->setWpsEnabledStatus(true, error), AspWpsStatusUnknown);
    EXPECT_EQ(error, 29);
    EXPECT_EQ(older->checkWpsEnabledStatus(error), AspWpsEnabled);
}

} // namespace quorvel::test
