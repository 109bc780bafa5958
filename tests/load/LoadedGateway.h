#pragma once

#include "assembly/Cpe.h"
#include "load/Figures.h"
#include "quorvel-simulator/GatewaySimulator.h"

#include <QString>
#include <array>
#include <boost/shared_ptr.hpp>
#include <map>
#include <set>
#include <string>

namespace quorvel::test
{

/// What one caller did with one gateway in a round.
struct Book {
    long readsBegun = 0;
    long readsAnswered = 0;
    /// The marks of its writes, and whether the gateway confirmed them.
    std::map<std::string, bool> writes;
};

/// Books by caller.
using Books = std::map<int, Book>;

/// One of many gateways: a simulated one, and two handles on it, which share its session. Every
/// caller has an account of its own there, in which it leaves a mark that names the gateway, the
/// caller and the write.
class LoadedGateway
{
public:
    LoadedGateway(int number, int callers);

    /// The account of a caller.
    static std::string account(int caller);
    /// What a caller's write leaves there as the user name; 0 is what was there at first.
    std::string mark(int caller, int write) const;

    /// Lets something happen to a request that is yet to come.
    void spoilOne(const std::string& fault);
    /// Compares what the gateway received in a round with what the callers did, and forgets it.
    void audit(const Books& books, Figures& figures, Complaints& complaints);

    const std::string name;
    const std::string password;
    simulator::GatewaySimulator simulator;
    std::array<boost::shared_ptr<Cpe>, 2> handles;

private:
    struct Received {
        std::map<std::string, long> writes; ///< by mark
        std::map<std::string, long> reads;  ///< by account
    };

    void checkToken(const simulator::Exchange& exchange, Figures& figures, Complaints& complaints);
    void sortIn(const simulator::Exchange& exchange, Received& received, Complaints& complaints);

    std::set<std::string> tokens;
};

} // namespace quorvel::test
