// Tells who a gateway is and what it can do: 1-identity ADDRESS

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <iostream>

using namespace quorvel;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: 1-identity ADDRESS\n";
        return 2;
    }
    // The key may be any text. The next getCpe with this key gives the same handle, logged in.
    const auto gateway =
        AspCpeFlyweightFactory::getInstance()->getCpe("my gateway", loginAt(argv[1]));
    if (!gateway) {
        std::cerr << "There is no gateway, or it refused the login.\n";
        return 1;
    }

    const auto general = gateway->getGeneralSettingsFacade();
    AspWebAppErrorCodes error;
    const QString model = general->getModelName(error);
    if (error != AspWebAppNoError) {
        std::cerr << "The gateway can't be asked: error " << error << '\n';
        return 1;
    }
    std::cout << "model     " << model.toStdString() << '\n'
              << "serial    " << general->getSerialNumber(error).toStdString() << '\n'
              << "firmware  " << general->getFirmwareVersion(error).toStdString() << '\n'
              << "address   " << general->getEthMacAddress(error).toStdString() << '\n'
              << "DSL       " << (gateway->hasDsl() ? "yes" : "no") << '\n'
              << "wireless  " << (gateway->hasWireless() ? "yes" : "no") << '\n'
              << "telephony " << (gateway->hasVoip() ? "yes" : "no") << '\n';
}
