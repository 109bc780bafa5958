#include "wan/WanFixture.h"

namespace quorvel::test
{

namespace
{

const QString nothing = reply101({});

/// A reply of `wan-3` with the entries <key>0 = <value>0, <key>1 = <value>1 and so on.
QString numbered(const char* key, const char* value, int count)
{
    QString reply = text("<response version=\"1.0.1\">");
    for (int i = 0; i < count; ++i)
        reply += text("<wan-3><key>%1%3</key><value>%2%3</value></wan-3>")
                     .arg(text(key), text(value), QString::number(i));
    return reply + text("</response>");
}

} // namespace

TEST_F(WanFacade, ReadsEverythingAboutAWan)
{
    gateway
        .reply(reply101({{"wan-3", "type", "pppoe"},
                         {"wan-3", "l2type", "dsl"},
                         {"wan-3", "enabled", "1"},
                         {"wan-3", "entities.pvc", "pvc-0"},
                         {"wan-3", "entities.rfc2684", "rfc2684-1"},
                         {"wan-3", "entities.pppox", "pppox-2"},
                         {"wan-3", "entities.static", "static-3"},
                         {"wan-3", "entities.wan_vlan", "wan_vlan-4"},
                         {"wan-3", "entities.dhcpc", "dhcpc-5"},
                         {"wan-3", "entities.vpn", "vpn-6"},
                         {"wan-3", "isconnected", "1"},
                         {"wan-3", "localip", "192.0.2.7"},
                         {"webapp", "error", "0"}}))
        .reply(reply101({{"wan-3", "linktype0", "pppoa"}, {"wan-3", "linktype1", "pppoe"}}))
        .reply(reply101({{"wan-3", "linktype0", "dhcp"}, {"wan-3", "linktype1", "static"}}));
    EXPECT_EQ(shown(facade.getWanDetails(text("wan-3"), error)),
              text("true|true|dsl|dhcp static|pppoa pppoe|pppoe|192.0.2.7|pvc-0|rfc2684-1|pppox-2|"
                   "static-3|wan_vlan-4|dhcpc-5|vpn-6||||"));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(matchesGolden(text("wan/getWanDetailsWithLinkTypes"), transcript(gateway)));
    EXPECT_EQ(lines(),
              QStringList{text("DEBUG AspWanSettingsFacade::getWanDetails -> WAN Details:"
                               "Instance:wan-3\tConnection Type:dsl\tEnabled:true\tType:pppoe\t"
                               "Local IP:192.0.2.7")});
}

TEST_F(WanFacade, ReadsAWanThatReportsNothing)
{
    gateway.reply(nothing).reply(nothing).reply(nothing);
    EXPECT_EQ(shown(facade.getWanDetails(text("wan-3"), error)),
              text("false|false||||||||||||||||"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), QStringList{text("DEBUG AspWanSettingsFacade::getWanDetails -> WAN Details:"
                                        "Instance:wan-3\tConnection Type:\tEnabled:false\tType:\t"
                                        "Local IP:")});
}

TEST_F(WanFacade, TakesOnlyOnesForTheFlagsOfAWan)
{
    gateway.reply(reply101({{"wan-3", "enabled", "true"}, {"wan-3", "isconnected", "01"}}))
        .reply(nothing)
        .reply(nothing);
    const AspWanDetails details = facade.getWanDetails(text("wan-3"), error);
    EXPECT_FALSE(details.enabled);
    EXPECT_FALSE(details.isConnected);
}

TEST_F(WanFacade, ReadsTheLinkTypeOfTheNewerModelWhereTheOldersIsEmpty)
{
    gateway.reply(reply101({{"wan-3", "type", ""}, {"wan-3", "linktype", "dhcp"}}))
        .reply(nothing)
        .reply(nothing)
        .reply(reply101({{"wan-3", "type", "pppoe"}, {"wan-3", "linktype", "dhcp"}}))
        .reply(nothing)
        .reply(nothing);
    EXPECT_EQ(facade.getWanDetails(text("wan-3"), error).linkType, text("dhcp"));
    EXPECT_EQ(facade.getWanDetails(text("wan-3"), error).linkType, text("pppoe"));
}

TEST_F(WanFacade, FindsTunnelsByValueOnceEachAndByTheirNumbers)
{
    // Six entries, the version among them: the numbers 0 to 5 are looked for.
    gateway
        .reply(reply101({{"wan-3", "z", "vpn-0"},
                         {"wan-3", "a", "vpn-5"},
                         {"wan-3", "b", "vpn-5"},
                         {"other-0", "c", "vpn-01"},
                         {"wan-3", "d", "vpn-6"}}))
        .reply(nothing)
        .reply(nothing);
    EXPECT_EQ(facade.getWanDetails(text("wan-3"), error).vpnInstances,
              (QList<QString>{text("vpn-0"), text("vpn-5")}));
}

TEST_F(WanFacade, FindsTheTunnelsOfALargeReply)
{
    // With the version there is an entry more than tunnels, so each is found.
    gateway.reply(numbered("entities.vpn", "vpn-", 10000)).reply(nothing).reply(nothing);
    const AspWanDetails details = facade.getWanDetails(text("wan-3"), error);
    ASSERT_EQ(details.vpnInstances.size(), 10000);
    EXPECT_EQ(details.vpnInstances.first(), text("vpn-0"));
    EXPECT_EQ(details.vpnInstances.at(4321), text("vpn-4321"));
    EXPECT_EQ(details.vpnInstances.last(), text("vpn-9999"));
}

TEST_F(WanFacade, ReadsNoMoreThanTwentyLinkTypes)
{
    gateway.reply(nothing)
        .reply(numbered("linktype", "dsl type ", 21))
        .reply(numbered("linktype", "eth type ", 21));
    const AspWanDetails details = facade.getWanDetails(text("wan-3"), error);
    ASSERT_EQ(details.dslLinkTypes.size(), 20);
    EXPECT_EQ(details.dslLinkTypes.last(), text("dsl type 19"));
    ASSERT_EQ(details.ethLinkTypes.size(), 20);
    EXPECT_EQ(details.ethLinkTypes.first(), text("eth type 0"));
}

TEST_F(WanFacade, EndsTheLinkTypesAtTheFirstEmptyOne)
{
    gateway.reply(nothing)
        .reply(reply101({{"wan-3", "linktype0", "pppoe"},
                         {"wan-3", "linktype1", ""},
                         {"wan-3", "linktype2", "dhcp"}}))
        .reply(reply101({{"wan-3", "linktype1", "dhcp"}}));
    const AspWanDetails details = facade.getWanDetails(text("wan-3"), error);
    EXPECT_EQ(details.dslLinkTypes, QList<QString>{text("pppoe")});
    EXPECT_EQ(details.ethLinkTypes, QList<QString>());
}

TEST_F(WanFacade, LeavesOnlyTheLinkTypesEmptyThatCannotBeRead)
{
    gateway.reply(reply101({{"wan-3", "enabled", "1"}, {"webapp", "error", "0"}}))
        .sendRaw(notFound)
        .reply(reply101({{"wan-3", "linktype0", "dhcp"}, {"webapp", "error", "9"}}));
    EXPECT_EQ(shown(facade.getWanDetails(text("wan-3"), error)),
              text("true|false||dhcp||||||||||||||"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(WanFacade, ReportsTheErrorOfTheDetailsAlone)
{
    gateway.reply(reply101({{"webapp", "error", "6"}})).reply(nothing).sendRaw(notFound);
    facade.getWanDetails(text("wan-3"), error);
    EXPECT_EQ(error, 6);
}

} // namespace quorvel::test
