#include "protocol/AspCpeSessionStorage.h"
#include "wan/WanFixture.h"

#include <initializer_list>

namespace quorvel::test
{

namespace
{

const QString route = text("route-0");
const QString defaultIsWan9 =
    reply101({{"route-0", "default_gw", "wan-9"}, {"webapp", "error", "0"}});
const QString defaultLine = text("DEBUG AspWanSettingsFacade::getDefaultWan -> Default WAN:wan-9");

/// A reply with a candidate per text, all under one key as gateways send them.
QString candidates(std::initializer_list<const char*> texts, const char* error = "0")
{
    QString reply = text("<response version=\"1.0.1\">");
    for (const char* candidate : texts)
        reply += text("<route-0><key>def_gw_status</key><value>%1</value></route-0>")
                     .arg(text(candidate));
    return reply +
           text("<webapp><key>error</key><value>%1</value></webapp></response>").arg(text(error));
}

QString layer2(const char* wan, const char* type)
{
    return reply101({{wan, "l2type", type}, {"webapp", "error", "0"}});
}

QString ethLink(const char* state, const char* error = "0")
{
    return reply101({{"eth-0", "linkstate", state}, {"webapp", "error", error}});
}

QString dslLink(const char* state, const char* error = "0")
{
    return reply101({{"dsl-0", "dslLinkStatus", state}, {"webapp", "error", error}});
}

using Question = QString (AspWanSettingsFacade::*)(const QString&, AspWebAppErrorCodes&);

/// What both questions for the default gateway share.
class WanDefaultGw : public WanFacade, public testing::WithParamInterface<Question>
{
protected:
    QString ask() { return (facade.*GetParam())(route, error); }
};

} // namespace

TEST_P(WanDefaultGw, IsTheCandidateInUseBehindAnIdleOne)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:1", "wan-2:1"}, "3"));
    EXPECT_EQ(ask(), text("wan-1"));
    EXPECT_EQ(error, 3);
    EXPECT_EQ(lines(),
              QStringList{text("DEBUG AspWanSettingsFacade::getDefaultGwStatus -> GatewayStatus:"
                               "route-0.def_gw_status->wan-0:0\t"
                               "route-0.def_gw_status2->wan-1:1\t"
                               "route-0.def_gw_status3->wan-2:1\t")});
    EXPECT_TRUE(matchesGolden(text("wan/getDefaultGwStatusOfRoute0"), transcript(gateway)));
}

