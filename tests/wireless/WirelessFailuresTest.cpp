#include <quorvel/AspWirelessSettingsFacadeManager.h>

#include "protocol/HttpRequestExecutor.h"
#include "wireless/WirelessFixture.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>
#include <functional>
#include <ostream>

namespace quorvel::test
{

namespace
{

using Radio = AspWirelessSettingsFacadeImplementor;
using Error = AspWebAppErrorCodes;
using Call = std::function<QString(Radio&, Error&)>;

/// An operation of a radio's facade and how it fails.
struct Operation {
    const char* name;
    Call call;             ///< gives the result as a text
    const char* onFailure; ///< the default result
    QStringList lines;
    int error = 29; ///< if every request fails
    int exchanges = 1;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

QString number(int value)
{
    return QString::number(value);
}

const char* const emptyRecord = "0|||||||||||||||||||0";

const Call status = [](Radio& r, Error& e) { return number(r.checkWirelessStatus(e)); };
const Call wpsStatus = [](Radio& r, Error& e) { return number(r.checkWpsEnabledStatus(e)); };
const Call setWps = [](Radio& r, Error& e) { return number(r.setWpsEnabledStatus(true, e)); };
const Call wpsRole = [](Radio& r, Error& e) { return number(r.getWpsRole(e)); };
const Call proxy = [](Radio& r, Error& e) { return shown(r.isSecurityProxyEnabled(e)); };
const Call settings = [](Radio& r, Error& e) { return shown(r.getWirelessSettings(e)); };
const Call setSettings = [](Radio& r, Error& e) {
    return shown(r.setWirelessSettings(AspWirelessEnabled, wholeRecord("wep"), e));
};
const Call query = [](Radio& r, Error& e) {
    // On a gateway that can be asked there is a text, so its absence shows what was asked.
    const QString commands = r.getWirelessSettingsQuery(AspWirelessEnabled, wholeRecord("wep"), e);
    return commands.isEmpty() ? commands : text("commands");
};
const Call setQuery = [](Radio& r, Error& e) { return r.setWirelessQuery(text("<a/>"), e); };
const Call stations = [](Radio& r, Error& e) { return shown(r.getWirelessClientMacList(e)); };
const Call links = [](Radio& r, Error& e) { return shown(r.getWirelessMeshInstances(e)); };
const Call security = [](Radio& r, Error& e) { return shown(r.isWirelessSecurityEnabled(e)); };
const Call capabilities = [](Radio& r, Error& e) { return shown(r.getWirelessCapabilities(e)); };

const QStringList noWpsStatus =
    lines({"ERROR AspWirelessSettingsFacade::checkWpsEnabledStatus -> Failed to fetch Wps "
           "status!"});
const QStringList noStations =
    lines({"ERROR AspWirelessSettingsFacade::getWirelessClientMacList -> Failed to fetch client "
           "list!"});

const std::vector<Operation> olderOperations{
    {"checkWirelessStatus", status, "2",
     lines({"ERROR AspWirelessSettingsFacade::checkWirelessStatus -> Failed to fetch wireless "
            "status!"})},
    {"checkWpsEnabledStatus", wpsStatus, "2", noWpsStatus, 0},
    {"setWpsEnabledStatus", setWps, "2",
     lines({"ERROR AspWirelessSettingsFacade::setWpsEnabledStatus -> Failed to set Wps status!"})},
    {"getWpsRole", wpsRole, "2",
     lines({"ERROR AspWirelessSettingsFacade::getWpsRole -> Failed to fetch Wps status!"}), 0},
    {"isSecurityProxyEnabled", proxy, "false",
     lines({"ERROR AspWirelessSettingsFacade::isSecurityProxyEnabled -> Failed to fetch proxy "
            "status!"})},
    {"getWirelessSettings", settings, emptyRecord,
     lines({"ERROR AspWirelessSettingsFacade::getWirelessSettings -> Failed to fetch wireless "
            "settings!"})},
    {"setWirelessSettings", setSettings, "false", {}},
    {"setWirelessQuery", setQuery, "", {}},
    {"getWirelessClientMacList", stations, "", noStations},
    {"getWirelessMeshInstances", links, "", noStations},
    {"isWirelessSecurityEnabled", security, "false",
     lines({"ERROR AspWirelessSettingsFacade::getWirelessSecurityMode -> Failed to fetch wireless "
            "security mode!"})}};

const std::vector<Operation> newerOperations{
    {"checkWirelessStatus", status, "2", {}, 0, 0},
    {"checkWpsEnabledStatus", wpsStatus, "2", noWpsStatus, 0},
    {"setWpsEnabledStatus", setWps, "2", {}, 0, 0},
    {"getWpsRole", wpsRole, "2",
     lines({"ERROR AspWirelessSettingsFacadeNG::getWpsRole -> Failed to fetch Wps status!"}), 0},
    {"isSecurityProxyEnabled", proxy, "false",
     lines({"ERROR AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Failed to fetch proxy "
            "status!"})},
    {"getWirelessSettings", settings, emptyRecord,
     lines({"ERROR AspWirelessSettingsFacadeNG::getWirelessSettings -> Failed to fetch wireless "
            "settings!"})},
    {"setWirelessSettings", setSettings, "false", {}, 0, 0},
    {"setWirelessQuery", setQuery, "", {}},
    {"isWirelessSecurityEnabled", security, "false",
     lines({"ERROR AspWirelessSettingsFacadeNG::getWirelessSecurityMode -> Failed to fetch "
            "wireless security mode!"})},
    {"getWirelessCapabilities", capabilities, "false",
     lines({"ERROR AspWirelessSettingsFacadeNG::isSecurityProxyEnabled -> Failed to fetch proxy "
            "status!"})}};

/// What sends nothing, so it can't fail but for the gateway's judgement.
const Operation queryOperation{"getWirelessSettingsQuery", query, "", {}, 0, 0};
const Operation newerLinks{"getWirelessMeshInstances", links, "", {}, 0, 0};

std::vector<Operation> with(std::vector<Operation> operations, std::vector<Operation> more)
{
    operations.insert(operations.end(), more.begin(), more.end());
    return operations;
}

/// The facade of one radio, of the generation that the tests choose.
class RadioFailure : public WirelessRadios, public testing::WithParamInterface<Operation>
{
protected:
    void fails(Radio& radio)
    {
        for (int i = 0; i < GetParam().exchanges; ++i)
            gateway.sendRaw(failedReply);
        EXPECT_EQ(GetParam().call(radio, error), text(GetParam().onFailure));
        EXPECT_EQ(error, GetParam().error);
        EXPECT_EQ(ownLines(), GetParam().lines);
    }

