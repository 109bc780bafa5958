#include "ConnectionWrites.h"
#include "EachGateway.h"

namespace quorvel::simulator::tests
{

using testing::HasSubstr;
using testing::Not;

class InstanceLifeTest : public SimulatedGateway
{
protected:
    void create()
    {
        ASSERT_EQ(send({"command devmgr-0 create_inst pppox"}),
                  "<response version=\"1.0.1\">\n"
                  "<devmgr-0><key>create_inst.pppox</key><value>pppox-2</value></devmgr-0>\n"
                  "<webapp><error>0</error></webapp>\n</response>\n");
    }
};

TEST_F(InstanceLifeTest, ACreatedInstanceIsListed)
{
    create();
    EXPECT_THAT(send({"query devmgr-0 inst_list pppox"}),
                HasSubstr("<key>pppox.inst2</key><value>pppox-2</value>"));
    EXPECT_EQ(get("pppox-2", "mtu"), "1492");
}

TEST_F(InstanceLifeTest, ACreatedInstanceTakesASetWithoutATransaction)
{
    create();
    ASSERT_EQ(
        errorOf({"set pppox-2 enabled 1", "command cfgmgr-0 commit pppox-2",
                 "command cfgmgr-0 end_transaction pppox-2", "command devmgr-0 start_inst pppox-2",
                 "command cfgmgr-0 begin_transaction wan-0", "set wan-0 add_entity pppox:pppox-2",
                 "command cfgmgr-0 commit wan-0", "command cfgmgr-0 end_transaction wan-0",
                 "command cfgmgr-0 save", "command pppox-2 apply", "command wan-0 apply"}),
        0);
    EXPECT_EQ(gateway.storedValue("pppox-2", "enabled"), "1");
    EXPECT_EQ(gateway.storedValue("wan-0", "entities.pppox"), "pppox-2");
    EXPECT_EQ(errorOf({"set pppox-2 enabled 0"}), 7);
}

TEST_F(InstanceLifeTest, ACreatedInstanceTakesItsSetInANewSessionToo)
{
    create();
    gateway.expireSessions();
    cookie = logIn();
    EXPECT_EQ(errorOf({"set pppox-2 enabled 1", "command cfgmgr-0 commit pppox-2",
                       "command cfgmgr-0 end_transaction pppox-2"}),
              0);
    EXPECT_EQ(get("pppox-2", "enabled"), "1");
}

TEST_F(InstanceLifeTest, AnUnsavedInstanceIsGoneAfterARestart)
{
    create();
    gateway.setRebootTime(std::chrono::milliseconds(0));
    gateway.restart();
    cookie = logIn();
    EXPECT_EQ(errorOf({"get pppox-2 mtu"}), 5);
}

TEST_F(InstanceLifeTest, ADeletedInstanceIsGone)
{
    ASSERT_EQ(errorOf({"command devmgr-0 stop_inst pppox-0", "command devmgr-0 delete_inst pppox-0",
                       "command cfgmgr-0 begin_transaction wan-0",
                       "set wan-0 delete_entity pppox:pppox-0", "command cfgmgr-0 commit wan-0",
                       "command cfgmgr-0 end_transaction wan-0", "command cfgmgr-0 save",
                       "command wan-0 apply"}),
              0);
    EXPECT_EQ(errorOf({"get pppox-0 mtu"}), 5);
    EXPECT_EQ(gateway.storedValue("wan-0", "entities.pppox"), "");
    EXPECT_EQ(gateway.storedValue("wan-0", "entities.pvc"), "pvc-0");
    EXPECT_THAT(send({"query devmgr-0 inst_list pppox"}), Not(HasSubstr("pppox-0")));
}

TEST_F(InstanceLifeTest, DeletingAnEntityThatIsNotThereChangesNothing)
{
    ASSERT_EQ(errorOf({"command devmgr-0 stop_inst", "command devmgr-0 delete_inst",
                       "command cfgmgr-0 begin_transaction wan-0", "set wan-0 delete_entity vpn:",
                       "command cfgmgr-0 commit wan-0", "command cfgmgr-0 end_transaction wan-0",
                       "command cfgmgr-0 save", "command wan-0 apply"}),
              0);
    EXPECT_EQ(gateway.storedValue("wan-0", "entities.pppox"), "pppox-0");
}

TEST_F(InstanceLifeTest, AnEntityWithoutATypeIsRefused)
{
    EXPECT_EQ(errorOf({"command cfgmgr-0 begin_transaction wan-0", "set wan-0 add_entity pppox-2",
                       "command cfgmgr-0 commit wan-0"}),
              9);
}

TEST_F(InstanceLifeTest, OnlyKnownManagersCreateInstances)
{
    EXPECT_EQ(errorOf({"command devmgr-0 create_inst unicorn"}), 10);
    EXPECT_EQ(errorOf({"command devmgr-0 create_inst"}), 10);
}

class EntityTest : public EachGateway
{
protected:
    // Makes an entity of the type and adds it to the WAN over Ethernet.
    std::string add(const std::string& type)
    {
        const std::string fresh =
            read("command devmgr-0 create_inst " + type, "create_inst." + type);
        EXPECT_EQ(errorOf(addedEntity("wan-1", type, fresh)), 0) << type;
        return fresh;
    }

