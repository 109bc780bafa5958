#pragma once

#include <quorvel/AspAdslSettingsFacade.h>

#include "load/LoadedGateway.h"

#include <memory>
#include <random>
#include <vector>

namespace quorvel::test
{

using LoadedGateways = std::vector<std::unique_ptr<LoadedGateway>>;

/// One of many threads that use the gateways at once, each at random: it reads and writes its own
/// accounts, spoils a tenth of the requests, its own or another's, and aborts what others wait for.
class Caller
{
public:
    Caller(int number, LoadedGateways& gateways, Complaints& complaints);

    /// So many operations; what was done before is off the books.
    void work(int operations);
    /// Reads all accounts, on gateways that are at peace.
    void readAll();

    /// By gateway, in their order.
    const std::vector<Book>& books() const { return done; }
    const Figures& figures() const { return counted; }

private:
    void read(std::size_t place);
    void write(std::size_t place);
    std::size_t somewhere();
    AspAdslSettingsFacade facadeOf(std::size_t place) const;

    const int number;
    LoadedGateways& gateways;
    Complaints& complaints;
    std::mt19937 random;
    int writes = 0;
    std::vector<Book> done;
    Figures counted;
    /// What may stand in the account on each gateway: the last mark that the gateway confirmed or
    /// told, and those of later writes whose outcome nobody knows.
    std::vector<std::set<std::string>> possible;
};

} // namespace quorvel::test
