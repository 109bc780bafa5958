// Asks many gateways for their firmware, some at a time: 6-many-gateways ADDRESS...

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <QThreadPool>
#include <iostream>
#include <vector>

using namespace quorvel;

// Each gateway has a handle of its own, which only one thread uses. The factory, which would share
// handles, must not be asked by two threads at once.
QString firmwareOf(const char* address)
{
    AspCpeFacadeObject gateway(loginAt(address));
    int result = 0;
    const auto general = gateway.getGeneralSettingsFacade(&result);
    if (!general)
        return result < 0 ? "no gateway, or it refused the login" : "no general settings";
    AspWebAppErrorCodes error;
    const QString model = general->getModelName(error);
    const QString firmware = general->getFirmwareVersion(error);
    return error == AspWebAppNoError ? model + ", " + firmware
                                     : QString("error %1").arg(static_cast<int>(error));
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv); // must exist, even if its exec() is never called
    QThreadPool pool;
    // These threads wait for the network, so there may be more of them than processors.
    pool.setMaxThreadCount(16);

    std::vector<QString> answers(argc);
    for (int i = 1; i < argc; ++i)
        pool.start([&answers, i, argv] { answers[i] = firmwareOf(argv[i]); });
    pool.waitForDone();
    for (int i = 1; i < argc; ++i)
        std::cout << argv[i] << ": " << answers[i].toStdString() << '\n';
}
