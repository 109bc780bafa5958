#include "fuzz/Require.h"

#include <cstdio>
#include <cstdlib>

namespace quorvel::fuzz
{

void require(bool kept, const char* promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "NOT KEPT: %s\n", promise);
    // What was looked for is found; a crash would be a failure even where it is expected.
    if (faultIsPlanted())
        std::_Exit(1);
    std::abort();
}

bool faultIsPlanted()
{
    static const bool planted = std::getenv("QUORVEL_PLANTED_FAULT") != nullptr;
    return planted;
}

} // namespace quorvel::fuzz
