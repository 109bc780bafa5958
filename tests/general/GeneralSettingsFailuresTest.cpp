#include "general/GeneralSettings.h"

#include <functional>
#include <ostream>

namespace quorvel::test
{

namespace
{

using Facade = AspGeneralSettingsFacade;
using Error = AspWebAppErrorCodes;

/// An operation whose result is a text, and what becomes of it without a gateway.
struct Operation {
    const char* name;
    std::function<QString(Facade&, Error&)> run;
    const char* withoutCpe; ///< the result if nothing can be asked
    const char* whenFailed; ///< the result if the request fails
    int exchanges;
    QStringList failureLines;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

class GeneralSettingsFailure : public GeneralSettings, public testing::WithParamInterface<Operation>
{
protected:
    QString run(Facade& onFacade) { return GetParam().run(onFacade, error); }
};

QString shown(const QList<AspDhcpsClient>& clients)
{
    return text("%1 clients").arg(clients.size());
}

QString shown(const QList<QString>& names)
{
    return text("%1 names").arg(names.size());
}

QString shown(const AspDeviceWarrantyInformation& info)
{
    return info.name + info.email + info.phone + info.token + info.usertoken + info.timestamp;
}

/// A getter or check that fails with one line.
template <typename Run>
Operation getter(const char* name, Run run, const char* result, const QStringList& failureLines)
{
    return {name,   [run](Facade& f, Error& e) -> QString { return run(f, e); },
            result, result,
            1,      failureLines};
}

} // namespace

TEST_P(GeneralSettingsFailure, WithoutCpeGivesTheDefaultAndCode26)
{
    Facade nothing{boost::shared_ptr<Cpe>()};
    EXPECT_EQ(run(nothing), text(GetParam().withoutCpe));
    EXPECT_EQ(code(), 26);
    EXPECT_EQ(log.lines(), lines({"ERROR AspFacade::validateCpe -> Cpe is null!"}));
}

TEST_P(GeneralSettingsFailure, OnACpeWithoutGeneralSettingsGivesTheDefaultAndCode27)
{
    Facade unbuilt{boost::make_shared<Cpe>()};
    EXPECT_EQ(run(unbuilt), text(GetParam().withoutCpe));
    EXPECT_EQ(code(), 27);
    EXPECT_EQ(log.lines(), lines({"ERROR AspFacade::validateCpe -> Cpe::not correctly build!"}));
}

TEST_P(GeneralSettingsFailure, OfTheRequestGivesTheDefaultAndCode29)
{
    for (int i = 0; i < GetParam().exchanges; ++i)
        gateway.sendRaw({});
    EXPECT_EQ(run(*facade), text(GetParam().whenFailed));
    EXPECT_EQ(code(), 29);
    EXPECT_EQ(log.lines(), GetParam().failureLines);
}

TEST_P(GeneralSettingsFailure, OfTheLoginGivesTheDefaultAndCode25)
{
    expireSession();
    QStringList expected;
    for (int i = 0; i < GetParam().exchanges; ++i) {
        gateway.refuseLogin();
        expected << lines({"DEBUG Logging in...", "WARN Failed to log in."})
                 << GetParam().failureLines.mid(i, 1);
    }
    EXPECT_EQ(run(*facade), text(GetParam().whenFailed));
    EXPECT_EQ(code(), 25);
    EXPECT_EQ(log.lines(), expected);
}

TEST_P(GeneralSettingsFailure, OfTheLoginsTransportGivesTheDefaultAndNoCode)
{
    expireSession();
    for (int i = 0; i < GetParam().exchanges; ++i)
        gateway.sendRaw({});
    EXPECT_EQ(run(*facade), text(GetParam().whenFailed));
    EXPECT_EQ(code(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    AllOperations, GeneralSettingsFailure,
    testing::Values(
        getter(
            "getEthMacAddress", [](Facade& f, Error& e) { return f.getEthMacAddress(e); }, "",
            lines({"ERROR AspGeneralSettingsFacade::getEthMacAddress -> Failed to fetch "
                   "ethernet MAC Address!"})),
        getter(
            "getDslMacAddress", [](Facade& f, Error& e) { return f.getDslMacAddress(e); }, "",
            lines({"ERROR AspGeneralSettingsFacade::getDslMacAddress -> Failed to fetch DSL MAC "
                   "Address!"})),
        getter(
            "getWlanMacAddress", [](Facade& f, Error& e) { return f.getWlanMacAddress(e); }, "",
            lines({"ERROR AspGeneralSettingsFacade::getWlanMacAddress -> Failed to fetch WLAN "
                   "MAC Address!"})),
        getter(
            "getFirmwareVersion", [](Facade& f, Error& e) { return f.getFirmwareVersion(e); }, "",
            lines({"ERROR AspGeneralSettingsFacade::getFirmwareVersion -> Failed to fetch "
                   "firmware version!"})),
        getter(
            "getModelName", [](Facade& f, Error& e) { return f.getModelName(e); }, "",
            lines({"ERROR AspGeneralSettingsFacade::getModelName -> Failed to fetch model "
                   "name!"})),
        getter(
            "getSerialNumber", [](Facade& f, Error& e) { return f.getSerialNumber(e); }, "",
            lines({"ERROR AspGeneralSettingsFacade::getSerialNumber -> Failed to fetch serial "
                   "no!"})),
        getter(
            "getRouterMode",
            [](Facade& f, Error& e) { return QString::number(f.getRouterMode(e)); }, "2",
            lines({"ERROR AspGeneralSettingsFacade::getRouterMode -> Failed to fetch Router "
                   "mode!"})),
        getter(
            "setCpeInternetModeAp2Router",
            [](Facade& f, Error& e) { return shown(f.setCpeInternetModeAp2Router(text("ap"), e)); },
            "false",
            lines({"DEBUG AspGeneralSettingsFacade::setCpeInternetModeAp2Router -> Cpe internet "
                   "mode can not changed"})),
        getter(
            "setCpePassword",
            [](Facade& f, Error& e) { return shown(f.setCpePassword(text("p"), e)); }, "false",
            lines({"DEBUG AspGeneralSettingsFacade::setCpePassword -> Cpe password can not "
                   "changed"})),
        getter(
            "checkCpePassword",
            [](Facade& f, Error& e) { return shown(f.checkCpePassword(text("p"), e)); }, "false",
            lines({"ERROR AspGeneralSettingsFacade::checkCpePassword -> Failed to check "
                   "password validity!"})),
        getter(
            "getDefaultGw", [](Facade& f, Error& e) { return f.getDefaultGw(text("route-0"), e); },
            "",
            lines({"ERROR AspGeneralSettingsFacade::getDefaultGw -> Failed to fetch default "
                   "gateway!"})),
        getter("setDefaultGw",
               [](Facade& f, Error& e) {
                   return shown(f.setDefaultGw(text("route-0"), text("wan-0"), e));
               },
               "false", {}),
        getter(
            "isRebootRequired", [](Facade& f, Error& e) { return shown(f.isRebootRequired(e)); },
            "false",
            lines({"ERROR AspGeneralSettingsFacade::isRebootRequired -> Failed to fetch "
                   "isRebootRequired!"})),
        getter("getWarrantyInformation",
               [](Facade& f, Error& e) { return shown(f.getWarrantyInformation(e)); }, "", {}),
        getter("setWarrantyInformation",
               [](Facade& f, Error& e) { return shown(f.setWarrantyInformation({}, e)); }, "false",
               {}),
        getter(
            "checkSession",
            [](Facade& f, Error& e) { return shown(f.checkSession(text("SID=1"), e)); }, "false",
            lines({"ERROR AspGeneralSettingsFacade::checkSession -> Failed to check session "
                   "validity!"})),
        getter("getStaticClientList",
               [](Facade& f, Error& e) { return shown(f.getStaticClientList(e)); }, "0 clients",
               {}),
        getter("getDynamicClientList",
               [](Facade& f, Error& e) { return shown(f.getDynamicClientList(e)); }, "0 clients",
               {}),
        getter(
            "getManagerList", [](Facade& f, Error& e) { return shown(f.getManagerList(e)); },
            "0 names",
            lines({"ERROR AspGeneralSettingsFacade::getManagerList -> Failed to fetch manager "
                   "list!"})),
        getter(
            "getWirelessCoreList",
            [](Facade& f, Error& e) { return shown(f.getWirelessCoreList(e)); }, "0 names",
            lines({"ERROR AspGeneralSettingsFacade::getManagerList -> Failed to fetch manager "
                   "list!"})),
        getter(
            "getManagerInstanceList",
            [](Facade& f, Error& e) { return shown(f.getManagerInstanceList(text("wan"), e)); },
            "0 names",
            lines({"ERROR AspGeneralSettingsFacade::getManagerInstanceList -> Failed to fetch "
                   "manager instance list!"})),
        Operation{"getRebootDuration",
                  [](Facade& f, Error& e) { return QString::number(f.getRebootDuration(e)); }, "0",
                  "60003", 1,
                  lines({"ERROR AspGeneralSettingsFacade::getRebootDuration -> Failed to fetch "
                         "reboot duration!"})},
        Operation{"getFwUpgradeDuration",
                  [](Facade& f, Error& e) { return QString::number(f.getFwUpgradeDuration(e)); },
                  "0", "200004", 1,
                  lines({"ERROR AspGeneralSettingsFacade::getFwUpgradeDuration -> Failed to fetch "
                         "fw upgrade duration!"})},
        Operation{"rebootCpe", [](Facade& f, Error& e) { return QString::number(f.rebootCpe(e)); },
                  "0", "60003", 2,
                  lines({"ERROR AspGeneralSettingsFacade::getRebootDuration -> Failed to fetch "
                         "reboot duration!",
                         "DEBUG AspGeneralSettingsFacade::rebootCpe successfully executed..."})},
        Operation{"factoryDefault",
                  [](Facade& f, Error& e) { return QString::number(f.factoryDefault(e)); }, "0",
                  "60003", 2,
                  lines({"ERROR AspGeneralSettingsFacade::getRebootDuration -> Failed to fetch "
                         "reboot duration!",
                         "DEBUG AspGeneralSettingsFacade::rebootCpe successfully executed..."})}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(GeneralSettings, FailWithCode28IfTheRequestTimesOut)
{
    program({{2, {}}, {4, {}}, {2, {}}});
    EXPECT_EQ(facade->getFirmwareVersion(error), QString());
    EXPECT_EQ(code(), 28);
    EXPECT_EQ(facade->getFirmwareVersion(error), QString());
    EXPECT_EQ(code(), 28);
    EXPECT_FALSE(facade->setDefaultGw(text("route-0"), text("wan-0"), error));
    EXPECT_EQ(code(), 28);
    EXPECT_EQ(log.lines(), lines({"ERROR AspGeneralSettingsFacade::getFirmwareVersion -> Failed to "
                                  "fetch firmware version!",
                                  "ERROR AspGeneralSettingsFacade::getFirmwareVersion -> Failed to "
                                  "fetch firmware version!"}));
}

TEST_F(GeneralSettings, FailWithoutCodeIfTheLoginOfARequestTimesOut)
{
    expireSession();
    program({{2, {}}});
    EXPECT_EQ(facade->getFirmwareVersion(error), QString());
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({"DEBUG Logging in...", "WARN Log in request timed out.",
                                  "ERROR AspGeneralSettingsFacade::getFirmwareVersion -> Failed to "
                                  "fetch firmware version!"}));
}

TEST_F(GeneralSettings, FailWithCode25IfTheReplyIsUnreadable)
{
    gateway.reply(text("<html><p>Please log in</html>"));
    EXPECT_EQ(facade->getFirmwareVersion(error), QString());
    EXPECT_EQ(code(), 25);
}

TEST_F(GeneralSettings, ReadTheRepeatedReplyIfTheSessionHasExpired)
{
    reply({{"webapp", "error", "1"}, {"sysmgr-0", "fwversion", "old"}});
    gateway.logIn("SID=2");
    reply({{"sysmgr-0", "fwversion", "9"}});
    EXPECT_EQ(facade->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(code(), 0);
}

TEST_F(GeneralSettings, TellAnExpiredSessionThatIsSpelledUnusually)
{
    reply({{"webapp", "error", "01"}, {"sysmgr-0", "fwversion", "9"}});
    EXPECT_EQ(facade->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(code(), 1);
}

TEST_F(GeneralSettings, ReadAReplyInTheOlderDialectToo)
{
    build({{"XML_VERSION", "1.0.0"}});
    AspGeneralSettingsFacade older(cpe);
    gateway.reply(reply100({{"sysmgr-0", "fwversion", "9"}}));
    EXPECT_EQ(older.getFirmwareVersion(error), text("9"));
    EXPECT_EQ(code(), 0);
}

} // namespace quorvel::test
