#pragma once

#include "quorvel-simulator/GatewaySimulator.h"

#include <QProcess>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace quorvelctl::test
{

/// How a run of the program ended.
struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

/// What a run finds around it, beyond its arguments.
struct Surroundings {
    std::string address;
    std::string password = "admin";
    std::string input;
    std::map<std::string, std::string> variables = {};
    /// As a shell understands them.
    std::string redirections = {};
};

/// Gives a process its surroundings, and starts quorvelctl in it with arguments separated by
/// blanks; '' is an empty one.
void start(QProcess& process, const std::string& arguments, const Surroundings& surroundings);

/// Runs quorvelctl to its end.
Outcome runQuorvelctl(const std::string& arguments, const Surroundings& surroundings);

/// A simulated gateway to run the program against.
class QuorvelctlTest : public testing::Test
{
protected:
    explicit QuorvelctlTest(const std::string& scenario = "modern");

    /// Runs it with the gateway's address and password.
    Outcome run(const std::string& arguments, const std::string& input = std::string()) const;
    /// Runs it, which is to succeed and print exactly this.
    void expectOutput(const std::string& arguments, const std::string& output) const;
    /// Runs it, which is to fail with this one line behind "quorvelctl: ".
    void expectComplaint(const std::string& arguments, int status,
                         const std::string& complaint) const;
    /// Lets the gateway spoil requests, as Fault::fromText describes it.
    void spoil(const std::string& fault);

    quorvel::simulator::GatewaySimulator simulator;
};

} // namespace quorvelctl::test
