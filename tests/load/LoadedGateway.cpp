#include "load/LoadedGateway.h"

#include "assembly/CpeBuilderDirector.h"
#include "assembly/CpeBuilderFactory.h"

#include <gtest/gtest.h>

#include <QUrl>

namespace quorvel::test
{

using simulator::Exchange;
using simulator::Fault;
using simulator::Scenario;

namespace
{

Scenario scenarioOf(const LoadedGateway& gateway, int callers)
{
    Scenario scenario = Scenario::load("modern").value_or(Scenario{});
    for (const char* holder : {"webui-0", "sysmgr-0"})
        scenario.configuration[holder]["password"] = gateway.password;
    for (int caller = 0; caller < callers; ++caller) {
        auto& account = scenario.configuration[LoadedGateway::account(caller)];
        account = scenario.configuration["pppox-1"];
        account["username"] = account["password"] = gateway.mark(caller, 0);
    }
    return scenario;
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// The session in a header, in either direction; empty if there is none.
std::string tokenIn(const std::string& head)
{
    static const std::string label = "SID=";
    const auto place = head.find(label);
    return place == std::string::npos ? std::string() : head.substr(place + label.size(), 32);
}

/// What starts with `beginning`, up to the end of the text or attribute; empty if nothing does.
std::string found(const std::string& text, const std::string& beginning)
{
    const auto place = text.find(beginning);
    return place == std::string::npos
               ? std::string()
               : text.substr(place, text.find_first_of("<\"", place) - place);
}

} // namespace

LoadedGateway::LoadedGateway(int number, int callers)
    : name("gateway-" + std::to_string(number)),
      password("password of " + name),
      simulator(scenarioOf(*this, callers))
{
    std::string problem;
    EXPECT_TRUE(simulator.start(&problem)) << problem;
    simulator.setRebootTime(std::chrono::milliseconds(0));
    simulator.setSessionRequests(30);
    simulator.setRecordLimit(1000000);
    const AuthenticationInfo info{QStringLiteral("admin"), QString::fromStdString(password),
                                  QString::fromStdString(simulator.address())};
    for (auto& handle : handles) {
        handle =
            CpeBuilderDirector().buildCpe(CpeBuilderFactory::getInstance()->createBuilder(0), info);
        EXPECT_TRUE(handle) << name;
    }
    for (const Exchange& exchange : simulator.exchanges())
        tokens.insert(tokenIn(exchange.replyHead));
    simulator.clearExchanges();
}

std::string LoadedGateway::account(int caller)
{
    return "pppox-" + std::to_string(100 + caller);
}

std::string LoadedGateway::mark(int caller, int write) const
{
    return name + " caller-" + std::to_string(caller) + " write-" + std::to_string(write);
}

void LoadedGateway::spoilOne(const std::string& fault)
{
    const auto known = Fault::fromText(fault + " 1");
    ASSERT_TRUE(known) << fault;
    simulator.addFault(*known);
}

void LoadedGateway::audit(const Books& books, Figures& figures, Complaints& complaints)
{
    Received received;
    for (const Exchange& exchange : simulator.exchanges()) {
        ++figures.exchanges;
        if (!exchange.fault.empty())
            ++figures.faults[exchange.fault];
        checkToken(exchange, figures, complaints);
        if (exchange.path != "/cgi-bin/webapp")
            continue;
        // A request that meets an expired session isn't served, and comes again.
        if (contains(exchange.replyBody, "<error>1</error>"))
            ++figures.expiredSessions;
        else
            sortIn(exchange, received, complaints);
    }
    simulator.clearExchanges();
    for (const auto& [caller, book] : books) {
        const long reads = received.reads[account(caller)];
        if (reads < book.readsAnswered || reads > book.readsBegun)
            complaints.add(account(caller) + " was read " + std::to_string(reads) + " times on " +
                           name);
        for (const auto& [mark, isConfirmed] : book.writes) {
            const long writes = received.writes[mark];
            received.writes.erase(mark);
            if (writes > 1 || (isConfirmed && writes == 0))
                complaints.add(mark + " was written " + std::to_string(writes) + " times");
        }
    }
    for (const auto& [mark, number] : received.writes)
        complaints.add(mark + " was written by nobody, " + std::to_string(number) + " times");
}

void LoadedGateway::checkToken(const Exchange& exchange, Figures& figures, Complaints& complaints)
{
    const std::string token = tokenIn(exchange.requestHead);
    if (exchange.path == "/cgi-bin/login") {
        ++figures.logins;
        const std::string form =
            "user=admin&password=" +
            QUrl::toPercentEncoding(QString::fromStdString(password)).toStdString();
        if (exchange.requestBody != form || !token.empty())
            complaints.add(name + " got the login " + exchange.requestBody);
        tokens.insert(tokenIn(exchange.replyHead));
    } else if (token.empty()) {
        // Taken away by another caller between this one's login and its request.
        ++figures.withoutSession;
    } else if (tokens.count(token) == 0) {
        complaints.add(name + " got the foreign session '" + token + "'");
    }
}

void LoadedGateway::sortIn(const Exchange& exchange, Received& received, Complaints& complaints)
{
    const std::string mark = found(exchange.requestBody, "gateway-");
    const std::string read = found(exchange.requestBody, "pppox-1");
    if (!mark.empty())
        ++received.writes[mark];
    else if (!read.empty())
        ++received.reads[read];
    else
        complaints.add(name + " got the request " + exchange.requestBody);
}

} // namespace quorvel::test
