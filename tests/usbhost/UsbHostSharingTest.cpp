#include "usbhost/AspUsbHostSettingsImplementorV1.h"
#include "usbhost/UsbHostFixture.h"

#include "protocol/HttpRequestExecutor.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

const QString instances = reply101({{"devmgr-0", "conn.inst0", "conn-2"},
                                    {"devmgr-0", "conn.inst1", "conn-3"},
                                    {"devmgr-0", "samba_mngr.inst0", "samba_mngr-1"},
                                    {"devmgr-0", "samba_mngr.inst1", "samba_mngr-4"},
                                    {"webapp", "error", "0"}});

AspUsbHostDevices sharing()
{
    AspUsbHostDevices devices;
    devices.printers.append(AspUsbHostPrinter());
    devices.disks.append(AspUsbHostDisk());
    devices.advanced = {
        text("box"), text("a<b&c"), text("HOME"), {text("conn-2"), text("samba_mngr-1")}};
    return devices;
}

/// Fails without leaving a trace.
class LosingUsbHost : public AspUsbHostSettingsImplementorV1
{
public:
    bool setUsbHostAdvancedSettings(const QString&, const QString&, const ParamMap&,
                                    ParamMap&) override
    {
        return false;
    }
};

} // namespace

TEST_F(UsbHostFacade, ReadsSharingFromTheFirstInstances)
{
    gateway.reply(instances).reply(reply101({{"conn-2", "hostname", "box"},
                                             {"samba_mngr-1", "Description", "My box"},
                                             {"samba_mngr-1", "WorkGroup", "HOME"},
                                             {"webapp", "error", "0"}}));
    const AspUsbHostAdvancedSettings settings = facade.getUsbHostAdvancedSettings(error);
    EXPECT_EQ(shown(settings), text("sharing|box|My box|HOME|conn-2samba_mngr-1"));
    EXPECT_EQ(settings.instances.connInstance, text("conn-2"));
    EXPECT_EQ(settings.instances.sambaInstance, text("samba_mngr-1"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(
        matchesGolden(text("usbhost/getUsbHostAdvancedSettingsOfTheFacade"), transcript(gateway)));
}

TEST_F(UsbHostFacade, ReadsMissingSharingTextsAsEmpty)
{
    gateway.reply(instances).reply(reply101({{"conn-3", "hostname", "other"}}));
    EXPECT_EQ(shown(facade.getUsbHostAdvancedSettings(error)),
              text("sharing||||conn-2samba_mngr-1"));
}

TEST_F(UsbHostFacade, AsksForSharingAlsoWithoutInstances)
{
    gateway.reply(reply101({{"webapp", "error", "0"}})).reply(reply101({{"webapp", "error", "7"}}));
    EXPECT_EQ(shown(facade.getUsbHostAdvancedSettings(error)), text(noSharing));
    EXPECT_EQ(error, 7);
    EXPECT_TRUE(matchesGolden(text("usbhost/getUsbHostAdvancedSettingsWithoutInstances"),
                              transcript(gateway)));
}

TEST_F(UsbHostFacade, ReportsTheInstancesIfTheSharingReplyHasNoVerdict)
{
    gateway.reply(reply101({{"devmgr-0", "conn.inst0", "conn-2"}, {"webapp", "error", "5"}}))
        .reply(reply101({{"conn-2", "hostname", "box"}}));
    EXPECT_EQ(shown(facade.getUsbHostAdvancedSettings(error)), text("sharing|box|||conn-2"));
    EXPECT_EQ(error, 5);
}

TEST_F(UsbHostFacade, ReadsNoSharingIfTheInstancesFail)
{
    gateway.sendRaw(failedReply);
    EXPECT_EQ(shown(facade.getUsbHostAdvancedSettings(error)), text(noSharing));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(gateway.connections(), 1);
}

TEST_F(UsbHostFacade, ReadsNoSharingIfItsSecondExchangeFails)
{
    gateway.reply(instances).sendRaw(failedReply);
    EXPECT_EQ(shown(facade.getUsbHostAdvancedSettings(error)), text(noSharing));
    EXPECT_EQ(error, 29);
}

TEST_F(UsbHostFacade, WritesSharingToTheInstancesThatWereRead)
{
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setUsbHostAdvancedSettings(sharing(), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(ownLines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("usbhost/setUsbHostAdvancedSettings"), transcript(gateway)));
}

TEST_F(UsbHostFacade, WritesEmptySharingTextsAsEmpty)
{
    AspUsbHostDevices devices;
    devices.advanced.instances = sharing().advanced.instances;
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    EXPECT_TRUE(facade.setUsbHostAdvancedSettings(devices, error));
    EXPECT_TRUE(matchesGolden(text("usbhost/setUsbHostAdvancedSettingsWithoutValues"),
                              transcript(gateway)));
}

TEST_F(UsbHostFacade, ReportsTheGatewaysVerdictOnSharing)
{
    gateway.reply(reply101({{"webapp", "error", "7"}}));
    EXPECT_TRUE(facade.setUsbHostAdvancedSettings(sharing(), error));
    EXPECT_EQ(error, 7);
}

TEST_F(UsbHostFacade, CountsAWriteOfSharingThatIsNotAnsweredAsSuccess)
{
    cpe->getUsbHostImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    gateway.sendAndHold(QByteArray());
    EXPECT_TRUE(facade.setUsbHostAdvancedSettings(sharing(), error));
    EXPECT_EQ(error, 0);
}

TEST_F(UsbHostFacade, CountsAnUnreadableReplyToAWriteOfSharingAsSuccess)
{
    gateway.reply(text("<html>"));
    EXPECT_TRUE(facade.setUsbHostAdvancedSettings(sharing(), error));
    EXPECT_EQ(error, 0);
}

TEST_F(UsbHostFacade, CountsALostReplyToAWriteOfSharingAsSuccess)
{
    cpe->setUsbHostImplementor(boost::make_shared<LosingUsbHost>());
    EXPECT_TRUE(facade.setUsbHostAdvancedSettings(sharing(), error));
    EXPECT_EQ(error, 0);
}

} // namespace quorvel::test
