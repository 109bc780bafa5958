#include "ControlPort.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>

namespace quorvel::simulator
{

namespace
{

using Arguments = std::vector<std::string>;

struct ControlCommand {
    std::size_t arguments;
    const char* usage;
    /// Returns the value to answer with, or says in `error` what is wrong.
    std::function<std::string(GatewaySimulator&, const Arguments&, std::string& error)> run;
};

// The last argument takes the rest of the line, so that a value may hold blanks.
Arguments split(const std::string& text, std::size_t most)
{
    Arguments words;
    std::size_t start = text.find_first_not_of(' ');
    while (start != std::string::npos) {
        const bool last = words.size() + 1 == most;
        const auto end = last ? std::string::npos : text.find(' ', start);
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(' ', end);
    }
    return words;
}

std::string oneLine(const std::string& text)
{
    std::string line;
    for (const char c : text)
        line += c == '\n' ? std::string("\\n") : std::string(1, c);
    return line;
}

std::string transcript(GatewaySimulator& gateway)
{
    const std::string text = gateway.transcript();
    const auto lines = std::count(text.begin(), text.end(), '\n');
    return std::to_string(lines) + (text.empty() ? "" : "\n" + text.substr(0, text.size() - 1));
}

using Setter = void (*)(GatewaySimulator&, int);

// A command whose argument is a number.
ControlCommand numeric(const char* usage, Setter set)
{
    return {1, usage, [set](auto& gateway, const auto& arguments, auto& error) {
                char* end = nullptr;
                const long number = std::strtol(arguments[0].c_str(), &end, 10);
                if (*end != '\0' || number < 0 || number > 1000000000)
                    error = "'" + arguments[0] + "' is no number from 0";
                else
                    set(gateway, static_cast<int>(number));
                return std::string();
            }};
}

using Reader = std::string (GatewaySimulator::*)(const std::string&, const std::string&) const;

ControlCommand reading(const char* usage, Reader read)
{
    return {2, usage, [read](auto& gateway, const auto& arguments, auto&) {
                return oneLine((gateway.*read)(arguments[0], arguments[1]));
            }};
}

using Writer = void (GatewaySimulator::*)(const std::string&, const std::string&,
                                          const std::string&);

ControlCommand writing(const char* usage, Writer write)
{
    return {3, usage, [write](auto& gateway, const auto& arguments, auto&) {
                (gateway.*write)(arguments[0], arguments[1], arguments[2]);
                return std::string();
            }};
}

ControlCommand faulty(const char* usage, void (GatewaySimulator::*put)(const Fault&))
{
    return {1, usage, [put](auto& gateway, const auto& arguments, auto& error) {
                if (const auto fault = Fault::fromText(arguments[0], &error))
                    (gateway.*put)(*fault);
                return std::string();
            }};
}

ControlCommand simple(const char* usage, void (GatewaySimulator::*act)())
{
    return {0, usage, [act](auto& gateway, const auto&, auto&) {
                (gateway.*act)();
                return std::string();
            }};
}

ControlCommand telling(const char* usage, std::string (*tell)(GatewaySimulator&))
{
    return {0, usage, [tell](auto& gateway, const auto&, auto&) { return tell(gateway); }};
}

std::string usages();

const std::map<std::string, ControlCommand>& commands()
{
    using Sim = GatewaySimulator;
    using std::chrono::milliseconds;
    static const std::map<std::string, ControlCommand> table{
        {"fault", faulty("fault FAULT", &Sim::setFault)},
        {"add-fault", faulty("add-fault FAULT", &Sim::addFault)},
        {"clear", simple("clear", &Sim::clearFaults)},
        {"restart", simple("restart", &Sim::restart)},
        {"reboot-time",
         numeric("reboot-time MS", [](Sim& sim, int ms) { sim.setRebootTime(milliseconds(ms)); })},
        {"expire-sessions", simple("expire-sessions", &Sim::expireSessions)},
        {"session-lifetime",
         numeric("session-lifetime REQUESTS", [](Sim& sim, int n) { sim.setSessionRequests(n); })},
        {"session-idle",
         numeric("session-idle MS",
                 [](Sim& sim, int ms) { sim.setSessionIdleTime(milliseconds(ms)); })},
        {"sessions", numeric("sessions NUMBER", [](Sim& sim, int n) { sim.setSessionNumber(n); })},
        {"get", reading("get INSTANCE KEY", &Sim::value)},
        {"configured", reading("configured INSTANCE KEY", &Sim::configuredValue)},
        {"stored", reading("stored INSTANCE KEY", &Sim::storedValue)},
        {"set", writing("set INSTANCE KEY VALUE", &Sim::setValue)},
        {"status", writing("status INSTANCE KEY VALUE", &Sim::setStatus)},
        {"requests",
         telling("requests", [](Sim& sim) { return std::to_string(sim.requestCount()); })},
        {"connections",
         telling("connections", [](Sim& sim) { return std::to_string(sim.connectionCount()); })},
        {"reachable",
         telling("reachable", [](Sim& sim) { return std::string(sim.isReachable() ? "1" : "0"); })},
        {"transcript", telling("transcript", transcript)},
        {"forget", simple("forget", &Sim::clearExchanges)},
        {"help", telling("help", [](Sim&) { return usages(); })},
        {"quit", telling("quit", [](Sim&) { return std::string(); })},
    };
    return table;
}

std::string usages()
{
    std::string text;
    for (const auto& [name, command] : commands())
        text += (text.empty() ? "" : "; ") + std::string(command.usage);
    return text;
}

} // namespace

std::string runControlLine(GatewaySimulator& gateway, const std::string& line, bool& quits)
{
    const Arguments first = split(line, 2);
    const auto found = commands().find(first.empty() ? std::string() : first[0]);
    if (found == commands().end())
        return "error no such command; try help\n";
    const ControlCommand& command = found->second;
    Arguments arguments = split(first.size() > 1 ? first[1] : std::string(), command.arguments);
    // An empty value is nothing at the end of the line.
    if (command.arguments == 3 && arguments.size() == 2)
        arguments.emplace_back();
    if (arguments.size() != command.arguments)
        return std::string("error usage: ") + command.usage + "\n";
    std::string error;
    const std::string value = command.run(gateway, arguments, error);
    if (!error.empty())
        return "error " + error + "\n";
    quits = quits || found->first == "quit";
    return value.empty() ? "ok\n" : "ok " + value + "\n";
}

} // namespace quorvel::simulator
