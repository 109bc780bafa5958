#include "protocol/AspCpeSessionStorage.h"
#include "wan/WanFixture.h"

namespace quorvel::test
{

namespace
{

const QString instances = reply101(
    {{"devmgr-0", "wan0", "wan-0"}, {"devmgr-0", "wan1", "wan-1"}, {"webapp", "error", "0"}});

} // namespace

TEST_F(WanFacade, ReadsTheDefaultWanOfTheRouteThatIsAsked)
{
    gateway.reply(reply101({{"route-1", "default_gw", "wan-3"}, {"webapp", "error", "0"}}));
    EXPECT_EQ(facade.getDefaultWan(text("route-1"), error), text("wan-3"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(),
              QStringList{text("DEBUG AspWanSettingsFacade::getDefaultWan -> Default WAN:wan-3")});
}

TEST_F(WanFacade, ReadsTheAliasDefaultWanAndLogsItInTheOthersWords)
{
    gateway.reply(reply101({{"route-1", "alias_default_gw", "wan-4"},
                            {"route-1", "default_gw", "wan-3"},
                            {"webapp", "error", "5"}}));
    EXPECT_EQ(facade.getAliasDefaultWan(text("route-1"), error), text("wan-4"));
    EXPECT_EQ(error, 5);
    EXPECT_EQ(lines(),
              QStringList{text("DEBUG AspWanSettingsFacade::getDefaultWan -> Default WAN:wan-4")});
}

TEST_F(WanFacade, ReadsNoDefaultWanFromAReplyWithoutOne)
{
    gateway.reply(reply101({}));
    EXPECT_EQ(facade.getDefaultWan(text("route-0"), error), QString());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(),
              QStringList{text("DEBUG AspWanSettingsFacade::getDefaultWan -> Default WAN:")});
}

TEST_F(WanFacade, NumbersTheInternetConnectionAgainstTheGatewaysOwnFlag)
{
    const struct {
        const char* flag;
        int status;
    } cases[] = {{"1", 0}, {"0", 1}, {"", 2}, {"2", 2}, {"01", 2}, {"UP", 2}};
    for (const auto& [flag, status] : cases) {
        log.clear();
        gateway.reply(
            reply101({{"route-0", "internet_connection", flag}, {"webapp", "error", "0"}}));
        EXPECT_EQ(facade.getInternetConnectionStatus(text("route-0"), error), status) << flag;
        EXPECT_EQ(error, 0);
        EXPECT_EQ(lines(), QStringList{text("DEBUG pWanSettingsFacade::getInternetConnectionStatus "
                                            "-> Status:") +
                                       text(flag)});
    }
}

TEST_F(WanFacade, KnowsNoInternetConnectionWithoutAnAnswer)
{
    gateway.reply(reply101({}));
    EXPECT_EQ(facade.getInternetConnectionStatus(text("route-0"), error), 2);
}

TEST_F(WanFacade, TakesTheInternetConnectionFromTheDefaultWan)
{
    const struct {
        const char* isConnected;
        int status;
    } cases[] = {{"1", 0}, {"0", 1}, {"", 1}};
    for (const auto& [isConnected, status] : cases) {
        gateway.reply(reply101({{"route-0", "default_gw", "wan-3"}}))
            .reply(reply101({{"wan-3", "isconnected", isConnected}}))
            .reply(reply101({}))
            .reply(reply101({}));
        EXPECT_EQ(facade.getInternetConnectionStatus2(error), status) << isConnected;
        EXPECT_EQ(error, 0);
    }
}

TEST_F(WanFacade, KnowsNoInternetConnectionWithoutADefaultWan)
{
    gateway.reply(reply101({{"webapp", "error", "6"}}));
    EXPECT_EQ(facade.getInternetConnectionStatus2(error), 2);
    EXPECT_EQ(error, 6);
}

TEST_F(WanFacade, KnowsNoInternetConnectionIfTheDefaultWanReportsAnError)
{
    gateway.reply(reply101({{"route-0", "default_gw", "wan-3"}}))
        .reply(reply101({{"wan-3", "isconnected", "1"}, {"webapp", "error", "6"}}))
        .reply(reply101({}))
        .reply(reply101({}));
    EXPECT_EQ(facade.getInternetConnectionStatus2(error), 2);
    EXPECT_EQ(error, 6);
}

TEST_F(WanFacade, ListsAllWansInKeyOrder)
{
    gateway.reply(reply101({{"devmgr-0", "wan2", "wan-7"},
                            {"devmgr-0", "wan0", "wan-3"},
                            {"devmgr-0", "wan10", "wan-10"},
                            {"webapp", "error", "0"}}));
    EXPECT_EQ(facade.getWanList(error),
              (QList<QString>{text("wan-3"), text("wan-10"), text("wan-7")}));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), QStringList{text("DEBUG AspWanSettingsFacade::getWanList -> WAN List:"
                                        "devmgr-0.wan0->wan-3\tdevmgr-0.wan10->wan-10\t"
                                        "devmgr-0.wan2->wan-7\t")});
}

