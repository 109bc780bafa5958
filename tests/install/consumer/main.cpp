#include <ostra/OstraLogger.h>
#include <ostramw/ConfigDataFactory.h>
#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <iostream>

// Needs no gateway: what a handle answers when there is none, and both platform services.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    int lines = 0;
    OstraLogger::getInstance()->setSink([&](const QString&, int, const QString&) { ++lines; });
    auto* config = ostramw::ConfigDataFactory::getInstance();
    config->setConfigValue(QLatin1String("OSTRA_CONFIG_SHOWVDSLSETTINGS"), QLatin1String("1"));

    quorvel::AuthenticationInfo info;
    info.cpeAddress = QLatin1String("127.0.0.1:1");
    quorvel::AspCpeFacadeObject gateway(info);
    quorvel::AspWebAppErrorCodes error = quorvel::AspWebAppNoError;
    quorvel::AspGeneralSettingsFacade facade{boost::shared_ptr<quorvel::Cpe>()};
    const QString firmware = facade.getFirmwareVersion(error);
    std::cout << "vdsl " << gateway.hasVdsl() << ", general " << gateway.hasGeneral() << ", error "
              << error << ", firmware '" << firmware.toStdString() << "', logged " << (lines > 0)
              << '\n';
}
