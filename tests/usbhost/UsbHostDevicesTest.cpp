#include "usbhost/UsbHostFixture.h"

namespace quorvel::test
{

namespace
{

#define USB "usbhost_mngr-0"

/// A reply that lists a disk under number 0 and claims so many devices.
QString claim(const char* count)
{
    return reply101({{USB, "DeviceCount", count}, {USB, "Type0", "0"}, {USB, "DeviceId0", "sda"}});
}

QString diskWithStatus(const char* status)
{
    return reply101({{USB, "DeviceCount", "1"}, {USB, "Type0", "0"}, {USB, "Status0", status}});
}

class UsbStatus : public UsbHostFacade
{
protected:
    /// "printer disk", from flags that stood otherwise before.
    QString status()
    {
        QStringList texts;
        for (const bool before : {false, true}) {
            bool printer = before;
            bool disk = before;
            facade.getUsbStatus(printer, disk, error);
            texts.append(QString::number(printer) + QLatin1Char(' ') + QString::number(disk));
        }
        EXPECT_EQ(texts[0], texts[1]) << "the flags' former values show through";
        return texts[0];
    }

    void script(const QString& answer) { gateway.reply(answer).reply(answer); }
};

} // namespace

TEST_F(UsbHostFacade, ReadsEveryFieldOfDisksAndPrinters)
{
    gateway.reply(reply101({{USB, "DeviceCount", "3"},
                            {USB, "Type0", "0"},
                            {USB, "DeviceId0", "sda"},
                            {USB, "Name0", "Stick"},
                            {USB, "DiskNum0", "1"},
                            {USB, "Size0", "16 GB"},
                            {USB, "FreeSpace0", "3.5 GB"},
                            {USB, "Status0", "1"},
                            {USB, "FileSystem0", "vfat"},
                            {USB, "Type1", "1"},
                            {USB, "Name1", "Printer"},
                            {USB, "Serial1", "SN1"},
                            {USB, "Manufacturer1", "Maker"},
                            {USB, "Product1", "P100"},
                            {USB, "Type2", "0"},
                            {USB, "DeviceId2", "sdb"},
                            {"webapp", "error", "0"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)),
              lines({"printer|Printer|SN1|Maker|P100", "disk|sda|Stick|1|16 GB|3.5 GB|1|vfat",
                     "disk|sdb||||||", noSharing}));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("usbhost/getUsbHostDevicesOfTheFacade"), transcript(gateway)));
}

