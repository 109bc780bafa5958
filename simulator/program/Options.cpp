#include "Options.h"

#include "manual/Manual.h"

#include <CLI/CLI.hpp>

#include <climits>

namespace quorvel::simulator
{

namespace
{

constexpr int usageError = 2;

void declare(CLI::App& app, Options& options)
{
    const CLI::Range port(0, 65535);
    const CLI::Range count(0, INT_MAX);
    auto* scenario = app.add_option("--scenario", options.scenario,
                                    "The gateway to be: a name of --list-scenarios, or a file")
                         ->capture_default_str();
    app.add_option("--from-dump", options.dump,
                   "Be the gateway that 'quorvelctl dump' has written to this file")
        ->type_name("FILE")
        ->excludes(scenario);
    app.add_option("--address", options.address, "The address to listen on")->capture_default_str();
    app.add_option("--port", options.port, "The port to listen on; 0 takes a free one")
        ->capture_default_str()
        ->check(port);
    app.add_option("--control-port,--control", options.controlPort,
                   "Also listen for control commands on this port of 127.0.0.1; 0 takes a free "
                   "one")
        ->check(port);
    app.add_option("--fault", options.faults,
                   "Inject a fault: NAME[:ARGUMENT][,TIMES][,after=N][,on=login|webapp|probe]"
                   "[,key=KEY][,effect=no]; may be given several times")
        ->allow_extra_args(false);
    app.add_option("--reboot-time", options.rebootTime,
                   "How many milliseconds a restart takes; the scenario's unless given")
        ->check(count);
    app.add_option("--session-lifetime", options.sessionRequests,
                   "How many requests a session answers before it expires; 0 means any number")
        ->check(count);
    app.add_option("--sessions", options.sessionNumber,
                   "How many sessions live at once; 0 means any number")
        ->check(count);
    app.add_option("--transcript", options.transcript,
                   "Write what was exchanged to this file at the end, secrets masked");
    app.add_flag("--list-scenarios", options.listScenarios, "List the scenarios and exit");
    app.set_version_flag("--version", "quorvel-gateway-sim " QUORVEL_VERSION);
    manual::addManual(app);
}

} // namespace

int readOptions(int argc, char** argv, Options& options)
{
    CLI::App app("A home gateway that isn't there: answers on a TCP port as one does.",
                 "quorvel-gateway-sim");
    declare(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& outcome) {
        return app.exit(outcome) == 0 ? 0 : usageError;
    }
    return -1;
}

} // namespace quorvel::simulator
