#include "ConnectionWrites.h"

namespace quorvel::simulator::tests
{

class ModemTest : public SimulatedGateway
{
protected:
    std::string afterWriting(const std::string& pin, const std::string& puk = {})
    {
        EXPECT_EQ(errorOf(modemSettings(pin, puk)), 0);
        return get("wan-2", "simpin_status");
    }

    void restart()
    {
        gateway.setRebootTime(std::chrono::milliseconds(0));
        gateway.restart();
        cookie = logIn();
    }
};

TEST_F(ModemTest, ALockedModemHasNoService)
{
    EXPECT_EQ(send({"command cfgmgr-0 begin_transaction wan-2", "get wan-2 simpin_status",
                    "get wan-2 active", "get wan-2 apn", "get wan-2 pin", "get wan-2 puk",
                    "get wan-2 imei", "get wan-2 roaming", "get wan-2 operator",
                    "get wan-2 connection_mode", "get wan-2 signal_strength", "get wan-2 prefmode",
                    "get wan-2 prefmodelist", "command cfgmgr-0 end_transaction wan-2",
                    "command cfgmgr-0 begin_transaction serial-0", "get serial-0 settings",
                    "command cfgmgr-0 end_transaction serial-0"}),
              "<response version=\"1.0.1\">\n"
              "<wan-2><key>simpin_status</key><value>pin_required</value></wan-2>\n"
              "<wan-2><key>active</key><value>0</value></wan-2>\n"
              "<wan-2><key>apn</key><value>internet.example.net</value></wan-2>\n"
              "<wan-2><key>pin</key><value></value></wan-2>\n"
              "<wan-2><key>puk</key><value></value></wan-2>\n"
              "<wan-2><key>imei</key><value>490154203237518</value></wan-2>\n"
              "<wan-2><key>roaming</key><value></value></wan-2>\n"
              "<wan-2><key>operator</key><value></value></wan-2>\n"
              "<wan-2><key>connection_mode</key><value>no service</value></wan-2>\n"
              "<wan-2><key>signal_strength</key><value>0</value></wan-2>\n"
              "<wan-2><key>prefmode</key><value>0</value></wan-2>\n"
              "<wan-2><key>prefmodelist0</key><value>automatic</value></wan-2>\n"
              "<wan-2><key>prefmodelist1</key><value>2G only</value></wan-2>\n"
              "<wan-2><key>prefmodelist2</key><value>3G only</value></wan-2>\n"
              "<serial-0><key>settings.force3g</key><value>0</value></serial-0>\n"
              "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(ModemTest, TheRightPinLetsTheModemIntoItsNetwork)
{
    EXPECT_EQ(afterWriting("1234"), "pin_ok");
    EXPECT_EQ(get("wan-2", "active"), "1");
    EXPECT_EQ(get("wan-2", "connection_mode"), "hsdpa mode");
    EXPECT_EQ(get("wan-2", "operator"), "Example Mobile");
    EXPECT_EQ(get("wan-2", "roaming"), "home");
    EXPECT_EQ(get("wan-2", "signal_strength"), "21");
    EXPECT_EQ(get("wan-2", "apn"), "mobile.example.net");
    EXPECT_EQ(get("wan-2", "prefmode"), "2");
    EXPECT_EQ(read("get serial-0 settings", "settings.force3g"), "1");
}

TEST_F(ModemTest, NoPinIsNoAttempt)
{
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(afterWriting(""), "pin_required");
    EXPECT_EQ(afterWriting("1234"), "pin_ok");
}

TEST_F(ModemTest, TheThirdWrongPinInARowLocksTheSim)
{
    EXPECT_EQ(afterWriting("1111"), "pin_failed");
    EXPECT_EQ(afterWriting("2222"), "pin_failed");
    EXPECT_EQ(afterWriting("3333"), "puk_required");
    EXPECT_EQ(afterWriting("1234"), "puk_required");
    EXPECT_EQ(get("wan-2", "connection_mode"), "no service");
}

TEST_F(ModemTest, ThePukGivesTheSimANewPin)
{
    gateway.setStatus("wan-2", "simpin_status", "puk_required");
    EXPECT_EQ(afterWriting("5678", "11111111"), "puk_failed");
    EXPECT_EQ(afterWriting("", "12345678"), "puk_failed");
    EXPECT_EQ(afterWriting("5678", "12345678"), "puk_ok");
    EXPECT_EQ(get("wan-2", "connection_mode"), "hsdpa mode");
    restart();
    EXPECT_EQ(get("wan-2", "simpin_status"), "pin_ok");
}

TEST_F(ModemTest, ASavedPinUnlocksTheSimAfterARestart)
{
    EXPECT_EQ(afterWriting("1234"), "pin_ok");
    restart();
    EXPECT_EQ(get("wan-2", "simpin_status"), "pin_ok");
    EXPECT_EQ(afterWriting(""), "pin_ok");
    restart();
    EXPECT_EQ(get("wan-2", "simpin_status"), "pin_required");
}

TEST_F(ModemTest, ARestartDoesntUnlockASim)
{
    for (const char* pin : {"1111", "2222", "3333"})
        afterWriting(pin);
    restart();
    EXPECT_EQ(get("wan-2", "simpin_status"), "puk_required");
}

TEST_F(ModemTest, ASimWithoutAPinLetsEverybodyIn)
{
    gateway.setStatus("wan-2", "simpin_status", "pin_null");
    EXPECT_EQ(get("wan-2", "connection_mode"), "hsdpa mode");
    EXPECT_EQ(afterWriting("9999"), "pin_null");
}

TEST_F(ModemTest, AnUnlockedModemCarriesAConnection)
{
    gateway.setValue("wan-2", "enabled", "1");
    EXPECT_EQ(query("wan-2", "isconnected"), "0");
    ASSERT_EQ(afterWriting("1234"), "pin_ok");
    EXPECT_EQ(query("wan-2", "isconnected"), "1");
    EXPECT_EQ(query("wan-2", "localip"), "198.51.100.90");
    gateway.setStatus("eth-0", "linkstate", "0");
    EXPECT_THAT(send({"query route-0 def_gw_status"}),
                testing::HasSubstr("<value>wan-2:1</value>"));
    gateway.setStatus("wan-2", "connection_mode", "no service");
    EXPECT_EQ(query("wan-2", "isconnected"), "0");
    gateway.setStatus("wan-2", "connection_mode", "edge mode");
    gateway.setValue("wan-2", "apn", "");
    EXPECT_EQ(query("wan-2", "isconnected"), "0");
}

} // namespace quorvel::simulator::tests