    std::string entity(const std::string& type)
    {
        return read("get wan-1 entities", "entities." + type);
    }
};

INSTANTIATE_TEST_SUITE_P(Gateways, EntityTest, testing::Values("classic", "dual", "modern"),
                         scenarioName);

TEST_P(EntityTest, EveryTypeIsMadeAddedAndTakenAwayAgain)
{
    for (const char* type :
         {"pppox", "dhcpc", "static", "vpn", "l2tp", "wan_vlan", "pvc", "rfc2684", "bridge"}) {
        const std::string fresh = add(type);
        EXPECT_THAT(fresh, testing::MatchesRegex(type + std::string("-[0-9]")));
        EXPECT_EQ(entity(type), fresh);
        EXPECT_EQ(gateway.storedValue("wan-1", std::string("entities.") + type), fresh);
        EXPECT_EQ(get(fresh, "enabled"), "1");
        EXPECT_EQ(errorOf(deletedEntity("wan-1", type, fresh)), 0);
        EXPECT_EQ(entity(type), "");
        EXPECT_EQ(gateway.storedValue(fresh, "enabled"), "");
        EXPECT_EQ(errorOf({"get " + fresh + " enabled"}), 5);
    }
}

TEST_P(EntityTest, ANewEntityCarriesItsConnection)
{
    gateway.setValue("wan-1", "enabled", "1");
    EXPECT_EQ(add("pppox"), "pppox-2");
    EXPECT_EQ(errorOf(joined(
                  {linkType("wan-1", "pppoe"), block("pppox-2", {"username u", "password p"})})),
              0);
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
    EXPECT_EQ(query("wan-1", "localip"), "203.0.113.3");
    EXPECT_EQ(read("query pppox-2 state", "state.localIP"), "203.0.113.3");
    EXPECT_EQ(read("query pppox-1 state", "state.status"), "disconnected");
}

TEST_P(EntityTest, WithoutItsEntityAConnectionIsDown)
{
    gateway.setValue("wan-1", "enabled", "1");
    ASSERT_EQ(query("wan-1", "isconnected"), "1");
    EXPECT_EQ(errorOf(deletedEntity("wan-1", "dhcpc", entity("dhcpc"))), 0);
    EXPECT_EQ(query("wan-1", "isconnected"), "0");
    add("dhcpc");
    EXPECT_EQ(query("wan-1", "isconnected"), "1");
}

TEST_F(InstanceLifeTest, InterfacesAreAddedAndTakenAway)
{
    const auto change = [this](const char* set) {
        EXPECT_EQ(
            errorOf({"command cfgmgr-0 begin_transaction wan-1", set,
                     "command cfgmgr-0 commit wan-1", "command cfgmgr-0 end_transaction wan-1",
                     "command cfgmgr-0 save", "command wan-1 apply"}),
            0);
        return gateway.storedValue("wan-1", "ifaces");
    };
    EXPECT_EQ(change("set wan-1 addIface eth0.1"), "eth0.1");
    EXPECT_EQ(change("set wan-1 addIface eth0"), "eth0.1,eth0");
    EXPECT_EQ(change("set wan-1 addIface eth0"), "eth0.1,eth0");
    EXPECT_EQ(change("set wan-1 addIface eth1"), "eth0.1,eth0,eth1");
    EXPECT_EQ(change("set wan-1 delIface eth0"), "eth0.1,eth1");
    EXPECT_EQ(change("set wan-1 delIface eth9"), "eth0.1,eth1");
    EXPECT_EQ(change("set wan-1 delIface eth0.1"), "eth1");
    EXPECT_EQ(change("set wan-1 delIface eth1"), "");
}

} // namespace quorvel::simulator::tests
