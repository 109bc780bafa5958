#include "quorvel-simulator/Fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel::simulator::tests
{

using testing::ElementsAre;

namespace
{

std::string problemIn(const std::string& text)
{
    std::string error;
    return Fault::fromText(text, &error) ? "none" : error;
}

} // namespace

TEST(FaultTextTest, EveryFaultHasAName)
{
    EXPECT_THAT(Fault::names(),
                ElementsAre("refuse", "close", "reset", "hang", "delay", "drip", "truncate",
                            "wrong-length", "garbage", "html", "empty", "http", "bad-utf8", "error",
                            "session-expired", "oversized", "too-deep", "command-fails",
                            "power-cut", "radio-restart"));
    for (const std::string& name : Fault::names()) {
        const auto fault = Fault::fromText(name);
        ASSERT_TRUE(fault) << name;
        EXPECT_EQ(Fault::name(fault->kind), name);
    }
}

TEST(FaultTextTest, ANameAloneIsForEverAndOnAnything)
{
    const auto fault = Fault::fromText("hang");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->kind, FaultKind::Hang);
    EXPECT_FALSE(fault->argument);
    EXPECT_EQ(fault->times, 0);
    EXPECT_EQ(fault->after, 0);
    EXPECT_EQ(fault->target, FaultTarget::Any);
    EXPECT_EQ(fault->key, "");
    EXPECT_TRUE(fault->takesEffect);
}

TEST(FaultTextTest, OptionsStandBehindTheNameInAnyOrder)
{
    for (const char* text : {"drip:50 3 after=2 on=login key=apply effect=no",
                             "drip:50,effect=no,key=apply,on=login,times=3,after=2"}) {
        const auto fault = Fault::fromText(text);
        ASSERT_TRUE(fault) << text;
        EXPECT_EQ(fault->kind, FaultKind::Drip);
        EXPECT_EQ(fault->argument, 50);
        EXPECT_EQ(fault->times, 3);
        EXPECT_EQ(fault->after, 2);
        EXPECT_EQ(fault->target, FaultTarget::Login);
        EXPECT_EQ(fault->key, "apply");
        EXPECT_FALSE(fault->takesEffect);
    }
}

TEST(FaultTextTest, BadTextsAreExplained)
{
    EXPECT_EQ(problemIn(""), "no fault is named");
    EXPECT_EQ(problemIn(" , "), "no fault is named");
    EXPECT_EQ(problemIn("explode"), "no fault is called 'explode'");
    EXPECT_EQ(problemIn("hang:3"), "'hang' takes no argument '3'");
    EXPECT_EQ(problemIn("radio-restart:-1"), "'radio-restart' takes no argument '-1'");
    EXPECT_EQ(problemIn("drip:"), "'drip' takes no argument ''");
    EXPECT_EQ(problemIn("drip:0"), "'drip' takes no argument '0'");
    EXPECT_EQ(problemIn("http:99"), "'http' takes no argument '99'");
    EXPECT_EQ(problemIn("error:1x"), "'error' takes no argument '1x'");
    for (const char* option : {"x", "-1", "times=", "after=x", "on=moon", "key=", "effect=maybe",
                               "colour=red", "99999999999"}) {
        EXPECT_EQ(problemIn(std::string("hang ") + option),
                  "'" + std::string(option) + "' is no option of a fault");
    }
}

} // namespace quorvel::simulator::tests
