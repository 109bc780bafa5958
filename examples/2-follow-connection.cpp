// Follows the state of the internet connection, while the main thread stays free for a window:
// 2-follow-connection ADDRESS [NUMBER OF CHANGES]

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <QThread>
#include <QTimer>
#include <cstdlib>
#include <iostream>
#include <limits>

using namespace quorvel;

const char* const names[] = {"connected", "not connected", "unknown"};

int main(int argc, char** argv)
{
    QCoreApplication window(argc, argv); // in a real host a QApplication
    if (argc < 2) {
        std::cerr << "usage: 2-follow-connection ADDRESS [NUMBER OF CHANGES]\n";
        return 2;
    }
    const AuthenticationInfo login = loginAt(argv[1]);
    int changesLeft = argc > 2 ? std::atoi(argv[2]) : std::numeric_limits<int>::max();

    // What a window does all the time: here it draws dots.
    QTimer drawing;
    QObject::connect(&drawing, &QTimer::timeout, [] { std::cerr << '.'; });
    drawing.start(50);

    // This thread may wait for the gateway. It has no event loop, so nothing can interrupt a call.
    QThread* const follower = QThread::create([&] {
        AspCpeFacadeObject gateway(login);
        const auto wans = gateway.getWanSettingsFacade();
        int known = -1;
        while (wans && changesLeft > 0) {
            AspWebAppErrorCodes error;
            const int state = wans->getInternetConnectionStatus2(error);
            if (state != known) {
                // Runs in the main thread, which owns the window.
                QMetaObject::invokeMethod(&window, [=] { std::cout << names[state] << std::endl; });
                known = state;
                --changesLeft;
            }
            QThread::msleep(500);
        }
    });
    QObject::connect(follower, &QThread::finished, &window, &QCoreApplication::quit);
    follower->start();
    window.exec();
    follower->wait();
    delete follower;
    return changesLeft > 0 ? 1 : 0;
}
