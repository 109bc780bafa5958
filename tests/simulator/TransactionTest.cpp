#include "SimulatedGateway.h"

namespace quorvel::simulator::tests
{

class TransactionTest : public SimulatedGateway
{
};

TEST_F(TransactionTest, SetOutsideATransactionIsRefused)
{
    EXPECT_EQ(errorOf({"set warranty-0 name Ada"}), 7);
    EXPECT_EQ(gateway.configuredValue("warranty-0", "name"), "");
}

TEST_F(TransactionTest, SetInATransactionOnAnotherInstanceIsRefused)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction wan-0", "set warranty-0 name Ada"}), 7);
}

TEST_F(TransactionTest, NothingIsVisibleBeforeCommit)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0", "set warranty-0 name Ada"}),
              0);
    EXPECT_EQ(get("warranty-0", "name"), "");
    EXPECT_EQ(errorOf({"command cfgmgr-0 commit warranty-0"}), 0);
    EXPECT_EQ(get("warranty-0", "name"), "Ada");
}

TEST_F(TransactionTest, EndWithoutCommitDropsTheChanges)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0", "set warranty-0 name Ada",
                       "command cfgmgr-0 end_transaction warranty-0"}),
              0);
    EXPECT_EQ(get("warranty-0", "name"), "");
    EXPECT_EQ(errorOf({"command cfgmgr-0 commit warranty-0"}), 7);
}

TEST_F(TransactionTest, ChangesBehindTheCommitAreDroppedAtTheEnd)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0", "set warranty-0 name Ada",
                       "command cfgmgr-0 commit warranty-0", "set warranty-0 name Bob",
                       "command cfgmgr-0 end_transaction warranty-0"}),
              0);
    EXPECT_EQ(get("warranty-0", "name"), "Ada");
}

TEST_F(TransactionTest, StepsInAWrongOrderAreRefused)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 commit warranty-0"}), 7);
    EXPECT_EQ(errorOf({"command cfgmgr-0 end_transaction warranty-0"}), 7);
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0",
                       "command cfgmgr-0 begin_transaction warranty-0"}),
              8);
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0",
                       "command cfgmgr-0 end_transaction warranty-0",
                       "command cfgmgr-0 commit warranty-0"}),
              7);
}

TEST_F(TransactionTest, SeveralInstancesHaveTransactionsAtOnce)
{
    EXPECT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction webui-0",
                 "command cfgmgr-0 begin_transaction sysmgr-0", "set webui-0 password new",
                 "set sysmgr-0 password new", "command cfgmgr-0 commit webui-0",
                 "command cfgmgr-0 commit sysmgr-0", "command cfgmgr-0 save",
                 "command cfgmgr-0 end_transaction webui-0",
                 "command cfgmgr-0 end_transaction sysmgr-0", "command sysmgr-0 apply_user_info"}),
        0);
    EXPECT_EQ(gateway.value("webui-0", "password"), "new");
    EXPECT_EQ(gateway.storedValue("sysmgr-0", "password"), "new");
}

TEST_F(TransactionTest, TransactionsOfTwoSessionsDontMeet)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0", "set warranty-0 name Ada"}),
              0);
    const std::string first = cookie;
    cookie = logIn();
    EXPECT_EQ(errorOf({"set warranty-0 name Bob"}), 7);
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0"}), 0);
    cookie = first;
    EXPECT_EQ(errorOf({"command cfgmgr-0 commit warranty-0"}), 0);
    EXPECT_EQ(get("warranty-0", "name"), "Ada");
}

TEST_F(TransactionTest, AnEndedSessionLeavesNoTransaction)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0"}), 0);
    gateway.expireSessions();
    cookie = logIn();
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction warranty-0"}), 0);
}

TEST_F(TransactionTest, CommitIsNeitherInEffectNorStored)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction product-0",
                       "set product-0 router_mode ap", "command cfgmgr-0 commit product-0",
                       "command cfgmgr-0 end_transaction product-0"}),
              0);
    EXPECT_EQ(gateway.configuredValue("product-0", "router_mode"), "ap");
    EXPECT_EQ(gateway.value("product-0", "router_mode"), "router");
    EXPECT_EQ(gateway.storedValue("product-0", "router_mode"), "router");
    ASSERT_EQ(errorOf({"command product-0 apply"}), 0);
    EXPECT_EQ(gateway.value("product-0", "router_mode"), "ap");
    EXPECT_EQ(gateway.storedValue("product-0", "router_mode"), "router");
    ASSERT_EQ(errorOf({"command cfgmgr-0 save"}), 0);
    EXPECT_EQ(gateway.storedValue("product-0", "router_mode"), "ap");
}

