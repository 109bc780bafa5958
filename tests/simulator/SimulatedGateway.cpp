#include "SimulatedGateway.h"

#include <cstdlib>
#include <sstream>

namespace quorvel::simulator::tests
{

namespace
{

Scenario loaded(const std::string& name)
{
    std::string error;
    auto scenario = Scenario::load(name, &error);
    EXPECT_TRUE(scenario) << error;
    return scenario.value_or(Scenario{});
}

std::string command(const std::string& line)
{
    std::istringstream words(line);
    std::string verb;
    std::string instance;
    std::string key;
    std::string value;
    words >> verb >> instance >> key;
    std::getline(words >> std::ws, value);
    return "<" + verb + " inst=\"" + (instance == "-" ? "" : instance) + "\"><key>" + key +
           "</key><value>" + value + "</value></" + verb + ">";
}

} // namespace

std::string post(const std::string& path, const std::string& body, const std::string& cookie)
{
    return "POST " + path + " HTTP/1.1\r\nHost: gateway\r\n" +
           (cookie.empty() ? "" : "Cookie: " + cookie + "\r\n") +
           "Content-Type: application/x-www-form-urlencoded\r\n"
           "Content-Length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string xml(const std::string& version, const Lines& lines)
{
    std::string text = "<xmlrequest version=\"" + version + "\">";
    for (const std::string& line : lines)
        text += command(line);
    return text + "</xmlrequest>";
}

int errorIn(const std::string& body)
{
    const std::string label = "<webapp><error>";
    const auto place = body.find(label);
    return place == std::string::npos ? -1 : std::atoi(body.c_str() + place + label.size());
}

SimulatedGateway::SimulatedGateway(const std::string& scenario)
    : dialect(version(scenario)), gateway(loaded(scenario))
{
}

void SimulatedGateway::SetUp()
{
    std::string error;
    ASSERT_TRUE(gateway.start(&error)) << error;
    gateway.setRebootTime(std::chrono::milliseconds(50));
    cookie = logIn();
    ASSERT_NE(cookie, "");
}

std::string SimulatedGateway::logIn(const std::string& form)
{
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/login", form));
    client.readReply();
    const std::string header = client.header("Set-Cookie");
    return header.substr(0, header.find(';'));
}

std::string SimulatedGateway::send(const Lines& lines)
{
    return sendXml(xml(dialect, lines));
}

std::string SimulatedGateway::sendXml(const std::string& text)
{
    RawClient client(gateway.port());
    client.send(post("/cgi-bin/webapp", text, cookie));
    client.readReply();
    return client.body();
}

std::string SimulatedGateway::read(const std::string& line, const std::string& key)
{
    const std::string body = send({line});
    const std::string label =
        dialect == "1.0.0" ? "<" + key + ">" : "<key>" + key + "</key><value>";
    const auto place = body.find(label);
    if (place == std::string::npos)
        return {};
    const auto start = place + label.size();
    return body.substr(start, body.find('<', start) - start);
}

std::string SimulatedGateway::version(const std::string& scenario)
{
    return scenario == "classic" ? "1.0.0" : "1.0.1";
}

} // namespace quorvel::simulator::tests
