// Ends a wait on request, as a button "Cancel" does: 7-abort-a-wait ADDRESS, then Enter

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <QThread>
#include <iostream>

using namespace quorvel;

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: 7-abort-a-wait ADDRESS\n";
        return 2;
    }
    // Recognised before the other thread begins: while that is going on, nothing can be aborted.
    AspCpeFacadeObject gateway(loginAt(argv[1]));
    const auto general = gateway.getGeneralSettingsFacade();
    if (!general) {
        std::cerr << "There is no gateway, or it refused the login.\n";
        return 1;
    }

    AspWebAppErrorCodes error = AspWebAppNoError;
    QString firmware;
    QThread* const worker = QThread::create([&] { firmware = general->getFirmwareVersion(error); });
    worker->start();
    std::cout << "Asking. Enter gives up." << std::endl;
    std::cin.get();
    // A request that isn't on its way yet is not aborted, so one call might come too early.
    do
        gateway.abortPendingRequests();
    while (!worker->wait(100));
    delete worker;

    if (error == AspWebAppRequestFailed)
        std::cout << "Given up.\n";
    else
        std::cout << "Too late, it had answered: " << firmware.toStdString() << '\n';
}
