#pragma once

#include "faults/Opponent.h"

#include <gtest/gtest.h>
#include <iosfwd>
#include <vector>

namespace quorvel::test
{

/// One fault, and what must come of it.
struct Fault {
    const char* name;
    Misbehaviour way;
    std::vector<int> errors; ///< what a facade's read may report

    int fewestRequests = 1;
    int mostConnections = 1;
    int repetitions = 20;
    int limitMs = 20000;
    int soonMs = 0;     ///< if set, the quickest round takes less
    int megabytes = 64; ///< by which the process may grow
    bool onSmallStack = false;

    // For rows that differ from the common run of them.

    Fault withoutRequest(int connections = 0) const;
    Fault times(int number) const;
    /// With a limit of its own instead of 20 seconds.
    Fault within(int milliseconds) const;
    Fault soonerThan(int milliseconds) const;
    Fault growingAtMost(int megabytes) const;
    Fault onStackOf256Kilobytes() const;
};

void PrintTo(const Fault& fault, std::ostream* out);

struct FaultName {
    template <typename Info>
    std::string operator()(const Info& info) const
    {
        return info.param.name;
    }
};

/// A read of the firmware version by a facade: its error code, and "1.2" if that is 0.
class FaultRow : public testing::TestWithParam<Fault>
{
protected:
    /// Meets the fault as often as the row says, each time followed by a good exchange on the same
    /// object, and expects the row's outcome and that nothing is left behind.
    static void expectOutcome(const Fault& fault);
};

} // namespace quorvel::test
