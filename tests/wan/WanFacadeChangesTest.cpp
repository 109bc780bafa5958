#include "wan/WanFixture.h"

namespace quorvel::test
{

namespace
{

const QString done = reply101({{"webapp", "error", "0"}});

} // namespace

TEST_F(WanFacade, NamesTheEntityThatWasAddedAndLogsItAsAnError)
{
    gateway.reply(reply101({{"devmgr-0", "create_inst.pppox", "pppox-2"}})).reply(done);
    EXPECT_EQ(facade.addEntity(text("wan-3"), text("pppox"), error), text("pppox-2"));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), QStringList{text("ERROR AspWanSettingsFacade::addEntity-> Created entity -> "
                                        "pppox-2")});
}

TEST_F(WanFacade, NamesNoEntityIfTheGatewayCreatedNone)
{
    gateway.reply(done).reply(reply101({{"webapp", "error", "9"}}));
    EXPECT_EQ(facade.addEntity(text("wan-3"), text("pppox"), error), QString());
    EXPECT_EQ(error, 9);
    EXPECT_EQ(lines(),
              QStringList{text("ERROR AspWanSettingsFacade::addEntity-> Created entity -> ")});
}

TEST_F(WanFacade, NamesTheEntityThatWasCreatedButNotAdded)
{
    gateway.reply(reply101({{"devmgr-0", "create_inst.pppox", "pppox-2"}})).sendRaw(notFound);
    EXPECT_EQ(facade.addEntity(text("wan-3"), text("pppox"), error), text("pppox-2"));
    EXPECT_EQ(error, 29);
    EXPECT_EQ(lines(),
              QStringList{text("ERROR AspWanSettingsFacade::addEntity-> Failed to create entity -> "
                               "pppox")});
}

TEST_F(WanFacade, LosesTheNameOfAnEntityThatIsAddedInANewSession)
{
    gateway.reply(reply101({{"devmgr-0", "create_inst.pvc", "pvc-4"}, {"webapp", "error", "0"}}))
        .reply(reply101({{"webapp", "error", "1"}}))
        .logIn("SID=2")
        .reply(done);
    EXPECT_EQ(facade.addEntity(text("wan-3"), text("pvc"), error), QString());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines().last(), text("ERROR AspWanSettingsFacade::addEntity-> Created entity -> "));
    EXPECT_TRUE(matchesGolden(text("wan/addEntityInANewSession"), transcript(gateway)));
}

TEST_F(WanFacade, DeletesTheEntityOfTheWan)
{
    gateway.reply(reply101({{"wan-3", "entities.pvc", "pvc-4"}, {"webapp", "error", "8"}}))
        .reply(reply101({{"webapp", "error", "9"}}));
    EXPECT_TRUE(facade.deleteEntity(text("wan-3"), text("pvc"), error));
    EXPECT_EQ(error, 9);
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(WanFacade, ReportsADeletionThatFails)
{
    gateway.reply(reply101({{"wan-3", "entities.pvc", "pvc-4"}})).sendRaw(notFound);
    EXPECT_FALSE(facade.deleteEntity(text("wan-3"), text("pvc"), error));
    EXPECT_EQ(error, 29);
}

TEST_F(WanFacade, AnswersAnAddedInterfaceWithTheCharacterOfCode1)
{
    gateway.reply(done);
    const QString result = facade.addIface(text("wan-3"), text("eth-2"), error);
    EXPECT_EQ(error, 0);
    ASSERT_EQ(result.size(), 1);
    EXPECT_EQ(result.at(0).unicode(), 1);
    EXPECT_EQ(lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("wan/addIface"), transcript(gateway)));
}

TEST_F(WanFacade, PassesTheSmallChangesThroughWithoutALine)
{
    gateway.reply(done).reply(done).reply(done);
    EXPECT_TRUE(facade.deleteIface(text("wan-3"), text("eth-2"), error));
    EXPECT_EQ(error, 0);
    EXPECT_TRUE(facade.enableWan(text("wan-3"), error));
    EXPECT_TRUE(facade.disableWan(text("wan-3"), error));
    EXPECT_EQ(lines(), QStringList());
    EXPECT_TRUE(matchesGolden(text("wan/smallChangesInARow"), transcript(gateway)));
}

TEST_F(WanFacade, SwitchesTheConnectionWithTheListsInTheirOrder)
{
    gateway.reply(done);
    EXPECT_TRUE(facade.switchConnectionType({text("wan-1"), text("wan-2")}, {text("wan-0")},
                                            text("wan-1"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), QStringList{text("DEBUG AspWanSettingsFacade::switchConnectionType ->Wan "
                                        "Connection type switched.")});
    EXPECT_TRUE(matchesGolden(text("wan/switchConnectionType"), transcript(gateway)));
}

TEST_F(WanFacade, MovesTheDefaultRouteAlsoWithoutWansToSwitch)
{
    gateway.reply(done);
    EXPECT_TRUE(facade.switchConnectionType({}, {}, text("wan-1"), error));
    EXPECT_TRUE(matchesGolden(text("wan/switchConnectionTypeWithoutWans"), transcript(gateway)));
}

} // namespace quorvel::test
