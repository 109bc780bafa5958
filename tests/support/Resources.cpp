#include "support/Resources.h"

#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <algorithm>
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

Resources::Resources() : files(openFiles()), threads(runningThreads())
{
    // The other end of a connection that has just closed may still be closing: the fewest count.
    for (int i = 0; i < 30; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        files = std::min(files, openFiles());
        threads = std::min(threads, runningThreads());
    }
}

bool Resources::areBack(std::chrono::seconds patience) const
{
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + patience;
    while (openFiles() > files || runningThreads() > threads) {
        if (Clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace quorvel::test
