#include <quorvel/AspAdslSettingsFacade.h>
#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspWanSettingsFacade.h>

#include "protocol/AspCpeSessionStorage.h"
#include "support/RecognisedGateway.h"
#include "support/Replies.h"
#include "support/Transcript.h"

namespace quorvel::test
{

namespace
{

/// A recognised gateway whose every further connection fails the test.
class Rehearsal : public RecognisedGateway
{
protected:
    void SetUp() override
    {
        scriptRecognition({text("devmgr"), text("wan"), text("dsl")});
        handle = object.rehearse([this](const QString& request) { taken.append(request); });
        ASSERT_TRUE(handle);
    }

    /// The commands of the request that was taken as number `index`.
    QString commands(int index) const { return commandLines(taken.value(index)); }

    QString session() const
    {
        return AspCpeSessionStorage::getInstance()->getSession(gateway.address());
    }
    void endSession() { AspCpeSessionStorage::getInstance()->removeSession(gateway.address()); }

    AspCpeFacadeObject object{info()};
    QStringList taken;
    boost::shared_ptr<AspCpeFacadeObject> handle;
    AspWebAppErrorCodes error = AspWebAppRequestFailed;
};

} // namespace

TEST_F(Rehearsal, GivesAWriteToItsTakerInPlaceOfTheGateway)
{
    EXPECT_TRUE(handle->getWanSettingsFacade()->enableWan(text("wan-1"), error));
    EXPECT_EQ(error, 0);
    ASSERT_EQ(taken.size(), 1);
    EXPECT_EQ(commands(0), text("version 1.0.1\n"
                                "command \"cfgmgr-0\" \"begin_transaction\" \"wan-1\"\n"
                                "set \"wan-1\" \"enabled\" \"1\"\n"
                                "command \"cfgmgr-0\" \"commit\" \"wan-1\"\n"
                                "command \"cfgmgr-0\" \"end_transaction\" \"wan-1\"\n"
                                "command \"cfgmgr-0\" \"save\" \"\"\n"
                                "command \"wan-1\" \"apply\" \"\"\n"));
}

TEST_F(Rehearsal, TakesTheVeryTextThatWouldGoOut)
{
    EXPECT_TRUE(handle->getWanSettingsFacade()->disableWan(text("wan-1"), error));
    gateway.reply(reply101({}));
    EXPECT_TRUE(object.getWanSettingsFacade()->disableWan(text("wan-1"), error));
    EXPECT_EQ(taken, QStringList(QString::fromUtf8(gateway.requests().last().body)));
}

TEST_F(Rehearsal, AnswersReadsWithTheirDefaults)
{
    const auto internet = handle->getAdslSettingsFacade();
    EXPECT_EQ(internet->getPvcSettings(text("pvc-0"), error).vpi, QString());
    EXPECT_EQ(error, 0);
    EXPECT_EQ(taken.size(), 1);
}

TEST_F(Rehearsal, BuildsASecondRequestOnNothing)
{
    EXPECT_EQ(handle->getWanSettingsFacade()->addEntity(text("wan-1"), text("pppox"), error),
              QString());
    EXPECT_EQ(error, 0);
    ASSERT_EQ(taken.size(), 2);
    EXPECT_EQ(commands(0), text("version 1.0.1\ncommand \"devmgr-0\" \"create_inst\" \"pppox\"\n"));
    EXPECT_TRUE(commands(1).contains(text("set \"wan-1\" \"add_entity\" \"pppox:\"\n")));
}

TEST_F(Rehearsal, KnowsTheGatewaysFunctions)
{
    EXPECT_TRUE(handle->hasDsl());
    EXPECT_FALSE(handle->hasVoip());
    EXPECT_FALSE(handle->getVoipSettingsFacade());
}

TEST_F(Rehearsal, LeavesTheGatewaysOwnHandleAlone)
{
    EXPECT_TRUE(handle->getGeneralSettingsFacade()->setCpePassword(text("new"), error));
    endSession();
    gateway.logIn("SID=2").reply(reply101({{"sysmgr-0", "fwversion", "7.1.2"}}));
    EXPECT_EQ(object.getGeneralSettingsFacade()->getFirmwareVersion(error), text("7.1.2"));
    EXPECT_EQ(form(gateway.requests().size() - 2), QByteArray("user=admin&password=secret"));
}

TEST_F(Rehearsal, NeedsNoLogin)
{
    endSession();
    EXPECT_TRUE(handle->getWanSettingsFacade()->enableWan(text("wan-1"), error));
    EXPECT_EQ(error, 0);
    EXPECT_EQ(taken.size(), 1);
    EXPECT_EQ(session(), QString());
}

TEST_F(Rehearsal, OfARebootLeavesTheSessionAlone)
{
    EXPECT_EQ(handle->getGeneralSettingsFacade()->rebootCpe(error), 60003);
    EXPECT_EQ(error, 0);
    ASSERT_EQ(taken.size(), 2);
    EXPECT_EQ(commands(1), text("version 1.0.1\ncommand \"sysmgr-0\" \"reboot\" \"\"\n"));
    EXPECT_EQ(session(), text("SID=1"));
}

TEST_F(Rehearsal, OfAResetLeavesTheSessionAlone)
{
    EXPECT_EQ(handle->getGeneralSettingsFacade()->factoryDefault(error), 60003);
    ASSERT_EQ(taken.size(), 2);
    EXPECT_EQ(commands(1), text("version 1.0.1\ncommand \"cfgmgr-0\" \"factory_default\" \"\"\n"));
    EXPECT_EQ(session(), text("SID=1"));
}

TEST_F(Rehearsal, OfChangedCredentialsLeavesTheSessionAlone)
{
    EXPECT_TRUE(handle->setAuthenticationInfo(infoWith("other")));
    EXPECT_EQ(handle->loginToCpe(true), CpeLoginSuccess);
    EXPECT_EQ(session(), text("SID=1"));
    EXPECT_EQ(taken, QStringList());
}

TEST_F(Rehearsal, OfALoginWithoutASessionMakesNone)
{
    endSession();
    EXPECT_EQ(handle->loginToCpe(false), CpeLoginSuccess);
    EXPECT_EQ(session(), QString());
}

TEST_F(RecognisedGateway, IsNotRehearsedUnlessItIsRecognised)
{
    scriptRefusal(2);
    AspCpeFacadeObject object(info());
    EXPECT_FALSE(object.rehearse([](const QString&) { ADD_FAILURE() << "a request was made"; }));
}

TEST_F(RecognisedGateway, IsRehearsedInTheOlderDialectToo)
{
    gateway.logIn()
        .reply(managerList100({text("devmgr"), text("wan")}))
        .reply(reply100({{"route-0", "default_gw", "wan-1"}}))
        .reply(reply100({{"wan-1", "isnewwan", "0"}}));
    AspCpeFacadeObject object(info());
    QStringList taken;
    const auto handle = object.rehearse([&](const QString& request) { taken.append(request); });
    ASSERT_TRUE(handle);
    AspWebAppErrorCodes error = AspWebAppRequestFailed;
    EXPECT_TRUE(handle->getWanSettingsFacade()->enableWan(text("wan-1"), error));
    EXPECT_EQ(error, 0);
    ASSERT_EQ(taken.size(), 1);
    EXPECT_TRUE(commandLines(taken.first()).startsWith(text("version 1.0.0\n")));
}

} // namespace quorvel::test