TEST_F(WanFacade, ListsTheTraceOfALoginAmongAllWans)
{
    AspCpeSessionStorage::getInstance()->removeSession(gateway.address());
    gateway.logIn().reply(instances);
    EXPECT_EQ(facade.getWanList(error), (QList<QString>{text("0"), text("wan-0"), text("wan-1")}));
}

TEST_F(WanFacade, ListsWansByTheirLayer)
{
    gateway
        .reply(reply101({{"devmgr-0", "wan0", "wan-0"},
                         {"devmgr-0", "wan1", "wan-1"},
                         {"devmgr-0", "wan2", "wan-2"},
                         {"devmgr-0", "wan3", "wan-3"}}))
        .reply(reply101({{"wan-0", "l2type", "dsl"},
                         {"wan-1", "l2type", "eth"},
                         {"wan-2", "l2type", "serial"},
                         {"wan-3", "l2type", "dsl"},
                         {"webapp", "error", "4"}}));
    QList<QString> dslWans;
    QList<QString> ethWans;
    EXPECT_TRUE(facade.getWanList(dslWans, ethWans, error));
    EXPECT_EQ(error, 4);
    EXPECT_EQ(dslWans, (QList<QString>{text("wan-0"), text("wan-3")}));
    EXPECT_EQ(ethWans, QList<QString>{text("wan-1")});
    EXPECT_EQ(lines(), QStringList{text("DEBUG AspWanSettingsFacade::getWanList2 -> WAN List:"
                                        "DSL WANs:wan-0\twan-3\tETH WANs:wan-1\t")});
}

TEST_F(WanFacade, ListsNoWansByTheirLayerIfTheLayersCannotBeRead)
{
    gateway.reply(instances).sendRaw(notFound);
    QList<QString> dslWans;
    QList<QString> ethWans;
    EXPECT_FALSE(facade.getWanList(dslWans, ethWans, error));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(lines(),
              QStringList{text("ERROR AspWanSettingsFacade::getWanList2 -> Failed to get WAN "
                               "list!")});
}

TEST_F(WanFacade, TakesOnlyTheFlagForAnEthernetLink)
{
    const struct {
        const char* state;
        int status;
    } cases[] = {{"1", 1}, {"0", 0}, {"UP", 0}, {"", 0}};
    for (const auto& [state, status] : cases) {
        gateway.reply(reply101({{"eth-0", "linkstate", state}, {"webapp", "error", "0"}}));
        EXPECT_EQ(facade.getWanEthLinkStatus(text("eth-0"), error), status) << state;
        EXPECT_EQ(error, 0);
    }
}

TEST_F(WanFacade, TakesTheWordInWhateverCaseForADslLink)
{
    const struct {
        const char* state;
        int status;
    } cases[] = {{"UP", 1}, {"up", 1}, {"Up", 1}, {"DOWN", 0}, {"1", 0}, {"", 0}};
    for (const auto& [state, status] : cases) {
        gateway.reply(reply101({{"dsl-0", "dslLinkStatus", state}, {"webapp", "error", "0"}}));
        EXPECT_EQ(facade.getWanDslLinkStatus(text("dsl-0"), error), status) << state;
        EXPECT_EQ(error, 0);
    }
}

TEST_F(WanFacade, LetsTheLastEntryDecideAboutALink)
{
    const QString upThenDown =
        reply101({{"eth-0", "a", "1"}, {"eth-0", "b", "0"}, {"webapp", "error", "0"}});
    gateway.reply(upThenDown).reply(reply101({{"dsl-0", "a", "DOWN"}, {"dsl-0", "b", "UP"}}));
    EXPECT_EQ(facade.getWanEthLinkStatus(text("eth-0"), error), 0);
    EXPECT_EQ(facade.getWanDslLinkStatus(text("dsl-0"), error), 1);
    EXPECT_EQ(lines(), (QStringList{text("DEBUG AspWanSettingsFacade::getWanEthLinkStatus -> "
                                         "wanLinkStatus:eth-0.a->1\teth-0.b->0\t"),
                                    text("DEBUG AspWanSettingsFacade::getWanDslLinkStatus -> "
                                         "wanLinkStatus:dsl-0.a->DOWN\tdsl-0.b->UP\t")}));
}

TEST_F(WanFacade, TakesALinkForDownIfTheReplyIsSilent)
{
    gateway.reply(reply101({})).reply(reply101({}));
    EXPECT_EQ(facade.getWanEthLinkStatus(text("eth-0"), error), 0);
    EXPECT_EQ(facade.getWanDslLinkStatus(text("dsl-0"), error), 0);
}

} // namespace quorvel::test
