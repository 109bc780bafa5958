#include "quorvel-simulator/Scenario.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvel::simulator::tests
{

using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Pair;

namespace
{

const char* const small = R"({"dialect": "1.0.0", "login": {"user": "u", "password": "p"},
                              "managers": ["devmgr", "wan"], "objects": {}})";

std::string problemIn(const std::string& json)
{
    std::string error;
    return Scenario::fromJson(json, "home.json", &error) ? "none" : error;
}

/// The small scenario with one more key.
std::string with(const std::string& key)
{
    std::string json = small;
    return json.insert(1, key + ",");
}

class TemporaryFolder
{
public:
    TemporaryFolder() { EXPECT_NE(mkdtemp(path.data()), nullptr); }
    ~TemporaryFolder()
    {
        for (const std::string& file : files)
            std::remove(file.c_str());
        rmdir(path.c_str());
    }

    std::string write(const std::string& name, const std::string& text)
    {
        files.push_back(path + "/" + name);
        std::ofstream(files.back()) << text;
        return files.back();
    }

    const char* name() const { return path.c_str(); }

private:
    std::string path = testing::TempDir() + "quorvel-scenario-XXXXXX";
    std::vector<std::string> files;
};

} // namespace

TEST(ScenarioTest, KnowsTheBuiltInOnes)
{
    EXPECT_THAT(Scenario::names(), IsSupersetOf({"classic", "dual", "modern"}));
    for (const char* name : {"classic", "dual", "modern"}) {
        std::string error;
        const auto scenario = Scenario::load(name, &error);
        ASSERT_TRUE(scenario) << error;
        EXPECT_EQ(scenario->name, name);
        EXPECT_NE(scenario->description, "");
        EXPECT_EQ(scenario->user, "admin");
        EXPECT_EQ(scenario->configuration.at("webui-0").at("password"), "admin");
    }
}

TEST(ScenarioTest, NamesAreReadFromTheChosenFolderFirst)
{
    TemporaryFolder folder;
    folder.write("modern.json", small);
    folder.write("mine.json", small);
    setenv("QUORVEL_SCENARIO_DIR", folder.name(), 1);
    const auto modern = Scenario::load("modern");
    const auto names = Scenario::names();
    unsetenv("QUORVEL_SCENARIO_DIR");
    ASSERT_TRUE(modern);
    EXPECT_EQ(modern->user, "u");
    EXPECT_THAT(names, IsSupersetOf({"classic", "mine", "modern"}));
}

TEST(ScenarioTest, AFileIsReadByItsPath)
{
    TemporaryFolder folder;
    const auto scenario = Scenario::load(folder.write("attic.json", small));
    ASSERT_TRUE(scenario);
    EXPECT_EQ(scenario->name, "attic");
    EXPECT_EQ(scenario->dialect, "1.0.0");
    EXPECT_THAT(scenario->managers, ElementsAre("devmgr", "wan"));
}

TEST(ScenarioTest, WhatIsNotThereIsNamed)
{
    std::string error;
    EXPECT_FALSE(Scenario::load("unicorn", &error));
    EXPECT_THAT(error, testing::StartsWith("there is no scenario 'unicorn', only classic, "));
    EXPECT_FALSE(Scenario::load("./unicorn.json", &error));
    EXPECT_EQ(error, "./unicorn.json: No such file or directory");
}

TEST(ScenarioTest, NestedValuesBecomeKeysWithDotsAndNumbers)
{
    const auto scenario = Scenario::fromJson(
        R"({"dialect": "1.0.1", "login": {"user": "u", "password": "p"}, "managers": [],
            "objects": {"dhcps-0": {
                "configuration": {"on": "1", "client": [{"mac": "a"}, {"mac": "b"}]},
                "status": {"pool": {"used": "2"}}}},
            "templates": {"pppox": {"mtu": "1492"}},
            "environment": {"PRODUCT_ID": "x"},
            "list_keys": {"wan": "wan%1"},
            "sessions": {"number": 3, "requests": 9},
            "reboot_time_ms": 70})",
        "home.json");
    ASSERT_TRUE(scenario);
    EXPECT_THAT(scenario->configuration.at("dhcps-0"),
                ElementsAre(Pair("client0.mac", "a"), Pair("client1.mac", "b"), Pair("on", "1")));
    EXPECT_THAT(scenario->status.at("dhcps-0"), ElementsAre(Pair("pool.used", "2")));
    EXPECT_THAT(scenario->templates.at("pppox"), ElementsAre(Pair("mtu", "1492")));
    EXPECT_THAT(scenario->environment, ElementsAre(Pair("PRODUCT_ID", "x")));
    EXPECT_THAT(scenario->listKeys, ElementsAre(Pair("wan", "wan%1")));
    EXPECT_EQ(scenario->sessionNumber, 3);
    EXPECT_EQ(scenario->sessionRequests, 9);
    EXPECT_EQ(scenario->rebootTime, 70);
}

TEST(ScenarioTest, DocumentsAreRunTimeValuesInJson)
{
    const auto scenario = Scenario::fromJson(
        R"({"dialect": "1.0.1", "login": {"user": "u", "password": "p"}, "managers": [],
            "objects": {"wireless-0": {"status": {"a": "1"},
                                       "documents": {"can": {"bands": [ 2, {} ], "x": null}}}}})",
        "home.json");
    ASSERT_TRUE(scenario);
    EXPECT_THAT(scenario->status.at("wireless-0"),
                ElementsAre(Pair("a", "1"), Pair("can", R"({"bands":[2,{}],"x":null})")));
}

