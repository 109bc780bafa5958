#pragma once

#include <chrono>

namespace quorvel::test
{

int openFiles();
int runningThreads();
/// What of the process is in memory now.
long residentKilobytes();

/// What the process has open and running when this is made, without what is about to go.
class Resources
{
public:
    Resources();

    /// Waits until no more files are open and no more threads run than when this was made. False
    /// after so long.
    bool areBack(std::chrono::seconds patience = std::chrono::seconds(10)) const;

private:
    int files;
    int threads;
};

} // namespace quorvel::test