    void isNotServed(Radio& radio)
    {
        EXPECT_EQ(GetParam().call(radio, error), text(GetParam().onFailure));
        EXPECT_EQ(error, 0);
        EXPECT_EQ(ownLines(), GetParam().lines);
    }

    void isNotBuilt(Radio& radio)
    {
        cpe->setGeneralImplementor(boost::shared_ptr<GeneralSettingsImplementor>());
        EXPECT_EQ(GetParam().call(radio, error), text(GetParam().onFailure));
        EXPECT_EQ(error, 27);
        EXPECT_EQ(ownLines(), lines({"ERROR AspFacade::validateCpe -> Cpe::not correctly build!"}));
    }

    void hasNoGateway(Radio& radio)
    {
        EXPECT_EQ(GetParam().call(radio, error), text(GetParam().onFailure));
        EXPECT_EQ(error, 26);
        EXPECT_EQ(ownLines(), lines({"ERROR AspFacade::validateCpe -> Cpe is null!"}));
    }

    const boost::shared_ptr<Cpe> noGateway;
    const boost::shared_ptr<WirelessSettingsImplementor> noRadio;
};

class OlderRadioFailure : public RadioFailure
{
};

class OlderRadioJudgement : public RadioFailure
{
};

class NewerRadioFailure : public RadioFailure
{
};

class NewerRadioJudgement : public RadioFailure
{
};

} // namespace

TEST_P(OlderRadioFailure, GivesTheDefaultIfTheRequestFails)
{
    fails(*older);
}

TEST_P(OlderRadioJudgement, GivesTheDefaultOnAGatewayWithoutTheGeneration)
{
    cpe->setWirelessImplementor(noRadio);
    isNotServed(*older);
}

TEST_P(OlderRadioJudgement, GivesTheDefaultOnAGatewayThatIsNotBuilt)
{
    isNotBuilt(*older);
}

TEST_P(OlderRadioJudgement, GivesTheDefaultWithoutAGateway)
{
    AspWirelessSettingsFacade radio(noGateway);
    hasNoGateway(radio);
}

TEST_P(NewerRadioFailure, GivesTheDefaultIfTheRequestFails)
{
    fails(*newer);
}

TEST_P(NewerRadioFailure, GivesTheDefaultOnAGatewayWithoutTheGeneration)
{
    cpe->setWirelessImplementorNG(noRadio);
    isNotServed(*newer);
}

TEST_P(NewerRadioJudgement, GivesTheDefaultOnAGatewayThatIsNotBuilt)
{
    isNotBuilt(*newer);
}

TEST_P(NewerRadioJudgement, GivesTheDefaultWithoutAGateway)
{
    AspWirelessSettingsFacadeNG radio(noGateway);
    hasNoGateway(radio);
}

INSTANTIATE_TEST_SUITE_P(Requests, OlderRadioFailure, testing::ValuesIn(olderOperations),
                         CaseName());
INSTANTIATE_TEST_SUITE_P(AllOperations, OlderRadioJudgement,
                         testing::ValuesIn(with(olderOperations, {queryOperation})), CaseName());
INSTANTIATE_TEST_SUITE_P(Requests, NewerRadioFailure, testing::ValuesIn(newerOperations),
                         CaseName());
INSTANTIATE_TEST_SUITE_P(AllOperations, NewerRadioJudgement,
                         testing::ValuesIn(with(newerOperations, {queryOperation, newerLinks})),
                         CaseName());

namespace
{

using RadioFailures = WirelessRadios;
using Manager = AspWirelessSettingsFacadeManager;

/// All operations of a manager in a row, each result with the error beside it.
QStringList answers(Manager& manager)
{
    Error error;
    const auto with = [&error](const QString& result) {
        return result + text(" ") + QString::number(error);
    };
    QStringList all;
    const auto add = [&](const QString& result) { all.append(with(result)); };
    add(number(manager.checkWirelessStatus(0, error)));
    add(number(manager.checkWpsEnabledStatus(0, error)));
    add(shown(manager.getWirelessSettings(0, error)));
    add(shown(manager.setWirelessSettings(AspWirelessEnabled, wholeRecord("off"), error)));
    add(shown(manager.setWirelessSettings({wholeRecord("off")}, error)));
    add(shown(manager.getWirelessClientMacList(error)));
    add(shown(manager.getWirelessMeshInstances(error)));
    add(shown(manager.isWirelessSecurityEnabled(error)));
    add(shown(manager.isSecurityProxyEnabled(error)));
    add(number(manager.getWpsRole(error)));
    return all;
}

QStringList defaults(const char* error)
{
    QStringList all;
    for (const char* result :
         {"2", "2", emptyRecord, "false", "false", "", "", "false", "false", "2"})
        all.append(text(result) + text(" ") + text(error));
    return all;
}

} // namespace

TEST_F(RadioFailures, StopEveryOperationOfAManagerWithoutAGateway)
{
    Manager manager(boost::shared_ptr<Cpe>(), lines({"wireless_core-0", "wireless-0"}));
    manager.setManagerId(0);
    log.clear();
    EXPECT_EQ(answers(manager), defaults("26"));
    EXPECT_EQ(ownLines().size(), 10);
    EXPECT_EQ(manager.getManagerCount(), 2);
    manager.setManagerId(1);
    EXPECT_EQ(manager.getSupportSecurityModes(0, 0), QStringList());
}

TEST_F(RadioFailures, StopEveryOperationOfAManagerOnAGatewayThatIsNotBuilt)
{
    Manager manager(cpe, lines({"wireless_core-0"}));
    manager.setManagerId(0);
    cpe->setGeneralImplementor(boost::shared_ptr<GeneralSettingsImplementor>());
    EXPECT_EQ(answers(manager), defaults("27"));
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(RadioFailures, LeaveAManagerStandingOnAGatewayWithoutRadios)
{
    cpe->setWirelessImplementor(boost::shared_ptr<WirelessSettingsImplementor>());
    cpe->setWirelessImplementorNG(boost::shared_ptr<WirelessSettingsImplementor>());
    Manager manager(cpe, lines({"wireless_core-0", "wireless-0"}));
    manager.setManagerId(1);
    EXPECT_EQ(manager.getSupportSecurityModes(1, 0), QStringList());
    EXPECT_TRUE(manager.setWirelessSettings({wholeRecord("off"), wholeRecord("off")}, error));
    manager.setManagerId(0);
    QStringList expected = defaults("0");
    EXPECT_EQ(answers(manager), expected);
    EXPECT_EQ(gateway.connections(), 0);
}

TEST_F(RadioFailures, TellATimeOutAndAnUnreadableReplyApart)
{
    cpe->getWirelessImplementor()->setRequestExecutor(boost::make_shared<HttpRequestExecutor>(200));
    gateway.sendAndHold(QByteArray()).reply(text("<html>"));
    older->checkWirelessStatus(error);
    EXPECT_EQ(error, 28);
    older->checkWirelessStatus(error);
    EXPECT_EQ(error, 25);
}

} // namespace quorvel::test