TEST(ScenarioTest, ABaseIsWhatAllElseIsAddedTo)
{
    TemporaryFolder folder;
    const std::string base =
        folder.write("base.json", R"({"dialect": "1.0.0", "description": "Old", "reboot_time_ms": 7,
                         "login": {"user": "u", "password": "p"}, "managers": ["devmgr", "wan"],
                         "environment": {"PRODUCT_ID": "x", "SERIAL_NUMBER": "1"},
                         "objects": {"conn-0": {"configuration": {"hostname": "a", "port": "1"}},
                                     "eth-0": {"status": {"linkstate": "1"}}}})");
    const auto scenario = Scenario::load(
        folder.write("mine.json", R"({"base": ")" + base +
                                      R"(", "description": "New", "managers": ["conn"],
                         "environment": {"PRODUCT_ID": "y"},
                         "objects": {"conn-0": {"configuration": {"hostname": "b"},
                                                "status": {"up": "1"}}}})"));
    ASSERT_TRUE(scenario);
    EXPECT_EQ(scenario->name, "mine");
    EXPECT_EQ(scenario->description, "New");
    EXPECT_EQ(scenario->dialect, "1.0.0");
    EXPECT_EQ(scenario->user, "u");
    EXPECT_EQ(scenario->rebootTime, 7);
    EXPECT_THAT(scenario->managers, ElementsAre("conn"));
    EXPECT_THAT(scenario->environment, ElementsAre(Pair("PRODUCT_ID", "y")));
    EXPECT_THAT(scenario->configuration.at("conn-0"),
                ElementsAre(Pair("hostname", "b"), Pair("port", "1")));
    EXPECT_THAT(scenario->status.at("conn-0"), ElementsAre(Pair("up", "1")));
    EXPECT_THAT(scenario->status.at("eth-0"), ElementsAre(Pair("linkstate", "1")));
    EXPECT_EQ(scenario->configuration.at("webui-0").at("password"), "p");
}

TEST(ScenarioTest, AMistakeInABaseIsExplainedThere)
{
    TemporaryFolder folder;
    const std::string base = folder.write("base.json", R"({"dialect": "1.0.2"})");
    EXPECT_EQ(problemIn(R"({"base": ")" + base + R"("})"),
              base + R"(: dialect: must be "1.0.0" or "1.0.1")");
    EXPECT_EQ(problemIn(R"({"base": 1})"), "home.json: base: must be a text in quotes");
    EXPECT_THAT(problemIn(R"({"base": "unicorn"})"),
                testing::StartsWith("there is no scenario 'unicorn', only classic, "));
}

TEST(ScenarioTest, NoScenarioStandsOnItself)
{
    TemporaryFolder folder;
    folder.write("one.json", R"({"base": "two"})");
    const std::string two = folder.write("two.json", R"({"base": "one"})");
    setenv("QUORVEL_SCENARIO_DIR", folder.name(), 1);
    std::string error;
    EXPECT_FALSE(Scenario::load("two", &error));
    unsetenv("QUORVEL_SCENARIO_DIR");
    EXPECT_EQ(error, two + ": base: stands on too many others, or on itself");
}

TEST(ScenarioTest, BadFilesAreExplainedByFileAndKey)
{
    EXPECT_EQ(problemIn(small), "none");
    EXPECT_EQ(problemIn("{\n\"dialect\": tru}"), "home.json: line 2: illegal value");
    EXPECT_EQ(problemIn("[]"), "home.json: must be an object in braces");
    EXPECT_EQ(problemIn("{}"), "home.json: dialect: is missing");
    EXPECT_EQ(problemIn(with(R"("colour": "red")")), "home.json: colour: is no key of a scenario");
    EXPECT_EQ(problemIn(with(R"("description": 1)")),
              "home.json: description: must be a text in quotes");
    EXPECT_EQ(problemIn(with(R"("reboot_time_ms": -1)")),
              "home.json: reboot_time_ms: must be a whole number, not negative");
    EXPECT_EQ(problemIn(with(R"("reboot_time_ms": "1")")),
              "home.json: reboot_time_ms: must be a whole number, not negative");
    EXPECT_EQ(problemIn(with(R"("sessions": {"colour": 1})")),
              "home.json: sessions.colour: is no key of sessions");
    EXPECT_EQ(problemIn(with(R"("templates": {"wan": "x"})")),
              "home.json: templates.wan: must be an object in braces");
    EXPECT_EQ(problemIn(with(R"("environment": {"A": 1})")),
              "home.json: environment.A: must be a text in quotes");
}

TEST(ScenarioTest, BadObjectsAreExplainedByFileAndKey)
{
    const auto problemWith = [](const std::string& objects, const std::string& dialect = "1.0.0") {
        return problemIn(R"({"dialect": ")" + dialect +
                         R"(", "login": {"user": "u", "password": "p"}, "managers": [],
                            "objects": )" +
                         objects + "}");
    };
    EXPECT_EQ(problemWith("{}", "1.0.2"), R"(home.json: dialect: must be "1.0.0" or "1.0.1")");
    EXPECT_EQ(problemWith("[]"), "home.json: objects: must be an object in braces");
    EXPECT_EQ(problemWith(R"({"wan-0": {"config": {}}})"),
              "home.json: objects.wan-0.config: is neither configuration nor status nor documents");
    EXPECT_EQ(problemWith(R"({"wan-0": {"status": {"a": {"b": true}}}})"),
              "home.json: objects.wan-0.status.a.b: must be a text in quotes");
    EXPECT_EQ(problemWith(R"({"wan-0": {"status": {"a": ["x", 1]}}})"),
              "home.json: objects.wan-0.status.a1: must be a text in quotes");
}

} // namespace quorvel::simulator::tests
