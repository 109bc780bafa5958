#include "load/Figures.h"

#include <sstream>

namespace quorvel::test
{

namespace
{

template <typename Key>
void add(std::map<Key, long>& to, const std::map<Key, long>& from)
{
    for (const auto& [key, number] : from)
        to[key] += number;
}

template <typename Key>
std::string listing(const std::map<Key, long>& numbers)
{
    std::ostringstream text;
    for (const auto& [key, number] : numbers)
        text << (text.tellp() > 0 ? ", " : "") << key << ": " << number;
    return text.str();
}

} // namespace

Figures& Figures::operator+=(const Figures& other)
{
    reads += other.reads;
    readsAnswered += other.readsAnswered;
    writes += other.writes;
    writesConfirmed += other.writesConfirmed;
    aborts += other.aborts;
    add(failures, other.failures);
    exchanges += other.exchanges;
    logins += other.logins;
    expiredSessions += other.expiredSessions;
    withoutSession += other.withoutSession;
    add(faults, other.faults);
    return *this;
}

std::string Figures::text() const
{
    std::ostringstream text;
    text << "reads             " << reads << ", of which " << readsAnswered << " answered\n"
         << "writes            " << writes << ", of which " << writesConfirmed << " confirmed\n"
         << "aborts            " << aborts << "\n"
         << "failed with error " << listing(failures) << "\n"
         << "logins            " << logins << "\n"
         << "expired sessions  " << expiredSessions << "\n"
         << "without a session " << withoutSession << "\n"
         << "faults            " << listing(faults) << "\n";
    return text.str();
}

void Complaints::add(const std::string& complaint)
{
    const std::lock_guard lock(mutex);
    if (++number <= 20)
        first.push_back(complaint);
}

std::vector<std::string> Complaints::all() const
{
    const std::lock_guard lock(mutex);
    std::vector<std::string> lines = first;
    if (number > 20)
        lines.push_back("and " + std::to_string(number - 20) + " more");
    return lines;
}

} // namespace quorvel::test
