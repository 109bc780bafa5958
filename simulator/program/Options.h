#pragma once

#include <string>
#include <vector>

namespace quorvel::simulator
{

/// What the command line asks for.
struct Options {
    std::string scenario = "modern";
    /// A dump to be the gateway of, in place of a scenario; empty: none.
    std::string dump;
    std::string address = "127.0.0.1";
    int port = 0;
    /// -1: no control port.
    int controlPort = -1;
    std::vector<std::string> faults;
    /// -1 in each: the scenario's.
    int rebootTime = -1;
    int sessionRequests = -1;
    int sessionNumber = -1;
    std::string transcript;
    bool listScenarios = false;
};

/// Reads the command line. Returns -1 to go on, otherwise the status to exit with; whatever there
/// is to say has then been printed.
int readOptions(int argc, char** argv, Options& options);

} // namespace quorvel::simulator
