#include "general/GeneralSettings.h"
#include "support/Transcript.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

using Facade = AspGeneralSettingsFacade;
using Error = AspWebAppErrorCodes;

/// A duration that the gateway tells, and what holds if it doesn't.
struct Duration {
    const char* name;
    int (*read)(Facade& facade, Error& error);
    const char* key;
    int builtIn;
    const char* line;
    const char* failure;
    const char* badText;
};

void PrintTo(const Duration& duration, std::ostream* out)
{
    *out << duration.name;
}

class GeneralSettingsDuration : public GeneralSettings, public testing::WithParamInterface<Duration>
{
protected:
    int read() { return GetParam().read(*facade, error); }
    QString logged(const char* value) const { return text(GetParam().line) + text(value); }
};

/// An operation that takes the gateway away.
struct Restart {
    const char* name;
    int (*run)(Facade& facade, Error& error);
    const char* command;
};

void PrintTo(const Restart& restart, std::ostream* out)
{
    *out << restart.name;
}

class GeneralSettingsRestart : public GeneralSettings, public testing::WithParamInterface<Restart>
{
protected:
    int restart() { return GetParam().run(*facade, error); }
    QString storedSession() const { return storage().getSession(gateway.address()); }
};

const char restarted[] = "DEBUG AspGeneralSettingsFacade::rebootCpe successfully executed...";
const char durationLine[] =
    "DEBUG AspGeneralSettingsFacade::getRebootDuration -> Reboot Duration:45";

const char answer45[] = "<response version=\"1.0.1\"><webui-0><key>reboot_duration</key>"
                        "<value>45</value></webui-0></response>";

} // namespace

TEST_P(GeneralSettingsDuration, IsTheNumberThatTheGatewayTells)
{
    reply({{"webui-0", GetParam().key, "45"}});
    EXPECT_EQ(read(), 45);
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList(logged("45")));
}

TEST_P(GeneralSettingsDuration, MayBeZeroOrNegative)
{
    reply({{"webui-0", GetParam().key, "0"}});
    EXPECT_EQ(read(), 0);
    reply({{"webui-0", GetParam().key, "-5"}});
    EXPECT_EQ(read(), -5);
}

TEST_P(GeneralSettingsDuration, IsBuiltInIfTheGatewayTellsNoNumber)
{
    for (const char* value : {"45s", "4.5", "0x10", "x", "", "2147483648"}) {
        log.clear();
        reply({{"webui-0", GetParam().key, value}});
        EXPECT_EQ(read(), GetParam().builtIn) << value;
        EXPECT_EQ(code(), 0);
        EXPECT_EQ(log.lines(), QStringList(logged(value)) + lines({GetParam().badText}));
    }
}

TEST_P(GeneralSettingsDuration, IsBuiltInWithoutItsEntry)
{
    reply({{"webui-0", "other", "45"}, {"webapp", "error", "4"}});
    EXPECT_EQ(read(), GetParam().builtIn);
    EXPECT_EQ(code(), 4);
    EXPECT_EQ(log.lines(), QStringList(logged("")) + lines({GetParam().badText}));
}

TEST_P(GeneralSettingsDuration, IsBuiltInIfTheRequestFails)
{
    gateway.sendRaw({});
    EXPECT_EQ(read(), GetParam().builtIn);
    EXPECT_EQ(code(), 29);
    EXPECT_EQ(log.lines(), lines({GetParam().failure}));
}

