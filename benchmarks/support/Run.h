#pragma once

#include <cstring>

namespace quorvel::bench
{

/// Whether a program was asked by `--smoke` for as few calls as show that it works.
inline bool isSmokeRun(int argc, char** argv)
{
    return argc > 1 && std::strcmp(argv[1], "--smoke") == 0;
}

} // namespace quorvel::bench
