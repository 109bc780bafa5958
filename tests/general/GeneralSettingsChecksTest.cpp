#include "general/GeneralSettings.h"

namespace quorvel::test
{

namespace
{

const char rebootNeeded[] =
    "DEBUG AspGeneralSettingsFacade::isRebootRequired -> Need to reboot device...";
const char noRebootNeeded[] =
    "DEBUG AspGeneralSettingsFacade::getRebootDuration ->  No need  to reboot device...";

} // namespace

TEST_F(GeneralSettings, TakeAnOkInAnySpellingForTheRightPassword)
{
    for (const char* verdict : {"ok", "OK", "Ok"}) {
        reply({{"webui-0", "admin_password", verdict}});
        EXPECT_TRUE(facade->checkCpePassword(text("secret"), error)) << verdict;
        EXPECT_EQ(code(), 0);
    }
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(GeneralSettings, TakeAnyOtherVerdictForAWrongPasswordAndSayNothing)
{
    for (const char* verdict : {"nok", "", "1", "ok ", "error"}) {
        reply({{"webui-0", "admin_password", verdict}});
        EXPECT_FALSE(facade->checkCpePassword(text("secret"), error)) << verdict;
        EXPECT_EQ(code(), 0);
    }
    reply({});
    EXPECT_FALSE(facade->checkCpePassword(text("secret"), error));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(GeneralSettings, TakeASessionForValidIfTheGatewaySaysSoWhateverTheValue)
{
    for (const char* value : {"1", "0", ""}) {
        reply({{"webui-0", "session_ok", value}});
        EXPECT_TRUE(facade->checkSession(text("SID=7"), error)) << value;
        EXPECT_EQ(code(), 0);
    }
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(GeneralSettings, TakeASessionForValidAlsoIfTheGatewayReportsAnErrorBesides)
{
    reply({{"webui-0", "session_err", "1"}, {"webui-0", "session_ok", "1"}});
    EXPECT_TRUE(facade->checkSession(text("SID=7"), error));
}

TEST_F(GeneralSettings, TakeASessionForInvalidOtherwise)
{
    reply({{"webui-0", "session_err", "0"}});
    EXPECT_FALSE(facade->checkSession(text("SID=7"), error));
    reply({{"webui-1", "session_ok", "1"}});
    EXPECT_FALSE(facade->checkSession(text("SID=7"), error));
    reply({});
    EXPECT_FALSE(facade->checkSession(text("SID=7"), error));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(GeneralSettings, RequireARebootIfTheGatewaySaysSo)
{
    reply({{"sysmgr-0", "reboot_req", "1"}});
    EXPECT_TRUE(facade->isRebootRequired(error));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), lines({rebootNeeded}));
}

TEST_F(GeneralSettings, RequireNoRebootWithAnyOtherAnswer)
{
    for (const char* answer : {"0", "", "2", "true"}) {
        log.clear();
        reply({{"sysmgr-0", "reboot_req", answer}});
        EXPECT_FALSE(facade->isRebootRequired(error)) << answer;
        EXPECT_EQ(code(), 0);
        EXPECT_EQ(log.lines(), lines({noRebootNeeded}));
    }
}

TEST_F(GeneralSettings, RequireNoRebootAndComplainWithoutAnAnswer)
{
    reply({{"webapp", "error", "3"}});
    EXPECT_FALSE(facade->isRebootRequired(error));
    EXPECT_EQ(code(), 3);
    EXPECT_EQ(log.lines(), lines({"ERROR AspGeneralSettingsFacade::isRebootRequired -> "
                                  "isRebootRequired does not work correctly!"}));
}

} // namespace quorvel::test
