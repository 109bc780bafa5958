#pragma once

namespace quorvel::test
{

int openFiles();
int runningThreads();
/// What of the process is in memory now.
long residentKilobytes();

/// What the process has open and running when this is made.
struct Resources {
    int files = openFiles();
    int threads = runningThreads();

    /// Waits until no more files are open and no more threads run than when this was made. False
    /// after 10 seconds.
    bool areBack() const;
};

} // namespace quorvel::test
