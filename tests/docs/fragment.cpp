// Runs statements of a document, which are what fragment.inc holds, with the names that they use
// for what a host has: fragment ADDRESS. Ends by SIGTERM.

#include <quorvel/QuorvelApi1.h>

#include <QtCore>
#include <boost/make_shared.hpp>
#include <csignal>

using namespace quorvel;

static void fragment(boost::shared_ptr<AspCpeFacadeObject> gateway, AuthenticationInfo info,
                     AspWebAppErrorCodes error, QObject* window)
{
#include "fragment.inc"
}

/// Lets each running timer fire at once, and again if it has been started again; no more than that.
static void hasten(const QObject& window)
{
    for (QTimer* const timer : window.findChildren<QTimer*>()) {
        if (!timer->isActive())
            continue;
        QObject::connect(timer, &QTimer::timeout, timer, [timer, again = true]() mutable {
            if (again && timer->isActive())
                timer->start(0);
            else
                timer->stop();
            again = false;
        });
        timer->start(0);
    }
}

static void holdTermination(int how)
{
    sigset_t termination;
    sigemptyset(&termination);
    sigaddset(&termination, SIGTERM);
    pthread_sigmask(how, &termination, nullptr);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QObject window;
    const AuthenticationInfo info{"admin", "admin", argv[1]};

    // Who has seen enough output may still not keep the fragment from failing at its end.
    holdTermination(SIG_BLOCK);
    fragment(boost::make_shared<AspCpeFacadeObject>(info), info, AspWebAppNoError, &window);
    hasten(window);
    holdTermination(SIG_UNBLOCK);
    return QCoreApplication::exec();
}