TEST_P(WanDefaultGw, IsTheDefaultWanWithoutCandidates)
{
    gateway.reply(candidates({}, "3")).reply(defaultIsWan9);
    EXPECT_EQ(ask(), text("wan-9"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(),
              (QStringList{text("DEBUG AspWanSettingsFacade::getDefaultGwStatus -> GatewayStatus:"),
                           defaultLine}));
}

TEST_P(WanDefaultGw, IsTheDefaultWanIfTheOneInUseIsCalledZero)
{
    gateway.reply(candidates({"wan-0:0", "0:1"})).reply(defaultIsWan9);
    EXPECT_EQ(ask(), text("wan-9"));
}

TEST_P(WanDefaultGw, IsTheDefaultWanWithoutATraceOfAFailedFirstQuestion)
{
    gateway.sendRaw(notFound).reply(defaultIsWan9);
    EXPECT_EQ(ask(), text("wan-9"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(),
              (QStringList{text("ERROR AspWanSettingsFacade::getDefaultGwStatus -> Failed to fetch "
                                "GatewayStatus!"),
                           defaultLine}));
}

TEST_P(WanDefaultGw, ReportsTheFailureOfTheDefaultWanThatDecides)
{
    gateway.reply(candidates({})).sendRaw(notFound);
    EXPECT_EQ(ask(), QString());
    EXPECT_EQ(error, 29);
}

TEST_P(WanDefaultGw, NeedsTheExactStateOfACandidateInUse)
{
    // "1:2" is what stands behind the first colon of the first, and nothing does in the second.
    gateway.reply(candidates({"wan-0:1:2", "1", "wan-2: 1", "wan-3:1"}));
    EXPECT_EQ(ask(), text("wan-3"));
}

TEST_P(WanDefaultGw, FollowsTheOrderOfTheKeysWithMoreThanNineCandidates)
{
    // The tenth has the key def_gw_status10, which stands before def_gw_status2.
    gateway.reply(
        candidates({"a:0", "b:1", "c:0", "d:0", "e:0", "f:0", "g:0", "h:0", "i:0", "j:1"}));
    EXPECT_EQ(ask(), text("j"));
}

INSTANTIATE_TEST_SUITE_P(BothQuestions, WanDefaultGw,
                         testing::Values(&AspWanSettingsFacade::getDefaultGwStatus,
                                         &AspWanSettingsFacade::getDefaultGwStatusWithLinkState),
                         [](const auto& info) {
                             return info.index == 0 ? "ByState" : "ByStateAndLink";
                         });

TEST_F(WanFacade, TakesTheFirstOfIdleCandidatesForTheDefaultGateway)
{
    gateway.reply(candidates({"wan-1:0", "wan-0:0"}, "3"));
    EXPECT_EQ(facade.getDefaultGwStatus(route, error), text("wan-1"));
    EXPECT_EQ(error, 3);
}

TEST_F(WanFacade, AsksForTheDefaultWanIfTheIdleCandidateIsCalledZero)
{
    gateway.reply(candidates({"0:0"})).reply(defaultIsWan9);
    EXPECT_EQ(facade.getDefaultGwStatus(route, error), text("wan-9"));
}

TEST_F(WanFacade, TakesTheTraceOfALoginForACandidateCalledZero)
{
    AspCpeSessionStorage::getInstance()->removeSession(gateway.address());
    gateway.logIn().reply(candidates({"wan-0:0", "wan-1:0"})).reply(defaultIsWan9);
    EXPECT_EQ(facade.getDefaultGwStatus(route, error), text("wan-9"));
}

TEST_F(WanFacade, FindsTheCandidateInUseBehindTheTraceOfALogin)
{
    AspCpeSessionStorage::getInstance()->removeSession(gateway.address());
    gateway.logIn().reply(candidates({"wan-0:0", "wan-1:1"}));
    EXPECT_EQ(facade.getDefaultGwStatus(route, error), text("wan-1"));
}

TEST_F(WanFacade, TakesTheFirstIdleCandidateWithALinkForTheDefaultGateway)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:0", "wan-2:0"}))
        .reply(layer2("wan-0", "dsl"))
        .reply(dslLink("DOWN"))
        .reply(layer2("wan-1", "eth"))
        .reply(ethLink("1", "4"));
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-1"));
    EXPECT_EQ(error, 4);
    EXPECT_TRUE(matchesGolden(text("wan/getDefaultGwStatusWithLinkState"), transcript(gateway)));
    EXPECT_EQ(lines(),
              (QStringList{text("DEBUG AspWanSettingsFacade::getDefaultGwStatus -> GatewayStatus:"
                                "route-0.def_gw_status->wan-0:0\t"
                                "route-0.def_gw_status2->wan-1:0\t"
                                "route-0.def_gw_status3->wan-2:0\t"),
                           text("DEBUG AspWanSettingsFacade::getWanDslLinkStatus -> wanLinkStatus:"
                                "dsl-0.dslLinkStatus->DOWN\t"),
                           text("DEBUG AspWanSettingsFacade::getWanEthLinkStatus -> wanLinkStatus:"
                                "eth-0.linkstate->1\t")}));
}

TEST_F(WanFacade, TakesTheLastIdleCandidateIfNoneHasALink)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:0"}))
        .reply(layer2("wan-0", "eth"))
        .reply(ethLink("0"))
        .reply(layer2("wan-1", "dsl"))
        .reply(dslLink("DOWN"));
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-1"));
}

TEST_F(WanFacade, LooksAtTheDslLineForEveryLayerThatIsNotExactlyEthernet)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:0"}))
        .reply(layer2("wan-0", "ETH"))
        .reply(dslLink("DOWN"))
        .reply(layer2("wan-1", "serial"))
        .reply(dslLink("up"));
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-1"));
}

TEST_F(WanFacade, LetsTheLastEntryDecideAboutALayer)
{
    gateway.reply(candidates({"wan-0:0"}))
        .reply(reply101({{"wan-0", "a", "dsl"}, {"wan-0", "l2type", "eth"}}))
        .reply(ethLink("1"));
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-0"));
}

TEST_F(WanFacade, PassesACandidateOverIfItsLayerCannotBeRead)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:0"}, "3"))
        .sendRaw(notFound)
        .reply(layer2("wan-1", "dsl"))
        .reply(dslLink("UP"));
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-1"));
    EXPECT_EQ(error, 0);
}

TEST_F(WanFacade, KeepsTheLastCandidateAndTheFirstErrorIfNoLayerCanBeRead)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:0"}, "3")).sendRaw(notFound).sendRaw(notFound);
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-1"));
    EXPECT_EQ(error, 3);
}

TEST_F(WanFacade, TakesAFailedQuestionForALinkAsNoLink)
{
    gateway.reply(candidates({"wan-0:0", "wan-1:0"}))
        .reply(layer2("wan-0", "eth"))
        .sendRaw(notFound)
        .reply(layer2("wan-1", "eth"))
        .sendRaw(notFound);
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-1"));
    EXPECT_EQ(error, 29);
}

TEST_F(WanFacade, AsksForTheDefaultWanIfTheLastIdleCandidateIsCalledZero)
{
    gateway.reply(candidates({"wan-0:0", "0:0"}))
        .reply(layer2("wan-0", "eth"))
        .reply(ethLink("0"))
        .reply(reply101({}))
        .reply(dslLink("DOWN", "5"))
        .reply(defaultIsWan9);
    EXPECT_EQ(facade.getDefaultGwStatusWithLinkState(route, error), text("wan-9"));
    EXPECT_EQ(error, 0);
}

} // namespace quorvel::test
