#pragma once

#include "RawClient.h"
#include "quorvel-simulator/GatewaySimulator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace quorvel::simulator::tests
{

/// A POST as a client of the gateway sends it.
std::string post(const std::string& path, const std::string& body, const std::string& cookie = {});

/// The XML of a request. Each line is a verb, an instance, a key and, if it has one, a value that
/// may hold blanks; an instance of "-" stands for an empty one.
std::string xml(const std::string& version, std::initializer_list<const char*> lines);

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
    std::string send(std::initializer_list<const char*> lines);
    std::string sendXml(const std::string& text);
    /// The same, for those who only want to know the outcome.
    int errorOf(std::initializer_list<const char*> lines) { return errorIn(send(lines)); }
    /// Reads a key as a `get` does, from the reply in dialect 1.0.1.
    std::string get(const std::string& instance, const std::string& key);

    static std::string version(const std::string& scenario);

    std::string dialect;
    GatewaySimulator gateway;
    std::string cookie;
};

} // namespace quorvel::simulator::tests
