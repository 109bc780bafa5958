#include "protocol/HttpRequestExecutor.h"
#include "wan/WanFixture.h"
#include "wan/WanSettingsImplementor.h"

#include <boost/make_shared.hpp>
#include <functional>
#include <ostream>

namespace quorvel::test
{

namespace
{

using Facade = AspWanSettingsFacade;
using Error = AspWebAppErrorCodes;

/// An operation of the facade and how it fails.
struct Operation {
    const char* name;
    std::function<QString(Facade&, Error&)> call; ///< gives the result as a text
    const char* onFailure;                        ///< the default result
    QStringList failureLines;
    int error = 29; ///< if every request fails
    int exchanges = 1;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

QString list(const QList<QString>& values)
{
    return QStringList(values).join(QLatin1Char(' '));
}

const QString noDefaultWan =
    text("ERROR AspWanSettingsFacade::getDefaultWan -> Failed to fetch default WAN!");
const QString noStatus =
    text("ERROR AspWanSettingsFacade::getDefaultGwStatus -> Failed to fetch GatewayStatus!");
const QString wan = text("wan-3");

const Operation has3GSupport{
    "has3GSupport", [](Facade& f, Error& e) { return shown(f.has3GSupport(e)); }, "false", {}};

const std::vector<Operation> wanOperations{
    {"getDefaultWan",
     [](Facade& f, Error& e) { return f.getDefaultWan(text("route-0"), e); },
     "",
     {noDefaultWan}},
    {"getAliasDefaultWan",
     [](Facade& f, Error& e) { return f.getAliasDefaultWan(text("route-0"), e); },
     "",
     {noDefaultWan}},
    {"getDefaultGwStatus",
     [](Facade& f, Error& e) { return f.getDefaultGwStatus(text("route-0"), e); },
     "",
     {noStatus, noDefaultWan},
     29,
     2},
    {"getDefaultGwStatusWithLinkState",
     [](Facade& f, Error& e) { return f.getDefaultGwStatusWithLinkState(text("route-0"), e); },
     "",
     {noStatus, noDefaultWan},
     29,
     2},
    {"getInternetConnectionStatus",
     [](Facade& f, Error& e) {
         return QString::number(f.getInternetConnectionStatus(text("route-0"), e));
     },
     "2",
     {text("ERROR AspWanSettingsFacade::getInternetConnectionStatus -> Failed to fetch connection "
           "status!")}},
    {"getInternetConnectionStatus2",
     [](Facade& f, Error& e) { return QString::number(f.getInternetConnectionStatus2(e)); },
     "2",
     {noDefaultWan}},
    {"getWanList",
     [](Facade& f, Error& e) { return list(f.getWanList(e)); },
     "",
     {text("ERROR AspWanSettingsFacade::getWanList -> Failed to fetch WAN list!")}},
    {"getWanListByLayer",
     [](Facade& f, Error& e) {
         QList<QString> dsl{text("a")};
         QList<QString> eth{text("b")};
         return shown(f.getWanList(dsl, eth, e)) + list(dsl) + list(eth);
     },
     "falseab",
     {text("ERROR AspWanSettingsFacade::getWanList2 -> Failed to get WAN list!")}},
    {"getWanDetails",
     [](Facade& f, Error& e) { return shown(f.getWanDetails(wan, e)); },
     "false|false||||||||||||||||",
     {text("ERROR AspWanSettingsFacade::getWanDetails -> Failed to fetch WAN details!")}},
    {"addEntity",
     [](Facade& f, Error& e) { return f.addEntity(wan, text("pvc"), e); },
     "",
     {text("ERROR AspWanSettingsFacade::addEntity-> Failed to create entity -> pvc")}},
    // Its look-up of the entity fails, and that isn't reported.
    {"deleteEntity",
     [](Facade& f, Error& e) { return shown(f.deleteEntity(wan, text("pvc"), e)); },
     "false",
     {},
     0},
    {"addIface",
     [](Facade& f, Error& e) {
         const QString result = f.addIface(wan, text("eth-2"), e);
         return text("length %1 code %2").arg(result.size()).arg(result.at(0).unicode());
     },
     "length 1 code 0",
     {}},
    {"deleteIface",
     [](Facade& f, Error& e) { return shown(f.deleteIface(wan, text("eth-2"), e)); },
     "false",
     {}},
    {"enableWan", [](Facade& f, Error& e) { return shown(f.enableWan(wan, e)); }, "false", {}},
    {"disableWan", [](Facade& f, Error& e) { return shown(f.disableWan(wan, e)); }, "false", {}},
    {"switchConnectionType",
     [](Facade& f, Error& e) { return shown(f.switchConnectionType({wan}, {}, wan, e)); },
     "false",
     {text("ERROR AspWanSettingsFacade::switchConnectionType -> Failed to switch wan connection "
           "type!")}},
    {"getWanEthLinkStatus",
     [](Facade& f, Error& e) { return QString::number(f.getWanEthLinkStatus(text("eth-0"), e)); },
     "0",
     {text("ERROR AspWanSettingsFacade::getWanEthLinkStatus -> Failed to fetch wanLinkStatus!")}},
    {"getWanDslLinkStatus",
     [](Facade& f, Error& e) { return QString::number(f.getWanDslLinkStatus(text("dsl-0"), e)); },
     "0",
     {text("ERROR AspWanSettingsFacade::getWanDslLinkStatus -> Failed to fetch wanLinkStatus!")}},
    {"get3GWan",
     [](Facade& f, Error& e) { return f.get3GWan(e); },
     "",
     {text("ERROR AspWanSettingsFacade::get3GWan -> Failed to fetch 3G WAN!")}},
    // Alone among the getters it reports no failure.
    {"get3GSettings",
     [](Facade& f, Error& e) { return shown(f.get3GSettings(wan, text("serial-0"), e)); },
     "|||0|false|0|false||false||8|0|",
     {},
     0},
    {"set3GSettings",
     [](Facade& f, Error& e) { return shown(f.set3GSettings(wan, text("serial-0"), {}, e)); },
     "false",
     {}}};

std::vector<Operation> allOperations()
{
    std::vector<Operation> operations = wanOperations;
    operations.push_back(has3GSupport);
    return operations;
}

class WanFacadeFailure : public WanFacade, public testing::WithParamInterface<Operation>
{
};

class WanFacadeWithoutWan : public WanFacade, public testing::WithParamInterface<Operation>
{
};

} // namespace

TEST_P(WanFacadeFailure, GivesTheDefaultWithoutAGateway)
{
    AspWanSettingsFacade empty{boost::shared_ptr<Cpe>()};
    EXPECT_EQ(GetParam().call(empty, error), text(GetParam().onFailure));
    EXPECT_EQ(error, 26);
    EXPECT_EQ(lines(), QStringList{text("ERROR AspFacade::validateCpe -> Cpe is null!")});
}

TEST_P(WanFacadeFailure, GivesTheDefaultOnAGatewayThatIsNotBuilt)
{
    cpe->setGeneralImplementor(boost::shared_ptr<GeneralSettingsImplementor>());
    EXPECT_EQ(GetParam().call(facade, error), text(GetParam().onFailure));
    EXPECT_EQ(error, 27);
    EXPECT_EQ(lines(),
              QStringList{text("ERROR AspFacade::validateCpe -> Cpe::not correctly build!")});
}

TEST_P(WanFacadeFailure, GivesTheDefaultIfTheRequestFails)
{
    for (int i = 0; i < GetParam().exchanges; ++i)
        gateway.sendRaw(notFound);
    EXPECT_EQ(GetParam().call(facade, error), text(GetParam().onFailure));
    EXPECT_EQ(error, GetParam().error);
    EXPECT_EQ(lines(), GetParam().failureLines);
}

TEST_P(WanFacadeFailure, GivesTheDefaultIfTheReplyIsUnreadable)
{
    for (int i = 0; i < GetParam().exchanges; ++i)
        gateway.reply(text("<html>"));
    EXPECT_EQ(GetParam().call(facade, error), text(GetParam().onFailure));
    EXPECT_EQ(error, GetParam().error == 29 ? 25 : 0);
    EXPECT_EQ(lines(), GetParam().failureLines);
}

INSTANTIATE_TEST_SUITE_P(AllOperations, WanFacadeFailure, testing::ValuesIn(allOperations()),
                         CaseName());

TEST_P(WanFacadeWithoutWan, GivesTheDefaultAndSendsNothing)
{
    cpe->setWanImplementor(boost::shared_ptr<WanSettingsImplementor>());
    EXPECT_EQ(GetParam().call(facade, error), text(GetParam().onFailure));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(lines(), GetParam().failureLines);
}

INSTANTIATE_TEST_SUITE_P(WanOperations, WanFacadeWithoutWan, testing::ValuesIn(wanOperations),
                         CaseName());

TEST_F(WanFacade, ReportsAGatewayThatDoesNotAnswerInTime)
{
    cpe->getWanImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    gateway.sendAndHold(QByteArray());
    EXPECT_FALSE(facade.enableWan(text("wan-0"), error));
    EXPECT_EQ(error, 28);
}

TEST_F(WanFacade, PassesTheGatewaysOwnErrorOnBesideASuccess)
{
    gateway.reply(reply101({{"webapp", "error", "7"}}));
    EXPECT_TRUE(facade.enableWan(text("wan-0"), error));
    EXPECT_EQ(error, 7);
}

} // namespace quorvel::test
