#include "Program.h"
#include "SimulatedGateway.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace quorvel::simulator::tests
{

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

int portBehind(const std::string& text, const std::string& label)
{
    const auto place = text.find(label);
    return place == std::string::npos ? -1 : std::atoi(text.c_str() + place + label.size());
}

std::string ask(int port, const std::string& bytes)
{
    RawClient client(port);
    client.send(bytes);
    client.readReply();
    return client.body();
}

std::string command(RawClient& control, const std::string& line)
{
    control.forget();
    control.send(line + "\n");
    control.readUntil("\n");
    return control.received();
}

} // namespace

TEST(ProgramTest, PrintsItsAddressAndServes)
{
    Program program({"--scenario", "classic"});
    const int port = portBehind(program.line(), "listening on http://127.0.0.1:");
    EXPECT_EQ(program.line(),
              "quorvel-gateway-sim: listening on http://127.0.0.1:" + std::to_string(port));
    RawClient login(port);
    login.send(post("/cgi-bin/login", "user=admin&password=admin"));
    login.readReply();
    const std::string cookie = login.header("Set-Cookie");
    EXPECT_THAT(ask(port, post("/cgi-bin/webapp", xml("1.0.0", {"query sysmgr-0 fwversion"}),
                               cookie.substr(0, cookie.find(';')))),
                HasSubstr("<fwversion>1.4.12</fwversion>"));
    EXPECT_EQ(program.end(SIGTERM), 0);
}

TEST(ProgramTest, EndsCleanlyOnAnInterrupt)
{
    Program program({});
    program.line();
    EXPECT_EQ(program.end(SIGINT), 0);
    EXPECT_EQ(program.errors(), "");
}

TEST(ProgramTest, TakesCommandsOnASecondPort)
{
    Program program({"--control-port", "0"});
    const int port = portBehind(program.line(), "listening on http://127.0.0.1:");
    RawClient control(portBehind(program.line(), ", control port "));
    ASSERT_TRUE(control.isConnected());
    EXPECT_EQ(command(control, "set conn-0 hostname attic room"), "ok\n");
    EXPECT_EQ(command(control, "get conn-0 hostname"), "ok attic room\n");
    EXPECT_EQ(command(control, "fault html 1 on=probe"), "ok\n");
    EXPECT_THAT(ask(port, "GET / HTTP/1.1\r\n\r\n"), HasSubstr("Please log in."));
    EXPECT_THAT(ask(port, "GET / HTTP/1.1\r\n\r\n"), Not(HasSubstr("Please log in.")));
    EXPECT_EQ(command(control, "requests"), "ok 2\n");
    EXPECT_EQ(command(control, "quit"), "ok\n");
    EXPECT_EQ(program.wait(), 0);
}

TEST(ProgramTest, InjectsFaultsFromTheCommandLine)
{
    Program program({"--fault", "http:404,1,on=probe", "--fault", "http:503,on=probe"});
    const int port = portBehind(program.line(), "listening on http://127.0.0.1:");
    for (const int status : {404, 503, 503}) {
        RawClient client(port);
        client.send("GET / HTTP/1.1\r\n\r\n");
        client.readReply();
        EXPECT_EQ(client.status(), status);
    }
}

TEST(ProgramTest, RestartsItsRadiosOnDemand)
{
    Program program({"--scenario", "dual", "--fault", "radio-restart:3600000,1"});
    const int port = portBehind(program.line(), "listening on http://127.0.0.1:");
    RawClient login(port);
    login.send(post("/cgi-bin/login", "user=admin&password=admin"));
    login.readReply();
    const std::string cookie = login.header("Set-Cookie");
    RawClient client(port);
    client.send(post("/cgi-bin/webapp", xml("1.0.1", {"command wireless_core-0 apply"}),
                     cookie.substr(0, cookie.find(';'))));
    client.readReply();
    EXPECT_EQ(client.received(), "");
    EXPECT_EQ(client.ending(), Ending::Closed);
    EXPECT_EQ(RawClient(port).ending(), Ending::Refused);
}