TEST_F(TransactionTest, ApplyOnTheConfigurationManagerAppliesEverything)
{
    ASSERT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction product-0", "set product-0 router_mode ap",
                 "command cfgmgr-0 commit product-0", "command cfgmgr-0 save",
                 "command cfgmgr-0 end_transaction product-0", "command cfgmgr-0 apply"}),
        0);
    EXPECT_EQ(gateway.value("product-0", "router_mode"), "ap");
    EXPECT_EQ(gateway.storedValue("product-0", "router_mode"), "ap");
}

TEST_F(TransactionTest, ApplyOfOneInstanceLeavesTheOthers)
{
    ASSERT_EQ(errorOf({"command cfgmgr-0 begin_transaction product-0",
                       "command cfgmgr-0 begin_transaction conn-0", "set product-0 router_mode ap",
                       "set conn-0 hostname attic", "command cfgmgr-0 commit product-0",
                       "command cfgmgr-0 commit conn-0", "command conn-0 apply"}),
              0);
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "attic");
    EXPECT_EQ(gateway.value("product-0", "router_mode"), "router");
}

TEST_F(TransactionTest, TheDefaultGatewayMovesWithItsOwnApply)
{
    ASSERT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction route-0", "set route-0 default_gw wan-0",
                 "command cfgmgr-0 commit route-0", "command cfgmgr-0 end_transaction route-0",
                 "command cfgmgr-0 begin_transaction wan-0", "set wan-0 enabled 1",
                 "command cfgmgr-0 commit wan-0", "command cfgmgr-0 end_transaction wan-0",
                 "command cfgmgr-0 save", "command route-0 apply_default_gw",
                 "command wan-0 apply"}),
        0);
    EXPECT_EQ(gateway.value("route-0", "default_gw"), "wan-0");
    EXPECT_EQ(gateway.value("wan-0", "enabled"), "1");
}

TEST_F(TransactionTest, ARefusedCommandLeavesNothingOfItsRequest)
{
    const Objects before = gateway.storedObjects();
    const std::string reply =
        send({"get conn-0 hostname", "command cfgmgr-0 begin_transaction conn-0",
              "set conn-0 hostname attic", "command cfgmgr-0 commit conn-0",
              "command cfgmgr-0 save", "command cfgmgr-0 end_transaction conn-0",
              "command conn-0 apply", "command conn-0 explode"});
    EXPECT_EQ(reply, "<response version=\"1.0.1\">\n<webapp><error>6</error></webapp>\n"
                     "</response>\n");
    EXPECT_EQ(gateway.storedObjects(), before);
    EXPECT_EQ(gateway.configuredValue("conn-0", "hostname"), "gateway");
    EXPECT_EQ(gateway.value("conn-0", "hostname"), "gateway");
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction conn-0"}), 0);
}

TEST_F(TransactionTest, CommandsForAnEmptyInstanceArePassedOver)
{
    EXPECT_EQ(
        errorOf({"command cfgmgr-0 begin_transaction", "set - vlanid", "command cfgmgr-0 commit",
                 "command cfgmgr-0 end_transaction", "command - apply", "get - settings",
                 "query - state", "command devmgr-0 stop_inst", "command devmgr-0 delete_inst"}),
        0);
}

TEST_F(TransactionTest, UnknownInstancesAreRefused)
{
    for (const char* line :
         {"get wan-9 type", "query wan-9 isconnected", "command wan-9 apply", "set wan-9 type dhcp",
          "command cfgmgr-0 begin_transaction wan-9", "command cfgmgr-0 commit wan-9",
          "command cfgmgr-0 end_transaction wan-9", "command devmgr-0 start_inst wan-9",
          "command devmgr-0 stop_inst wan-9", "command devmgr-0 delete_inst wan-9"})
        EXPECT_EQ(errorOf({line}), 5) << line;
}

TEST_F(TransactionTest, UnknownCommandsAreRefused)
{
    for (const char* line :
         {"command wan-0 explode", "command cfgmgr-0 explode", "command devmgr-0 explode",
          "command sysmgr-0 explode", "command webui-0 explode", "command route-0 explode"})
        EXPECT_EQ(errorOf({line}), 6) << line;
}

} // namespace quorvel::simulator::tests
