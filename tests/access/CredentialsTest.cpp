#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "protocol/AspCpeSessionStorage.h"
#include "support/RecognisedGateway.h"
#include "support/Replies.h"

namespace quorvel::test
{

namespace
{

class Credentials : public RecognisedGateway
{
protected:
    void recognise(const char* manager = "devmgr")
    {
        scriptRecognition({text(manager)});
        EXPECT_FALSE(object.getCpeProperties().xmlVersion.isEmpty());
        log.clear();
    }

    QString storedSession() const
    {
        return AspCpeSessionStorage::getInstance()->getSession(gateway.address());
    }

    void expireSession() { AspCpeSessionStorage::getInstance()->removeSession(gateway.address()); }

    AspCpeFacadeObject object{info()};
};

} // namespace

TEST_F(Credentials, AreKeptForRecognitionWhenTheyChangeBefore)
{
    EXPECT_FALSE(object.setAuthenticationInfo(infoWith("new")));
    EXPECT_EQ(gateway.connections(), 0);
    recognise();
    EXPECT_EQ(form(0), QByteArray("user=admin&password=new"));
}

TEST_F(Credentials, MayChangeAsTheyLikeOnAGatewayWithoutGeneralSettings)
{
    recognise("dsl");
    EXPECT_TRUE(object.setAuthenticationInfo(infoWith("new")));
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(storedSession(), text("SID=1"));
}

TEST_F(Credentials, NeedNoLoginIfTheyAreTheSame)
{
    recognise();
    EXPECT_TRUE(object.setAuthenticationInfo(info()));
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Credentials, NeedNoLoginIfTheyAreTheSameAlthoughTheSessionHasExpired)
{
    recognise();
    expireSession();
    EXPECT_TRUE(object.setAuthenticationInfo(info()));
    EXPECT_EQ(gateway.connections(), 3);
}

TEST_F(Credentials, NeedALoginIfThePasswordChanges)
{
    recognise();
    gateway.logIn("SID=2");
    EXPECT_TRUE(object.setAuthenticationInfo(infoWith("new")));
    EXPECT_EQ(form(3), QByteArray("user=admin&password=new"));
    EXPECT_EQ(storedSession(), text("SID=2"));
    EXPECT_EQ(log.lines(), lines({"DEBUG Session is expired. Logging in again...",
                                  "DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=2"}));
}

TEST_F(Credentials, NeedALoginIfTheUserChanges)
{
    recognise();
    gateway.logIn("SID=2");
    AuthenticationInfo other = info();
    other.user = text("root");
    EXPECT_TRUE(object.setAuthenticationInfo(other));
    EXPECT_EQ(form(3), QByteArray("user=root&password=secret"));
}

TEST_F(Credentials, NeedALoginAtTheNewAddressIfTheAddressChanges)
{
    recognise();
    ScriptedGateway moved;
    moved.logIn("SID=2").reply(reply101({{"sysmgr-0", "fwversion", "9"}}));
    AuthenticationInfo other = info();
    other.cpeAddress = moved.address();
    EXPECT_TRUE(object.setAuthenticationInfo(other));
    EXPECT_EQ(storedSession(), QString());
    AspWebAppErrorCodes error;
    EXPECT_EQ(object.getGeneralSettingsFacade()->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(moved.request(1).header("Cookie"), QByteArray("SID=2"));
}

TEST_F(Credentials, AreTheLiveOnesAlsoIfTheGatewayRefusesThem)
{
    recognise();
    scriptRefusal(1);
    EXPECT_FALSE(object.setAuthenticationInfo(infoWith("wrong")));
    EXPECT_EQ(storedSession(), QString());
    gateway.logIn("SID=2").reply(reply101({{"sysmgr-0", "fwversion", "9"}}));
    AspWebAppErrorCodes error;
    EXPECT_EQ(object.getGeneralSettingsFacade()->getFirmwareVersion(error), text("9"));
    EXPECT_EQ(form(4), QByteArray("user=admin&password=wrong"));
}

TEST_F(Credentials, AreNotTakenFromTheObjectAfterAPasswordChange)
{
    recognise();
    gateway.reply(reply101({{"webapp", "error", "0"}}));
    AspWebAppErrorCodes error;
    EXPECT_TRUE(object.getGeneralSettingsFacade()->setCpePassword(text("new"), error));
    // What differs is compared with the live password, which is the new one.
    EXPECT_TRUE(object.setAuthenticationInfo(infoWith("new")));
    gateway.logIn("SID=2");
    EXPECT_TRUE(object.setAuthenticationInfo(info()));
    EXPECT_EQ(form(4), QByteArray("user=admin&password=secret"));
}

TEST_F(Credentials, OfACopyShareTheAuthenticator)
{
    recognise();
    AspCpeFacadeObject copy(object);
    gateway.logIn("SID=2");
    EXPECT_TRUE(copy.setAuthenticationInfo(infoWith("new")));
    EXPECT_TRUE(object.setAuthenticationInfo(infoWith("new")));
    EXPECT_EQ(gateway.connections(), 4);
}

TEST_F(Credentials, LogInOnceWhenTheGatewayIsYetToBeRecognised)
{
    scriptRecognition({text("devmgr")});
    EXPECT_EQ(object.loginToCpe(false), 0);
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(log.lines().last(), text("DEBUG Session for ") + gateway.address() +
                                      text(" exists in session storage...SID=1"));
}

TEST_F(Credentials, AreNotSentIfAStoredSessionMayStand)
{
    recognise();
    EXPECT_EQ(object.loginToCpe(false), 0);
    EXPECT_EQ(gateway.connections(), 3);
}

TEST_F(Credentials, AreSentIfNoSessionIsStored)
{
    recognise();
    expireSession();
    gateway.logIn("SID=2");
    EXPECT_EQ(object.loginToCpe(false), 0);
    EXPECT_EQ(storedSession(), text("SID=2"));
}

TEST_F(Credentials, AreSentInAnyCaseIfALoginIsForced)
{
    recognise();
    gateway.logIn("SID=2");
    EXPECT_EQ(object.loginToCpe(true), 0);
    EXPECT_EQ(storedSession(), text("SID=2"));
}

TEST_F(Credentials, AreSentInAnyCaseToAnAddressWithScheme)
{
    AuthenticationInfo withScheme = info();
    withScheme.cpeAddress.prepend(text("http://"));
    object.setAuthenticationInfo(withScheme);
    recognise();
    gateway.logIn("SID=2");
    EXPECT_EQ(object.loginToCpe(false), 0);
    EXPECT_EQ(storedSession(), text("SID=2"));
}

TEST_F(Credentials, TellHowAForcedLoginFailed)
{
    recognise();
    gateway.refuseLogin().sendRaw({});
    EXPECT_EQ(object.loginToCpe(true), 1);
    EXPECT_EQ(storedSession(), QString());
    EXPECT_EQ(object.loginToCpe(true), 3);
}

TEST_F(Credentials, CannotLogInToAGatewayThatCannotBeRecognised)
{
    scriptRefusal(2);
    EXPECT_EQ(object.loginToCpe(true), 1);
}

TEST_F(Credentials, CannotLogInToAGatewayWithoutGeneralSettings)
{
    recognise("dsl");
    EXPECT_EQ(object.loginToCpe(true), 1);
    EXPECT_EQ(storedSession(), text("SID=1"));
    EXPECT_EQ(log.lines(), lines({"ERROR AspCpeFacadeObject::getGeneralSettingsFacade -> "
                                  "GeneralSettingsVersion is invalid."}));
}

// Takes the 20 seconds that a login may take: its transport is made for this one call.
TEST_F(Credentials, TellThatALoginTimedOut)
{
    recognise();
    gateway.sendAndHold({});
    EXPECT_EQ(object.loginToCpe(true), 2);
    EXPECT_EQ(log.lines().last(), text("WARN Log in request timed out."));
}

TEST(CpeLoginResults, HaveTheirNumbers)
{
    EXPECT_EQ(CpeLoginSuccess, 0);
    EXPECT_EQ(CpeLoginFailed, 1);
    EXPECT_EQ(CpeLoginTimedOut, 2);
    EXPECT_EQ(CpeLoginRequestFailed, 3);
}

} // namespace quorvel::test