TEST(ProgramTest, AppliesLimitsFromTheCommandLine)
{
    Program program({"--session-lifetime", "1", "--sessions", "1", "--reboot-time", "3600000"});
    const int port = portBehind(program.line(), "listening on http://127.0.0.1:");
    const auto logIn = [port] {
        RawClient client(port);
        client.send(post("/cgi-bin/login", "user=admin&password=admin"));
        client.readReply();
        const std::string header = client.header("Set-Cookie");
        return header.substr(0, header.find(';'));
    };
    const auto errorWith = [port](const std::string& cookie, const char* line) {
        return errorIn(ask(port, post("/cgi-bin/webapp", xml("1.0.1", {line}), cookie)));
    };
    const std::string first = logIn();
    const std::string second = logIn();
    EXPECT_EQ(errorWith(first, "get conn-0 hostname"), 1);
    EXPECT_EQ(errorWith(second, "get conn-0 hostname"), 0);
    EXPECT_EQ(errorWith(second, "get conn-0 hostname"), 1);
    EXPECT_EQ(errorWith(logIn(), "command sysmgr-0 reboot"), 0);
    EXPECT_EQ(RawClient(port).ending(), Ending::Refused);
}

TEST(ProgramTest, WritesAMaskedTranscriptAtTheEnd)
{
    std::string path = testing::TempDir() + "quorvel-transcript-XXXXXX";
    const int file = mkstemp(path.data());
    ASSERT_GE(file, 0);
    Program program({"--transcript", path});
    const int port = portBehind(program.line(), "listening on http://127.0.0.1:");
    ask(port, post("/cgi-bin/login", "user=admin&password=S3CRET"));
    EXPECT_EQ(program.end(SIGTERM), 0);
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    std::remove(path.c_str());
    EXPECT_THAT(text.str(), StartsWith("==== 1: POST /cgi-bin/login\n"));
    EXPECT_THAT(text.str(), HasSubstr("user=admin&password=********"));
}

TEST(ProgramTest, ATranscriptThatCannotBeWrittenIsToldAtOnce)
{
    Program program({"--transcript", "/nonexistent/transcript.txt"});
    EXPECT_EQ(program.wait(), 1);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(program.errors(), "quorvel-gateway-sim: cannot write /nonexistent/transcript.txt\n");
}

TEST(ProgramTest, ListsItsScenarios)
{
    Program program({"--list-scenarios"});
    EXPECT_EQ(program.wait(), 0);
    EXPECT_THAT(program.output(), HasSubstr("classic: An ADSL gateway of the older kind"));
    EXPECT_THAT(program.output(), HasSubstr("\ndual: The newer kind with two radios"));
    EXPECT_THAT(program.output(), HasSubstr("\nmodern: A gateway of the newer kind"));
}

TEST(ProgramTest, FindsTheScenariosInstalledBesideIt)
{
    namespace fs = std::filesystem;
    std::string name = testing::TempDir() + "quorvel-install-XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    const fs::path root(name);
    fs::create_directories(root / "bin");
    fs::create_directories(root / "share/quorvel/scenarios");
    fs::copy_file(GATEWAY_SIM, root / "bin/quorvel-gateway-sim");
    std::ofstream(root / "share/quorvel/scenarios/attic.json")
        << R"({"description": "Mine", "dialect": "1.0.0", "managers": [], "objects": {},
               "login": {"user": "u", "password": "p"}})";
    Program program({"--list-scenarios"}, root / "bin/quorvel-gateway-sim");
    EXPECT_EQ(program.wait(), 0);
    EXPECT_THAT(program.output(), StartsWith("attic: Mine\nclassic: "));
    fs::remove_all(root);
}

TEST(ProgramTest, TellsItsVersion)
{
    Program program({"--version"});
    EXPECT_EQ(program.wait(), 0);
    EXPECT_THAT(program.output(), StartsWith("quorvel-gateway-sim 1."));
}

TEST(ProgramTest, BadInputIsExplainedAndExitsWith2)
{
    const std::vector<std::pair<std::vector<std::string>, const char*>> cases{
        {{"--scenario", "unicorn"}, "there is no scenario 'unicorn'"},
        {{"--scenario", "./unicorn.json"}, "./unicorn.json: No such file or directory"},
        {{"--fault", "explode"}, "--fault: no fault is called 'explode'"},
        {{"--port", "99999"}, "--port"},
        {{"--sessions", "-1"}, "--sessions"},
        {{"--colour"}, "--colour"},
        {{"extra"}, "extra"},
    };
    for (const auto& [arguments, message] : cases) {
        Program program(arguments);
        EXPECT_EQ(program.wait(), 2) << message;
        EXPECT_EQ(program.output(), "") << message;
        EXPECT_THAT(program.errors(), HasSubstr(message));
    }
}

TEST(ProgramTest, AnAddressThatIsNoneCannotBeServed)
{
    Program program({"--address", "gateway"});
    EXPECT_EQ(program.wait(), 1);
    EXPECT_EQ(program.errors(), "quorvel-gateway-sim: 'gateway' and 0 are no address and port\n");
}

} // namespace quorvel::simulator::tests
