#include "ControlPort.h"
#include "Options.h"
#include "quorvel-simulator/GatewaySimulator.h"

#include <csignal>
#include <fstream>
#include <iostream>
#include <sys/signalfd.h>

namespace quorvel::simulator
{

namespace
{

enum ExitStatus { Clean = 0, CannotRun = 1, BadUsage = 2 };

int fail(ExitStatus status, const std::string& reason)
{
    std::cerr << "quorvel-gateway-sim: " << reason << "\n";
    return status;
}

int listScenarios()
{
    for (const std::string& name : Scenario::names()) {
        std::string error;
        const auto scenario = Scenario::load(name, &error);
        std::cout << name << ": " << (scenario ? scenario->description : error) << "\n";
    }
    return Clean;
}

// Signals are read like any other input: no code runs in a handler. Blocked before the first
// thread starts, since threads inherit it.
Socket endSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return Socket(signalfd(-1, &signals, SFD_CLOEXEC));
}

void apply(const Options& options, Scenario& scenario)
{
    if (options.rebootTime >= 0)
        scenario.rebootTime = options.rebootTime;
    if (options.sessionRequests >= 0)
        scenario.sessionRequests = options.sessionRequests;
    if (options.sessionNumber >= 0)
        scenario.sessionNumber = options.sessionNumber;
}

bool injectFaults(const Options& options, GatewaySimulator& gateway, std::string& error)
{
    for (const std::string& text : options.faults) {
        const auto fault = Fault::fromText(text, &error);
        if (!fault)
            return false;
        gateway.addFault(*fault);
    }
    return true;
}

void announce(const GatewaySimulator& gateway, const ControlPort& control)
{
    std::cout << "quorvel-gateway-sim: listening on " << gateway.url();
    if (control.number() > 0)
        std::cout << ", control port " << control.number();
    // Scripts read this line from a pipe to learn the port.
    std::cout << std::endl;
}

void waitForTheEnd(const Socket& signals, ControlPort& control)
{
    for (bool goesOn = true; goesOn;) {
        std::vector<pollfd> polled{{signals.descriptor(), POLLIN, 0}};
        control.poll(polled);
        poll(polled.data(), polled.size(), -1);
        goesOn = (polled[0].revents & POLLIN) == 0 && control.serve();
    }
}

bool writeTranscript(const GatewaySimulator& gateway, const std::string& path)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << gateway.transcript();
    return static_cast<bool>(file.flush());
}

int run(const Options& options)
{
    std::string error;
    auto scenario = options.dump.empty() ? Scenario::load(options.scenario, &error)
                                         : Scenario::fromDump(options.dump, &error);
    if (!scenario)
        return fail(BadUsage, error);
    apply(options, *scenario);
    const Socket signals = endSignals();
    GatewaySimulator gateway(*scenario);
    gateway.listenOn(options.address, options.port);
    if (!injectFaults(options, gateway, error))
        return fail(BadUsage, "--fault: " + error);
    ControlPort control(gateway);
    if (!gateway.start(&error) ||
        (options.controlPort >= 0 && !control.listen(options.controlPort, error)))
        return fail(CannotRun, error);
    const auto writesTranscript = [&] {
        return options.transcript.empty() || writeTranscript(gateway, options.transcript);
    };
    // Tried while there is nothing to lose yet.
    if (!writesTranscript())
        return fail(CannotRun, "cannot write " + options.transcript);
    announce(gateway, control);
    waitForTheEnd(signals, control);
    gateway.stop();
    if (!writesTranscript())
        return fail(CannotRun, "cannot write " + options.transcript);
    return Clean;
}

} // namespace

} // namespace quorvel::simulator

int main(int argc, char** argv)
{
    using namespace quorvel::simulator;
    Options options;
    const int status = readOptions(argc, argv, options);
    if (status >= 0)
        return status;
    return options.listScenarios ? listScenarios() : run(options);
}
