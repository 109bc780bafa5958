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
    std::abort();
}

bool faultIsPlanted()
{
    static const bool planted = std::getenv("QUORVEL_PLANTED_FAULT") != nullptr;
    return planted;
}

} // namespace quorvel::fuzz
