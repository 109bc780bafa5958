#include "Options.h"

#include "commandline/CommandLine.h"
#include "manual/Manual.h"

#include <climits>
#include <iostream>

namespace quorvel::simulator
{

namespace
{

constexpr int usageError = 2;
constexpr int largestPort = 65535;

void declare(commandline::Command program, Options& options)
{
    auto scenario = program
                        .addOption("--scenario", options.scenario,
                                   "The gateway to be: a name of --list-scenarios, or a file")
                        .showDefault();
    program
        .addOption("--from-dump", options.dump,
                   "Be the gateway that 'quorvelctl dump' has written to this file")
        .valueName("FILE")
        .excludes(scenario);
    program.addOption("--address", options.address, "The address to listen on").showDefault();
    program.addOption("--port", options.port, "The port to listen on; 0 takes a free one")
        .showDefault()
        .between(0, largestPort);
    program
        .addOption("--control-port,--control", options.controlPort,
                   "Also listen for control commands on this port of 127.0.0.1; 0 takes a free "
                   "one")
        .between(0, largestPort);
    program
        .addOption("--fault", options.faults,
                   "Inject a fault: NAME[:ARGUMENT][,TIMES][,after=N][,on=login|webapp|probe]"
                   "[,key=KEY][,effect=no]; may be given several times")
        .oneAtATime();
    program
        .addOption("--reboot-time", options.rebootTime,
                   "How many milliseconds a restart takes; the scenario's unless given")
        .between(0, INT_MAX);
    program
        .addOption("--session-lifetime", options.sessionRequests,
                   "How many requests a session answers before it expires; 0 means any number")
        .between(0, INT_MAX);
    program
        .addOption("--sessions", options.sessionNumber,
                   "How many sessions live at once; 0 means any number")
        .between(0, INT_MAX);
    program.addOption("--transcript", options.transcript,
                      "Write what was exchanged to this file at the end, secrets masked");
    program.addFlag("--list-scenarios", options.listScenarios, "List the scenarios and exit");
}

} // namespace

int readOptions(int argc, char** argv, Options& options)
{
    commandline::CommandLine line(
        "quorvel-gateway-sim",
        "A home gateway that isn't there: answers on a TCP port as one does.");
    declare(line.program(), options);
    line.setVersion("quorvel-gateway-sim " QUORVEL_VERSION);
    manual::addManual(line);
    try {
        return line.run(argc, argv) ? -1 : 0;
    } catch (const commandline::Misuse& misuse) {
        std::cerr << misuse.message << "\nRun with --help for more information.\n";
        return usageError;
    }
}

} // namespace quorvel::simulator