INSTANTIATE_TEST_SUITE_P(
    BothDurations, GeneralSettingsDuration,
    testing::Values(
        Duration{"Reboot", [](Facade& f, Error& e) { return f.getRebootDuration(e); },
                 "reboot_duration", 60003,
                 "DEBUG AspGeneralSettingsFacade::getRebootDuration -> Reboot Duration:",
                 "ERROR AspGeneralSettingsFacade::getRebootDuration -> Failed to fetch reboot "
                 "duration!",
                 "ERROR AspGeneralSettingsFacade::getRebootDuration -> Invalid  reboot duration "
                 "fetched. It is not integer...!"},
        Duration{"FirmwareUpgrade", [](Facade& f, Error& e) { return f.getFwUpgradeDuration(e); },
                 "fwupgrade_duration", 200004,
                 "DEBUG AspGeneralSettingsFacade::getFwUpgradeDuration -> FW Upgrade Duration:",
                 "ERROR AspGeneralSettingsFacade::getFwUpgradeDuration -> Failed to fetch fw "
                 "upgrade duration!",
                 "ERROR AspGeneralSettingsFacade::getFwUpgradeDuration -> Invalid  FwUpgrade "
                 "duration fetched. It is not integer...!"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_P(GeneralSettingsRestart, AsksForTheRebootDurationFirst)
{
    reply({{"webui-0", "reboot_duration", "45"}, {"webapp", "error", "3"}});
    reply({{"webapp", "error", "0"}});
    EXPECT_EQ(restart(), 45);
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(transcript(gateway), text("POST /cgi-bin/webapp\n"
                                        "cookie SID=1\n"
                                        "version 1.0.1\n"
                                        "query \"webui-0\" \"reboot_duration\" \"\"\n"
                                        "\n"
                                        "POST /cgi-bin/webapp\n"
                                        "cookie SID=1\n"
                                        "version 1.0.1\n") +
                                       text(GetParam().command));
    EXPECT_EQ(log.lines(), lines({durationLine, restarted}));
    EXPECT_EQ(storedSession(), QString());
}

TEST_P(GeneralSettingsRestart, SucceedsIfTheGatewayStopsAnswering)
{
    program({{0, text(answer45)}, {2, {}}});
    EXPECT_EQ(restart(), 45);
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(storedSession(), QString());
    EXPECT_EQ(log.lines(), lines({durationLine, restarted}));
}

TEST_P(GeneralSettingsRestart, SucceedsIfTheGatewayAnswersUnreadably)
{
    reply({{"webui-0", "reboot_duration", "45"}});
    gateway.reply(text("<html><p>Good bye"));
    EXPECT_EQ(restart(), 45);
    EXPECT_EQ(code(), 0);
}

TEST_P(GeneralSettingsRestart, TellsADroppedConnectionAndDropsTheSessionAllTheSame)
{
    reply({{"webui-0", "reboot_duration", "45"}});
    gateway.sendRaw({});
    EXPECT_EQ(restart(), 45);
    EXPECT_EQ(code(), 29);
    EXPECT_EQ(storedSession(), QString());
    EXPECT_EQ(log.lines(), lines({durationLine, restarted}));
}

TEST_P(GeneralSettingsRestart, TellsTheCodeOfTheGateway)
{
    reply({{"webui-0", "reboot_duration", "45"}});
    reply({{"webapp", "error", "6"}});
    EXPECT_EQ(restart(), 45);
    EXPECT_EQ(code(), 6);
}

TEST_P(GeneralSettingsRestart, GoesOnWithTheBuiltInDurationIfThatCannotBeHad)
{
    gateway.sendRaw({});
    reply({});
    EXPECT_EQ(restart(), 60003);
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({"ERROR AspGeneralSettingsFacade::getRebootDuration -> Failed to "
                                  "fetch reboot duration!",
                                  restarted}));
}

INSTANTIATE_TEST_SUITE_P(
    BothRestarts, GeneralSettingsRestart,
    testing::Values(Restart{"Reboot", [](Facade& f, Error& e) { return f.rebootCpe(e); },
                            "command \"sysmgr-0\" \"reboot\" \"\"\n"},
                    Restart{"FactoryDefault",
                            [](Facade& f, Error& e) { return f.factoryDefault(e); },
                            "command \"cfgmgr-0\" \"factory_default\" \"\"\n"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(GeneralSettings, LogInAgainAfterAReboot)
{
    reply({{"webui-0", "reboot_duration", "45"}});
    reply({});
    facade->rebootCpe(error);
    gateway.logIn("SID=2");
    reply({{"sysmgr-0", "fwversion", "9"}});
    EXPECT_EQ(facade->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(gateway.request(3).header("Cookie"), QByteArray("SID=2"));
}

} // namespace quorvel::test
