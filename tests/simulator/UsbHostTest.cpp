#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class UsbHostTest : public SimulatedGateway
{
protected:
    std::string devices()
    {
        return send({"command cfgmgr-0 begin_transaction usbhost_mngr-0",
                     "query usbhost_mngr-0 device_list",
                     "command cfgmgr-0 end_transaction usbhost_mngr-0"});
    }

    // What the gateway answers to "disk_mount DevId:3" and the like.
    int inTransaction(const std::string& command)
    {
        const std::string line = "command usbhost_mngr-0 " + command;
        return errorOf({"command cfgmgr-0 begin_transaction usbhost_mngr-0", line.c_str(),
                        "command cfgmgr-0 end_transaction usbhost_mngr-0"});
    }

    static std::string entry(const std::string& key, const std::string& value)
    {
        return "<usbhost_mngr-0><key>" + key + "</key><value>" + value +
               "</value></usbhost_mngr-0>\n";
    }
};

TEST_F(UsbHostTest, TwoDisksAndAPrinterArePluggedIn)
{
    EXPECT_EQ(devices(),
              "<response version=\"1.0.1\">\n" + entry("DeviceCount", "3") +
                  entry("DeviceId0", "1") + entry("DeviceId1", "2") + entry("DeviceId2", "3") +
                  entry("DiskNum0", "0") + entry("DiskNum2", "1") + entry("FileSystem0", "vfat") +
                  entry("FileSystem2", "ext3") + entry("FreeSpace0", "12884901888") +
                  entry("FreeSpace2", "734003200000") + entry("Manufacturer1", "Example Printers") +
                  entry("Name0", "sda1") + entry("Name1", "lp0") + entry("Name2", "sdb1") +
                  entry("Product1", "Laser 200") + entry("Serial1", "PR0417552") +
                  entry("Size0", "31914983424") + entry("Size2", "1000204886016") +
                  entry("Status0", "1") + entry("Status2", "0") + entry("Type0", "0") +
                  entry("Type1", "1") + entry("Type2", "0") +
                  "<webapp><error>0</error></webapp>\n</response>\n");
}

TEST_F(UsbHostTest, MountingChangesTheStatusOfThatDiskOnly)
{
    ASSERT_EQ(inTransaction("disk_mount DevId:3"), 0);
    EXPECT_THAT(devices(),
                AllOf(HasSubstr(entry("Status0", "1")), HasSubstr(entry("Status2", "1"))));
    ASSERT_EQ(inTransaction("disk_unmount DevId:1"), 0);
    EXPECT_THAT(devices(),
                AllOf(HasSubstr(entry("Status0", "0")), HasSubstr(entry("Status2", "1"))));
}

TEST_F(UsbHostTest, MountingAMountedDiskDoesNoHarm)
{
    EXPECT_EQ(inTransaction("disk_mount DevId:1"), 0);
    EXPECT_THAT(devices(), HasSubstr(entry("Status0", "1")));
    EXPECT_EQ(inTransaction("disk_unmount DevId:3"), 0);
    EXPECT_THAT(devices(), HasSubstr(entry("Status2", "0")));
}

TEST_F(UsbHostTest, MountingNeedsATransaction)
{
    EXPECT_EQ(errorOf({"command usbhost_mngr-0 disk_mount DevId:3"}), 7);
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction conn-0",
                       "command usbhost_mngr-0 disk_mount DevId:3"}),
              7);
    EXPECT_THAT(devices(), HasSubstr(entry("Status2", "0")));
}

TEST_F(UsbHostTest, OnlyDisksThatAreThereCanBeMounted)
{
    for (const char* command : {"disk_mount DevId:2", "disk_mount DevId:9", "disk_mount DevId:",
                                "disk_mount 3", "disk_mount", "disk_unmount DevId:2"})
        EXPECT_EQ(inTransaction(command), 9) << command;
    EXPECT_EQ(inTransaction("disk_format DevId:3"), 6);
    EXPECT_THAT(devices(), Not(HasSubstr("Status1")));
}

TEST_F(UsbHostTest, ARestartFindsTheDisksAsTheyWere)
{
    ASSERT_EQ(inTransaction("disk_mount DevId:3"), 0);
    gateway.restart();
    ASSERT_TRUE(gateway.waitUntilReachable(true, std::chrono::seconds(10)));
    cookie = logIn();
    EXPECT_THAT(devices(), HasSubstr(entry("Status2", "0")));
}

TEST_F(UsbHostTest, DevicesCanBePluggedInFromOutside)
{
    gateway.setStatus("usbhost_mngr-0", "DeviceCount", "4");
    gateway.setStatus("usbhost_mngr-0", "Type3", "0");
    gateway.setStatus("usbhost_mngr-0", "DeviceId3", "7");
    ASSERT_EQ(inTransaction("disk_mount DevId:7"), 0);
    EXPECT_THAT(devices(),
                AllOf(HasSubstr(entry("DeviceCount", "4")), HasSubstr(entry("Status3", "1"))));
}

TEST_F(UsbHostTest, SharingSettingsAreStored)
{
    EXPECT_THAT(
        send({"query devmgr-0 inst_list conn", "query devmgr-0 inst_list samba_mngr"}),
        AllOf(HasSubstr("<devmgr-0><key>conn.inst0</key><value>conn-0</value>"),
              HasSubstr("<devmgr-0><key>samba_mngr.inst0</key><value>samba_mngr-0</value>")));
    EXPECT_EQ(get("conn-0", "hostname"), "gateway");
    EXPECT_EQ(get("samba_mngr-0", "Description"), "Home gateway");
    EXPECT_EQ(get("samba_mngr-0", "WorkGroup"), "WORKGROUP");
    ASSERT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction conn-0",
                 "command cfgmgr-0 begin_transaction samba_mngr-0", "set conn-0 hostname attic",
                 "set samba_mngr-0 Description Disks in the attic",
                 "set samba_mngr-0 WorkGroup HOME", "command cfgmgr-0 commit conn-0",
                 "command cfgmgr-0 commit samba_mngr-0", "command cfgmgr-0 end_transaction conn-0",
                 "command cfgmgr-0 end_transaction samba_mngr-0", "command conn-0 apply",
                 "command samba_mngr-0 apply", "command cfgmgr-0 save"}),
        0);
    EXPECT_EQ(get("conn-0", "hostname"), "attic");
    EXPECT_EQ(gateway.storedValue("samba_mngr-0", "Description"), "Disks in the attic");
    EXPECT_EQ(gateway.storedValue("samba_mngr-0", "WorkGroup"), "HOME");
}

} // namespace quorvel::simulator::tests
