#pragma once

#include <sys/resource.h>

namespace quorvel::test
{

/// How far the process's peak of memory has risen since this was made.
class MemoryWatch
{
public:
    /// 0 under a sanitizer, which keeps what the program frees.
    long grownMegabytes() const
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        return 0;
#else
        return (peakKilobytes() - before) / 1024;
#endif
    }

private:
    static long peakKilobytes()
    {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    }

    long before = peakKilobytes();
};

} // namespace quorvel::test
