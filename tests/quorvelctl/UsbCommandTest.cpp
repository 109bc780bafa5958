#include "QuorvelctlRun.h"

#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;

class QuorvelctlUsb : public QuorvelctlTest
{
protected:
    using QuorvelctlTest::QuorvelctlTest;
};

TEST_F(QuorvelctlUsb, ListsDisksAndPrinters)
{
    const Outcome result = run("usb devices");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "DISK  NAME  NUMBER  SIZE           FREE          FILE SYSTEM  STATUS  MOUNTED\n"
              "1     sda1  0       31914983424    12884901888   vfat         1       yes\n"
              "3     sdb1  1       1000204886016  734003200000  ext3         0       no\n"
              "\n"
              "PRINTER  SERIAL NUMBER  MANUFACTURER      PRODUCT\n"
              "lp0      PR0417552      Example Printers  Laser 200\n");
}

TEST_F(QuorvelctlUsb, ListsDisksAndPrintersAsJson)
{
    simulator.setStatus("usbhost_mngr-0", "DeviceCount", "2");
    EXPECT_EQ(run("usb devices --json").output,
              "{\n"
              "    \"disks\": [\n"
              "        {\n"
              "            \"fileSystem\": \"vfat\",\n"
              "            \"freeSpace\": \"12884901888\",\n"
              "            \"id\": \"1\",\n"
              "            \"mounted\": true,\n"
              "            \"name\": \"sda1\",\n"
              "            \"number\": \"0\",\n"
              "            \"size\": \"31914983424\",\n"
              "            \"status\": \"1\"\n"
              "        }\n"
              "    ],\n"
              "    \"printers\": [\n"
              "        {\n"
              "            \"manufacturer\": \"Example Printers\",\n"
              "            \"name\": \"lp0\",\n"
              "            \"product\": \"Laser 200\",\n"
              "            \"serial\": \"PR0417552\"\n"
              "        }\n"
              "    ]\n"
              "}\n");
}

TEST_F(QuorvelctlUsb, TellsOfAnEmptyPort)
{
    simulator.setStatus("usbhost_mngr-0", "DeviceCount", "0");
    EXPECT_EQ(run("usb devices").output, "No disks.\n\nNo printers.\n");
    EXPECT_EQ(run("usb status").output, "Printer is connected: no\nDisk is mounted:      no\n");
}

TEST_F(QuorvelctlUsb, TellsAPrinterAndAMountedDisk)
{
    EXPECT_EQ(run("usb status").output, "Printer is connected: yes\nDisk is mounted:      yes\n");
    simulator.setStatus("usbhost_mngr-0", "Status0", "0");
    EXPECT_EQ(run("usb status --json").output,
              "{\n    \"diskMounted\": false,\n    \"printer\": true\n}\n");
}

TEST_F(QuorvelctlUsb, MountsADiskAndTellsWhatIsMounted)
{
    const Outcome result = run("usb mount 3");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output,
              "DISK  NAME  NUMBER  SIZE           FREE          FILE SYSTEM  STATUS  MOUNTED\n"
              "1     sda1  0       31914983424    12884901888   vfat         1       yes\n"
              "3     sdb1  1       1000204886016  734003200000  ext3         1       yes\n");
    EXPECT_EQ(simulator.value("usbhost_mngr-0", "Status2"), "1");
}

TEST_F(QuorvelctlUsb, UnmountsADiskAndTellsWhatIsMounted)
{
    const Outcome result = run("usb unmount 1 --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("        \"id\": \"1\",\n"
                                         "        \"mounted\": false,\n"));
    EXPECT_EQ(simulator.value("usbhost_mngr-0", "Status0"), "0");
}

TEST_F(QuorvelctlUsb, ShowsHowDisksAreShared)
{
    EXPECT_EQ(run("usb sharing").output, "Host name:   gateway\n"
                                         "Description: Home gateway\n"
                                         "Work group:  WORKGROUP\n");
}

TEST_F(QuorvelctlUsb, ChangesTheSharingTextsThatAreNamedAndKeepsTheOthers)
{
    const Outcome result = run("usb sharing --hostname attic --workgroup HOME --json");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "{\n"
                             "    \"description\": \"Home gateway\",\n"
                             "    \"hostname\": \"attic\",\n"
                             "    \"workgroup\": \"HOME\"\n"
                             "}\n");
    EXPECT_EQ(simulator.storedValue("conn-0", "hostname"), "attic");
    EXPECT_EQ(simulator.storedValue("samba_mngr-0", "Description"), "Home gateway");
    EXPECT_EQ(simulator.storedValue("samba_mngr-0", "WorkGroup"), "HOME");
}

// A new host name may cut the connection under the reply.
TEST_F(QuorvelctlUsb, TakesSilenceForSuccessIfTheSharingTextsHaveArrived)
{
    spoil("hang 1 key=apply");
    const Outcome result = run("usb sharing --hostname attic");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Host name:   attic\n"));
}

class QuorvelctlWithoutUsb : public QuorvelctlUsb
{
protected:
    QuorvelctlWithoutUsb() : QuorvelctlUsb("classic") {}
};

TEST_F(QuorvelctlWithoutUsb, SaysSo)
{
    for (const char* command :
         {"usb devices", "usb status", "usb mount 1", "usb unmount 1", "usb sharing"}) {
        const Outcome result = run(command);
        EXPECT_EQ(result.status, 1) << command;
        EXPECT_EQ(result.output, "") << command;
        EXPECT_EQ(result.errors, "quorvelctl: " + simulator.address() + " has no USB host port\n");
    }
}

} // namespace quorvelctl::test
