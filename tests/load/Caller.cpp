#include "load/Caller.h"

#include <quorvel/AspAdslSettings.h>

#include <array>

namespace quorvel::test
{

namespace
{

/// What goes wrong. None of it lasts: the point is what becomes of the callers, not how long they
/// wait.
const std::array faults{"close",     "close effect=no", "reset:60",       "truncate",
                        "garbage",   "wrong-length",    "http:500",       "http:302",
                        "html",      "empty",           "error",          "delay:5",
                        "power-cut", "command-fails:3", "session-expired"};

/// What the faults make a gateway say when it did nothing.
const int refused = 11;

/// Half of the operations meet on these, so that callers get in each other's way.
const std::size_t busyGateways = 8;

} // namespace

Caller::Caller(int number, LoadedGateways& gateways, Complaints& complaints)
    : number(number),
      gateways(gateways),
      complaints(complaints),
      random(static_cast<std::mt19937::result_type>(number)),
      done(gateways.size())
{
    for (const auto& gateway : gateways)
        possible.push_back({gateway->mark(number, 0)});
}

void Caller::work(int operations)
{
    done.assign(gateways.size(), Book());
    for (int i = 0; i < operations; ++i) {
        if (random() % 10 == 0)
            gateways[somewhere()]->spoilOne(faults[random() % faults.size()]);
        if (random() % 50 == 0) {
            gateways[somewhere()]->handles[random() % 2]->abortPendingRequests();
            ++counted.aborts;
        }
        if (random() % 2 == 0)
            read(somewhere());
        else
            write(somewhere());
    }
}

void Caller::readAll()
{
    done.assign(gateways.size(), Book());
    for (std::size_t place = 0; place < gateways.size(); ++place) {
        read(place);
        if (done[place].readsAnswered != 1)
            complaints.add(gateways[place]->name + " didn't recover");
    }
}

void Caller::read(std::size_t place)
{
    ++counted.reads;
    ++done[place].readsBegun;
    AspWebAppErrorCodes error;
    const AspPppoxSettings settings = facadeOf(place).getPppoxSettings(
        QString::fromStdString(LoadedGateway::account(number)), error);
    const std::string mark = settings.username.toStdString();
    // A login that fails in transport leaves no error, but no settings either.
    if (error != AspWebAppNoError || mark.empty()) {
        ++counted.failures[error];
        if (!mark.empty())
            complaints.add("a failed read told " + mark);
        return;
    }
    ++counted.readsAnswered;
    ++done[place].readsAnswered;
    if (possible[place].count(mark) == 0 || settings.password != settings.username)
        complaints.add(gateways[place]->mark(number, writes) + " was the last of caller-" +
                       std::to_string(number) + " when it was told " + mark + " and " +
                       settings.password.toStdString());
    possible[place] = {mark};
}

void Caller::write(std::size_t place)
{
    const std::string mark = gateways[place]->mark(number, ++writes);
    AspAdslSettings settings;
    settings.linkType = QStringLiteral("pppoe");
    settings.pppoxInstance = QString::fromStdString(LoadedGateway::account(number));
    settings.pppoxSettings.type = QStringLiteral("pppoe");
    settings.pppoxSettings.username = QString::fromStdString(mark);
    settings.pppoxSettings.password = settings.pppoxSettings.username;
    AspWebAppErrorCodes error;
    const bool answered = facadeOf(place).setEthSettings(QStringLiteral("wan-1"), settings, error);
    ++counted.writes;
    const bool confirmed = answered && error == AspWebAppNoError;
    done[place].writes[mark] = confirmed;
    if (confirmed) {
        ++counted.writesConfirmed;
        possible[place] = {mark};
        return;
    }
    ++counted.failures[error];
    // The gateway's own word that it did nothing; all else leaves it open.
    if (!answered || error != refused)
        possible[place].insert(mark);
}

std::size_t Caller::somewhere()
{
    return random() % (random() % 2 == 0 ? busyGateways : gateways.size());
}

AspAdslSettingsFacade Caller::facadeOf(std::size_t place) const
{
    return AspAdslSettingsFacade(gateways[place]->handles[static_cast<std::size_t>(number) % 2]);
}

} // namespace quorvel::test
