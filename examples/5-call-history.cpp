// Shows the calls of a line, a screen of ten at a time: 5-call-history ADDRESS LINE

#include "Login.h"

#include <quorvel/QuorvelApi1.h>

#include <QCoreApplication>
#include <cstdlib>
#include <iostream>

using namespace quorvel;

const int perScreen = 10;

void show(const QList<AspVoipCallHistory>& screen)
{
    for (const AspVoipCallHistory& call : screen)
        std::cout << call.time.toStdString() << "  " << call.callerId.toStdString() << " -> "
                  << call.destination.toStdString() << "  " << call.duration.toStdString()
                  << " s\n";
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "usage: 5-call-history ADDRESS LINE\n";
        return 2;
    }
    AspCpeFacadeObject gateway(loginAt(argv[1]));
    const auto telephony = gateway.getVoipSettingsFacade();
    if (!telephony) {
        std::cerr << "No gateway, or none with telephony.\n";
        return 1;
    }

    AspVoipCallHistoryFilter filter;
    filter.line = std::atoi(argv[2]);
    filter.callType = 3; // calls of all kinds
    AspWebAppErrorCodes error;
    // The library asks the gateway for 20 calls at a time.
    QList<AspVoipCallHistory> calls = telephony->getVoipCallHistory(filter, error);
    if (error != AspWebAppNoError) {
        std::cerr << "The calls can't be read: error " << error << '\n';
        return 1;
    }
    if (!calls.isEmpty() && calls.last().time == "--::")
        calls.removeLast(); // the empty one that ends the list
    std::cout << calls.size() << " calls\n";
    for (int first = 0; first < calls.size(); first += perScreen) {
        show(calls.mid(first, perScreen));
        if (first + perScreen < calls.size()) {
            std::cout << "-- Enter for more --" << std::endl;
            std::cin.get();
        }
    }
}
