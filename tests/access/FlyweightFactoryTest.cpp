#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspCpeFlyweightFactory.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "protocol/AspCpeSessionStorage.h"
#include "support/OneInstance.h"
#include "support/RecognisedGateway.h"
#include "support/Replies.h"

namespace quorvel::test
{

namespace
{

using Object = boost::shared_ptr<AspCpeFacadeObject>;

class FlyweightFactory : public RecognisedGateway
{
protected:
    /// Keys that no other gateway of this process has.
    QString ethernetMac() const { return text("ETH ") + gateway.address(); }
    QString wirelessMac() const { return text("WLAN ") + gateway.address(); }

    Object getCpe(const QString& key) { return factory().getCpe(key, info()); }

    AspCpeFlyweightFactory& factory() { return *AspCpeFlyweightFactory::getInstance(); }

    void answer(const char* key, const QString& mac)
    {
        gateway.reply(reply101({{"sysmgr-0", key, mac}}));
    }

    /// What the request of that index asked the gateway's environment for.
    bool asksFor(int index, const char* name) const
    {
        return gateway.request(index).body.contains(QByteArray("<value>") + name + "</value>");
    }
};

} // namespace

TEST_F(FlyweightFactory, IsOneForAllThreads)
{
    expectOneInstanceForAllThreads<AspCpeFlyweightFactory>();
}

TEST_F(FlyweightFactory, GivesTheSameObjectForAKnownKeyAndSendsNothing)
{
    scriptRecognition({text("devmgr")});
    const Object first = getCpe(ethernetMac());
    EXPECT_TRUE(first);
    log.clear();
    EXPECT_EQ(getCpe(ethernetMac()), first);
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(FlyweightFactory, GivesTheObjectOfAKnownKeyAlsoIfTheGatewayIsGone)
{
    scriptRecognition({text("devmgr")});
    const Object first = getCpe(ethernetMac());
    EXPECT_EQ(getCpe(ethernetMac()), first);
    gateway.sendRaw({});
    AspWebAppErrorCodes error = AspWebAppNoError;
    EXPECT_EQ(first->getGeneralSettingsFacade()->getSerialNumber(error), QString());
    EXPECT_EQ(static_cast<int>(error), 29);
}

TEST_F(FlyweightFactory, ComparesKeysExactly)
{
    for (const char* key : {"aa:bb ", "AA:BB ", "aabb "}) {
        scriptRecognition({text("devmgr")});
        EXPECT_TRUE(getCpe(text(key) + gateway.address()));
    }
    EXPECT_EQ(gateway.connections(), 9);
}

TEST_F(FlyweightFactory, TakesAnEmptyKeyLikeAnyOther)
{
    scriptRecognition({text("devmgr")});
    const Object first = getCpe(QString());
    EXPECT_TRUE(first);
    EXPECT_EQ(getCpe(text("")), first);
}

TEST_F(FlyweightFactory, KeepsNothingOfAGatewayThatRefuses)
{
    scriptRefusal(2);
    EXPECT_FALSE(getCpe(ethernetMac()));
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(getCpe(ethernetMac()));
}

TEST_F(FlyweightFactory, KeepsNothingOfAGatewayWithoutGeneralSettings)
{
    scriptRecognition({text("dsl")});
    EXPECT_FALSE(getCpe(ethernetMac()));
    EXPECT_EQ(log.lines().last(), text("ERROR AspCpeFacadeObject::getGeneralSettingsFacade -> "
                                       "GeneralSettingsVersion is invalid."));
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(getCpe(ethernetMac()));
}

TEST_F(FlyweightFactory, LogsInWithChangedCredentialsOnTheSameObject)
{
    scriptRecognition({text("devmgr")});
    const Object first = getCpe(ethernetMac());
    gateway.logIn("SID=2");
    EXPECT_EQ(factory().getCpe(ethernetMac(), infoWith("new")), first);
    EXPECT_EQ(form(3), QByteArray("user=admin&password=new"));
    EXPECT_EQ(first->getGeneralSettingsFacade()->getCurrentSessionId(), text("SID=2"));
}

TEST_F(FlyweightFactory, ForgetsAKeyWhoseChangedCredentialsAreRefused)
{
    scriptRecognition({text("devmgr")});
    const Object first = getCpe(ethernetMac());
    scriptRefusal(1);
    EXPECT_FALSE(factory().getCpe(ethernetMac(), infoWith("wrong")));
    scriptRecognition({text("devmgr")});
    const Object second = getCpe(ethernetMac());
    EXPECT_TRUE(second);
    EXPECT_NE(second, first);
    EXPECT_EQ(form(4), QByteArray("user=admin&password=secret"));
}

TEST_F(FlyweightFactory, KnowsAGatewayWithoutKeyByItsEthernetMac)
{
    scriptRecognition({text("devmgr")});
    answer("MAC_ETH_0", ethernetMac());
    const Object object = factory().getCpe(info());
    EXPECT_TRUE(object);
    EXPECT_EQ(gateway.connections(), 4);
    EXPECT_TRUE(asksFor(3, "MAC_ETH_0"));
    EXPECT_EQ(getCpe(ethernetMac()), object);
    EXPECT_EQ(gateway.connections(), 4);
}

TEST_F(FlyweightFactory, KnowsAGatewayWithRadioByBothItsMacs)
{
    scriptRecognition({text("devmgr"), text("wireless")});
    answer("MAC_ETH_0", ethernetMac());
    answer("MAC_WLAN_0", wirelessMac());
    const Object object = factory().getCpe(info());
    EXPECT_TRUE(asksFor(3, "MAC_ETH_0"));
    EXPECT_TRUE(asksFor(4, "MAC_WLAN_0"));
    EXPECT_EQ(getCpe(ethernetMac()), object);
    EXPECT_EQ(getCpe(wirelessMac()), object);
    EXPECT_EQ(gateway.connections(), 5);
}

TEST_F(FlyweightFactory, KeepsTheSecondKeyWhenTheFirstIsForgotten)
{
    scriptRecognition({text("devmgr"), text("wireless")});
    answer("MAC_ETH_0", ethernetMac());
    answer("MAC_WLAN_0", wirelessMac());
    const Object object = factory().getCpe(info());
    scriptRefusal(1);
    EXPECT_FALSE(factory().getCpe(ethernetMac(), infoWith("wrong")));
    EXPECT_EQ(factory().getCpe(wirelessMac(), infoWith("wrong")), object);
    scriptRecognition({text("devmgr")});
    EXPECT_NE(getCpe(ethernetMac()), object);
}

TEST_F(FlyweightFactory, RecognisesAGatewayWithoutKeyAnewAndReplacesItsEntries)
{
    Object objects[2];
    for (Object& object : objects) {
        scriptRecognition({text("devmgr")});
        answer("MAC_ETH_0", ethernetMac());
        object = factory().getCpe(info());
        EXPECT_TRUE(object);
    }
    EXPECT_NE(objects[0], objects[1]);
    EXPECT_EQ(getCpe(ethernetMac()), objects[1]);
    EXPECT_EQ(gateway.connections(), 8);
    EXPECT_TRUE(objects[0]->hasGeneral());
}

TEST_F(FlyweightFactory, GivesAGatewayWithEmptyMacsButDoesNotKnowItAgain)
{
    scriptRecognition({text("devmgr"), text("wireless")});
    answer("MAC_ETH_0", QString());
    gateway.sendRaw({});
    const Object object = factory().getCpe(info());
    ASSERT_TRUE(object);
    EXPECT_TRUE(object->hasWireless());
    EXPECT_EQ(log.lines().last(), text("ERROR AspGeneralSettingsFacade::getWlanMacAddress -> "
                                       "Failed to fetch WLAN MAC Address!"));
    scriptRecognition({text("devmgr")});
    EXPECT_NE(getCpe(text("MAC of ") + gateway.address()), object);
}

TEST_F(FlyweightFactory, KnowsAGatewayByItsWirelessMacIfTheOtherCannotBeRead)
{
    scriptRecognition({text("devmgr"), text("wireless_core")});
    gateway.sendRaw({});
    answer("MAC_WLAN_0", wirelessMac());
    const Object object = factory().getCpe(info());
    EXPECT_TRUE(object);
    EXPECT_EQ(getCpe(wirelessMac()), object);
}

TEST_F(FlyweightFactory, GivesNothingForAGatewayWithoutKeyThatRefuses)
{
    scriptRefusal(2);
    EXPECT_FALSE(factory().getCpe(info()));
}

TEST_F(FlyweightFactory, GivesNothingForAGatewayWithoutKeyAndGeneralSettings)
{
    scriptRecognition({text("wireless")});
    EXPECT_FALSE(factory().getCpe(info()));
}

TEST_F(FlyweightFactory, CopiesKnowTheSameObjectsAndThenGoTheirOwnWays)
{
    scriptRecognition({text("devmgr")});
    const Object object = getCpe(ethernetMac());
    AspCpeFlyweightFactory copy(factory());
    AspCpeFlyweightFactory assigned(factory());
    assigned = copy;
    EXPECT_EQ(copy.getCpe(ethernetMac(), info()), object);
    EXPECT_EQ(assigned.getCpe(ethernetMac(), info()), object);
    scriptRecognition({text("devmgr")});
    const Object ofCopy = copy.getCpe(wirelessMac(), info());
    scriptRecognition({text("devmgr")});
    EXPECT_NE(getCpe(wirelessMac()), ofCopy);
    scriptRefusal(1);
    EXPECT_FALSE(copy.getCpe(ethernetMac(), infoWith("wrong")));
    EXPECT_EQ(factory().getCpe(ethernetMac(), infoWith("wrong")), object);
}

} // namespace quorvel::test
