#include "support/Resources.h"

#include "support/Text.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <QSet>
#include <thread>
#include <unistd.h>

namespace quorvel::test
{

namespace
{

int entriesOf(const char* folder)
{
    return QDir(text(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

/// The sockets that this process has open, as the kernel numbers them.
QSet<QByteArray> ownSockets()
{
    const QByteArray mark = "socket:[";
    QSet<QByteArray> sockets;
    const QDir folder(text("/proc/self/fd"));
    for (const QString& name : folder.entryList(QDir::AllEntries | QDir::System)) {
        char target[64] = {};
        const QByteArray path = folder.filePath(name).toLocal8Bit();
        if (::readlink(path.constData(), target, sizeof target - 1) > 0 &&
            QByteArray(target).startsWith(mark))
            sockets.insert(QByteArray(target).mid(mark.size()).chopped(1));
    }
    return sockets;
}

/// Connections of this process that their other end has closed, and this one not yet.
int halfClosedConnections()
{
    const QByteArray closeWait = "08";
    const QSet<QByteArray> own = ownSockets();
    QFile table(text("/proc/self/net/tcp"));
    table.open(QIODevice::ReadOnly);
    int count = 0;
    for (const QByteArray& line : table.readAll().split('\n')) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        if (columns.value(3) == closeWait && own.contains(columns.value(9)))
            ++count;
    }
    return count;
}

/// Whether a condition is met within so long.
template <typename Condition>
bool waitUntil(std::chrono::seconds patience, Condition isMet)
{
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + patience;
    while (!isMet()) {
        if (Clock::now() > deadline)
            return false;
        std::this_thread::yield();
    }
    return true;
}

} // namespace

int openFiles()
{
    return entriesOf("/proc/self/fd");
}

int runningThreads()
{
    return entriesOf("/proc/self/task");
}

long residentKilobytes()
{
    QFile file(text("/proc/self/statm"));
    file.open(QIODevice::ReadOnly);
    return file.readAll().split(' ').value(1).toLong() * (::sysconf(_SC_PAGESIZE) / 1024);
}

Resources::Resources()
{
    // The other end of a connection that has just closed may still be closing.
    waitUntil(std::chrono::seconds(1), [] { return halfClosedConnections() == 0; });
    files = openFiles();
    threads = runningThreads();
}

bool Resources::areBack(std::chrono::seconds patience) const
{
    return waitUntil(patience,
                     [this] { return openFiles() <= files && runningThreads() <= threads; });
}

} // namespace quorvel::test