TEST_F(UsbHostFacade, ReadsADiskBehindAPrinterUnderItsOwnNumber)
{
    gateway.reply(reply101({{USB, "DeviceCount", "2"},
                            {USB, "Type0", "1"},
                            {USB, "Name0", "Printer"},
                            {USB, "DeviceId0", "lp"},
                            {USB, "Type1", "0"},
                            {USB, "Name1", "Stick"},
                            {USB, "DeviceId1", "sda"},
                            {USB, "Status1", "1"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)),
              lines({"printer|Printer|||", "disk|sda|Stick||||1|", noSharing}));
}

TEST_F(UsbHostFacade, PassesTheGatewaysErrorOnBesideTheDevices)
{
    gateway.reply(
        reply101({{USB, "DeviceCount", "1"}, {USB, "Type0", "1"}, {"webapp", "error", "7"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({"printer||||", noSharing}));
    EXPECT_EQ(error, 7);
}

TEST_F(UsbHostFacade, SkipsDevicesOfOtherTypesAndGapsInTheirNumbers)
{
    gateway.reply(reply101({{USB, "DeviceCount", "6"},
                            {USB, "Type0", "2"},
                            {USB, "DeviceId0", "hub"},
                            {USB, "Type1", "00"},
                            {USB, "Type2", ""},
                            {USB, "DeviceId3", "typeless"},
                            {USB, "Type5", "0"},
                            {USB, "DeviceId5", "sda"},
                            {USB, "Type6", "0"},
                            {USB, "DeviceId6", "beyond"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({"disk|sda||||||", noSharing}));
}

TEST_F(UsbHostFacade, ListsDevicesInTheOrderOfTheirNumbers)
{
    gateway.reply(reply101({{USB, "DeviceCount", "12"},
                            {USB, "Type10", "0"},
                            {USB, "DeviceId10", "ten"},
                            {USB, "Type2", "0"},
                            {USB, "DeviceId2", "two"},
                            {USB, "Type1", "0"},
                            {USB, "DeviceId1", "one"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)),
              lines({"disk|one||||||", "disk|two||||||", "disk|ten||||||", noSharing}));
}

TEST_F(UsbHostFacade, KnowsNumbersWithoutADotOrALeadingZeroOnly)
{
    gateway.reply(reply101({{USB, "DeviceCount", "9"},
                            {USB, "Type", "0"},
                            {USB, "Type.0", "0"},
                            {USB, "Type00", "0"},
                            {USB, "Type01", "0"},
                            {USB, "Type+1", "0"},
                            {USB, "Type-1", "0"},
                            {USB, "Type 1", "0"},
                            {USB, "TypeA", "0"},
                            {USB, "Type99999999999", "0"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({noSharing}));
}

TEST_F(UsbHostFacade, ListsNothingForACountThatIsNoPositiveNumber)
{
    for (const char* count : {"", "0", "-1", "one", "1.0", "99999999999"}) {
        gateway.reply(claim(count));
        EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({noSharing})) << count;
        EXPECT_EQ(error, 0);
    }
    gateway.reply(reply101({{USB, "Type0", "0"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({noSharing}));
}

TEST_F(UsbHostFacade, ListsWhatIsThereForACountThatIsTooHigh)
{
    for (const char* count : {"2", "1000", "2147483647"}) {
        gateway.reply(claim(count));
        EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({"disk|sda||||||", noSharing}))
            << count;
    }
}

TEST_F(UsbHostFacade, FindsADeviceBehindAnyGap)
{
    gateway.reply(reply101({{USB, "DeviceCount", "2147483647"},
                            {USB, "Type2147483646", "0"},
                            {USB, "DeviceId2147483646", "last"},
                            {USB, "Type2147483647", "0"},
                            {USB, "DeviceId2147483647", "beyond"}}));
    EXPECT_EQ(shown(facade.getUsbHostDevices(error)), lines({"disk|last||||||", noSharing}));
}

TEST_F(UsbStatus, TellsAPrinterAndAMountedDisk)
{
    script(reply101({{USB, "DeviceCount", "3"},
                     {USB, "Type0", "0"},
                     {USB, "Status0", "0"},
                     {USB, "Type1", "1"},
                     {USB, "Type2", "0"},
                     {USB, "Status2", "1"}}));
    EXPECT_EQ(status(), text("1 1"));
    EXPECT_EQ(error, 0);
}

TEST_F(UsbStatus, TellsAPrinterAlone)
{
    script(reply101({{USB, "DeviceCount", "1"}, {USB, "Type0", "1"}, {USB, "Status0", "1"}}));
    EXPECT_EQ(status(), text("1 0"));
}

TEST_F(UsbStatus, TakesADiskWithStatus1OnlyForMounted)
{
    script(diskWithStatus("1"));
    EXPECT_EQ(status(), text("0 1"));
    for (const char* other : {"0", "2", "01", "", "mounted"}) {
        script(diskWithStatus(other));
        EXPECT_EQ(status(), text("0 0")) << other;
    }
}

TEST_F(UsbStatus, TellsNothingOfAnEmptyPortWithoutError)
{
    script(claim("0"));
    EXPECT_EQ(status(), text("0 0"));
    EXPECT_EQ(error, 0);
}

TEST_F(UsbStatus, TellsAFailureByTheErrorOnly)
{
    gateway.sendRaw(failedReply).sendRaw(failedReply);
    EXPECT_EQ(status(), text("0 0"));
    EXPECT_EQ(error, 29);
}

TEST_F(UsbHostFacade, MountsADiskAndGivesFalseNevertheless)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_FALSE(facade.diskMount(text("3"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("usbhost/diskMount"), transcript(gateway)));
}

TEST_F(UsbHostFacade, UnmountsADiskAndGivesFalseNevertheless)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_FALSE(facade.diskUnmount(text("3"), error));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("usbhost/diskUnmount"), transcript(gateway)));
}

TEST_F(UsbHostFacade, TellsByTheErrorThatTheGatewayDidNotMountOrUnmount)
{
    gateway.reply(reply101({{"webapp", "error", "7"}})).reply(reply101({{"webapp", "error", "8"}}));
    EXPECT_FALSE(facade.diskMount(text("3"), error));
    EXPECT_EQ(error, 7);
    EXPECT_FALSE(facade.diskUnmount(text("3"), error));
    EXPECT_EQ(error, 8);
}

} // namespace quorvel::test
