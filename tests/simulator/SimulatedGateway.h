#pragma once

#include "RawClient.h"
#include "quorvel-simulator/GatewaySimulator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvel::simulator::tests
{

/// A POST as a client of the gateway sends it.
std::string post(const std::string& path, const std::string& body, const std::string& cookie = {});

/// The lines of a request.
using Lines = std::vector<std::string>;

/// The XML of a request. Each line is a verb, an instance, a key and, if it has one, a value that
/// may hold blanks; an instance of "-" stands for an empty one.
std::string xml(const std::string& version, const Lines& lines);

/// The number in a reply's `webapp` element, or -1.
int errorIn(const std::string& body);

/// A running gateway, and a client that is logged in.
class SimulatedGateway : public testing::Test
{
protected:
    explicit SimulatedGateway(const std::string& scenario = "modern");

    void SetUp() override;
    /// Logs in with the form body and returns what to send as the cookie; empty if refused.
    std::string logIn(const std::string& form = "user=admin&password=admin");
    /// Sends a request on a connection of its own and returns the reply's body.
    std::string send(const Lines& lines);
    std::string sendXml(const std::string& text);
    /// The same, for those who only want to know the outcome.
    int errorOf(const Lines& lines) { return errorIn(send(lines)); }
    /// Sends one line and returns the value that came under the key, or nothing.
    std::string read(const std::string& line, const std::string& key);
    std::string get(const std::string& instance, const std::string& key)
    {
        return read("get " + instance + " " + key, key);
    }
    std::string query(const std::string& instance, const std::string& key)
    {
        return read("query " + instance + " " + key, key);
    }

    static std::string version(const std::string& scenario);

    std::string dialect;
    GatewaySimulator gateway;
    std::string cookie;
};

} // namespace quorvel::simulator::tests
