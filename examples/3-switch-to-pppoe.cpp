// Makes the default connection, over Ethernet, a PPPoE one and verifies that it works:
// 3-switch-to-pppoe ADDRESS USER, with the provider's password in PPPOE_PASSWORD

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <QThread>
#include <iostream>

using namespace quorvel;

int fail(const char* what, AspWebAppErrorCodes error)
{
    std::cerr << what << ": error " << error << '\n';
    return 1;
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 3)
        return fail("usage: 3-switch-to-pppoe ADDRESS USER", AspWebAppNoError);
    AspCpeFacadeObject gateway(loginAt(argv[1]));
    const auto wans = gateway.getWanSettingsFacade();
    const auto internet = gateway.getAdslSettingsFacade();
    if (!wans || !internet)
        return fail("no gateway, or none with a connection to switch", AspWebAppNoError);

    AspWebAppErrorCodes error;
    const QString wan = wans->getDefaultWan("route-0", error);
    const AspWanDetails before = wans->getWanDetails(wan, error);
    if (!before.ethLinkTypes.contains("pppoe") || before.pppoxInstance.isEmpty())
        return fail("the WAN can't do PPPoE over Ethernet", error);

    AspAdslSettings settings;
    settings.linkType = "pppoe";
    settings.pppoxInstance = before.pppoxInstance;
    settings.pppoxSettings.username = argv[2];
    settings.pppoxSettings.password = qEnvironmentVariable("PPPOE_PASSWORD");
    // The VLAN is written in any case, so it has to be what it was.
    settings.wanVlanInstance = before.wanVlanInstance;
    settings.wanVlanSettings = internet->getWanVlanSettings(before.wanVlanInstance, error);
    if (error != AspWebAppNoError || !internet->setEthSettings(wan, settings, error) ||
        error != AspWebAppNoError)
        return fail("the gateway didn't take the settings", error);

    AspWanDetails after = wans->getWanDetails(wan, error);
    for (int tries = 0; !after.isConnected && tries < 15; ++tries) {
        QThread::sleep(2); // taken is not yet connected: dialling in takes a while
        after = wans->getWanDetails(wan, error);
    }
    std::cout << wan.toStdString() << " was " << before.linkType.toStdString() << " and is "
              << after.linkType.toStdString() << '\n'
              << (after.isConnected ? "connected as " : "not connected, address ")
              << after.localIp.toStdString() << '\n';
    return after.linkType == "pppoe" && after.isConnected ? 0 : 1;
}
