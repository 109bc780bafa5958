#include "Program.h"
#include "SimulatedGateway.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

namespace quorvel::simulator::tests
{

using testing::HasSubstr;

namespace
{

// The first two answer the same request.
const char* const replies =
    R"([{"request": "<xmlrequest version=\"1.0.1\"><query inst=\"sysmgr-0\">)"
    R"(<key>fwversion</key></query></xmlrequest>",)"
    R"("body": "<response>first</response>"},)"
    R"({"request": "<xmlrequest version='1.0.1'> <query inst='sysmgr-0'>)"
    R"( <key>fwversion</key> </query></xmlrequest>",)"
    R"("status": 203, "body": "<response>second</response>"},)"
    R"({"request": "<xmlrequest version='1.0.1'><get inst='attic-0'>)"
    R"(<key>lamp</key></get></xmlrequest>", "status": 0}])";

std::string scenario()
{
    return std::string(R"({"base": "modern", "replies": )") + replies + "}";
}

/// A file of its own with this text.
class File
{
public:
    explicit File(const std::string& text)
    {
        EXPECT_NE(mkdtemp(folder.data()), nullptr);
        std::ofstream(path()) << text;
    }
    ~File() { std::filesystem::remove_all(folder); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    std::string path() const { return folder + "/gateway.json"; }

private:
    std::string folder = testing::TempDir() + "quorvel-replay-XXXXXX";
};

/// A client of the program that is logged in.
class Client
{
public:
    explicit Client(Program& program)
    {
        const std::string line = program.line();
        port = std::atoi(line.c_str() + line.rfind(':') + 1);
        const std::string header =
            ask("/cgi-bin/login", "user=admin&password=admin")->header("Set-Cookie");
        cookie = header.substr(0, header.find(';'));
    }

    std::unique_ptr<RawClient> ask(const Lines& lines) const
    {
        return ask("/cgi-bin/webapp", xml("1.0.1", lines));
    }

private:
    std::unique_ptr<RawClient> ask(const std::string& path, const std::string& body) const
    {
        auto client = std::make_unique<RawClient>(port);
        client->send(post(path, body, cookie));
        client->readReply();
        return client;
    }

    int port = 0;
    std::string cookie;
};

void expectReplies(const std::vector<std::string>& arguments)
{
    Program program(arguments);
    const Client client(program);
    const auto reply = client.ask({"query sysmgr-0 fwversion"});
    EXPECT_EQ(reply->status(), 203);
    EXPECT_EQ(reply->body(), "<response>second</response>");
    const auto none = client.ask({"get attic-0 lamp"});
    EXPECT_EQ(none->received(), "");
    EXPECT_EQ(none->ending(), Ending::Closed);
    EXPECT_THAT(client.ask({"query sysmgr-0 productid"})->body(), HasSubstr("QV-4400X Home"));
}

} // namespace

TEST(ReplayTest, AnswersWordForWordWhatTheScenarioHas)
{
    const File file(scenario());
    expectReplies({"--scenario", file.path()});
}

TEST(ReplayTest, TakesTheScenarioOutOfADump)
{
    const File file(R"({"errors": [], "scenario": )" + scenario() + "}");
    expectReplies({"--from-dump", file.path()});
}

TEST(ReplayTest, KeepsItsSessions)
{
    const File file(scenario());
    Program program({"--scenario", file.path(), "--session-lifetime", "1"});
    const Client client(program);
    EXPECT_EQ(client.ask({"query sysmgr-0 fwversion"})->status(), 203);
    EXPECT_EQ(errorIn(client.ask({"query sysmgr-0 fwversion"})->body()), 1);
}

TEST(ReplayTest, RefusesWhatItCanNotReplay)
{
    const File noDump(R"({"managers": []})");
    const File noRequest(R"({"base": "modern", "replies": [{"request": "fwversion"}]})");
    const File noKey(R"({"base": "modern", "replies": [{"answer": "42"}]})");
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases{
        {{"--from-dump", noDump.path()}, noDump.path() + ": is no dump of a gateway"},
        {{"--from-dump", "missing.json"}, "missing.json: No such file or directory"},
        {{"--scenario", noRequest.path()},
         noRequest.path() + ": replies0.request: must be the XML of a request"},
        {{"--scenario", noKey.path()}, noKey.path() + ": replies0.answer: is no key of a reply"},
        {{"--from-dump", noDump.path(), "--scenario", "modern"}, "--scenario excludes --from-dump"},
    };
    for (const auto& [arguments, message] : cases) {
        Program program(arguments);
        EXPECT_EQ(program.wait(), 2) << message;
        EXPECT_EQ(program.output(), "") << message;
        EXPECT_THAT(program.errors(), HasSubstr(message));
    }
}

} // namespace quorvel::simulator::tests
