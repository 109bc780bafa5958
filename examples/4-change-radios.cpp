// Gives all radios of a gateway one network name, in one request: 4-change-radios ADDRESS NAME

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <iostream>

using namespace quorvel;

QList<AspWirelessSettings> readAll(AspWirelessSettingsFacadeManager& radios)
{
    QList<AspWirelessSettings> all;
    for (int i = 0; i < radios.getManagerCount(); ++i) {
        AspWebAppErrorCodes error;
        radios.setManagerId(i);
        const AspWirelessSettings settings = radios.getWirelessSettings(i, error);
        if (error != AspWebAppNoError)
            return {}; // fewer records than radios: nothing will be written
        all += settings;
    }
    return all;
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "usage: 4-change-radios ADDRESS NAME\n";
        return 2;
    }
    AspCpeFacadeObject gateway(loginAt(argv[1]));
    const auto radios = gateway.getWirelessSettingsFacade();
    if (!radios || gateway.getCpeProperties().xmlVersion != "1.0.1") {
        std::cerr << "No gateway, or none that takes all radios in one request.\n";
        return 1;
    }

    // Name, security and keys of each radio as they are; only the name becomes another.
    QList<AspWirelessSettings> wanted = readAll(*radios);
    for (AspWirelessSettings& settings : wanted) {
        settings.ssid = argv[2];
        settings.status = AspWirelessEnabled; // anything else would switch the radio off
    }
    AspWebAppErrorCodes error;
    if (!radios->setWirelessSettings(wanted, error) || error != AspWebAppNoError) {
        std::cerr << "The radios were not written: error " << error << '\n';
        return 1;
    }
    for (const AspWirelessSettings& settings : readAll(*radios))
        std::cout << settings.ssid.toStdString() << ", " << settings.securityMode.toStdString()
                  << '\n';
}
