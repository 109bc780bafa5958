#include <quorvel/AspCpeFacadeObject.h>

#include "protocol/AspCpeSessionStorage.h"
#include "support/RecognisedGateway.h"

namespace quorvel::test
{

namespace
{

/// A host's own handle, which refreshes by itself.
class HostsObject : public AspCpeFacadeObject
{
public:
    using AspCpeFacadeObject::AspCpeFacadeObject;
    using AspCpeFacadeObject::refreshCpe;
};

class RefreshCpe : public RecognisedGateway
{
protected:
    /// Lets the gateway be recognised and forgets what was logged meanwhile.
    void recognise(const char* manager)
    {
        scriptRecognition({text(manager)});
        EXPECT_TRUE(object.refreshCpe());
        log.clear();
    }

    void expireSession() { AspCpeSessionStorage::getInstance()->removeSession(gateway.address()); }

    HostsObject object{info()};
};

const char refreshing[] =
    "DEBUG AspCpeFacadeObject::refreshCpe -> Cpe is valid. Refreshing session...";
const char notRefreshed[] = "ERROR AspCpeFacadeObject::refreshCpe -> Failed to refresh session!";

} // namespace

TEST_F(RefreshCpe, ConstructsAtFirst)
{
    scriptRecognition({text("devmgr")});
    EXPECT_TRUE(object.refreshCpe());
    EXPECT_EQ(log.lines().first(),
              text("DEBUG AspCpeFacadeObject::refreshCpe -> Cpe is NULL. Reconstructing Cpe..."));
    EXPECT_EQ(log.lines().last(), text("DEBUG AspCpeFacadeObject::refreshCpe -> Cpe constructed."));
}

TEST_F(RefreshCpe, FailsAfterTwoAttemptsToConstruct)
{
    scriptRefusal(2);
    EXPECT_FALSE(object.refreshCpe());
}

TEST_F(RefreshCpe, IsContentWithAStoredSession)
{
    recognise("devmgr");
    EXPECT_TRUE(object.refreshCpe());
    EXPECT_EQ(gateway.connections(), 3);
    EXPECT_EQ(log.lines(),
              lines({refreshing}) +
                  QStringList(text("DEBUG Session for ") + gateway.address() +
                              text(" exists in session storage...SID=1")) +
                  lines({"DEBUG AspCpeFacadeObject::refreshCpe -> Session refreshed. Session ID: "
                         "SID=1"}));
}

TEST_F(RefreshCpe, LogsInIfNoSessionIsStored)
{
    recognise("devmgr");
    expireSession();
    gateway.logIn("SID=2");
    EXPECT_TRUE(object.refreshCpe());
    EXPECT_EQ(log.lines(),
              lines({refreshing, "DEBUG Session is expired. Logging in again...",
                     "DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=2",
                     "DEBUG AspCpeFacadeObject::refreshCpe -> Session refreshed. Session ID: "
                     "SID=2"}));
}

TEST_F(RefreshCpe, LogsInAtTheSecondAttempt)
{
    recognise("devmgr");
    expireSession();
    scriptRefusal(1);
    gateway.logIn("SID=2");
    EXPECT_TRUE(object.refreshCpe());
    EXPECT_EQ(log.lines().filter(text("refreshCpe")),
              lines({refreshing, notRefreshed, refreshing,
                     "DEBUG AspCpeFacadeObject::refreshCpe -> Session refreshed. Session ID: "
                     "SID=2"}));
}

TEST_F(RefreshCpe, FailsAfterTwoRefusedLogins)
{
    recognise("devmgr");
    expireSession();
    scriptRefusal(2);
    EXPECT_FALSE(object.refreshCpe());
    EXPECT_EQ(log.lines().filter(text("refreshCpe")),
              lines({refreshing, notRefreshed, refreshing, notRefreshed}));
}

TEST_F(RefreshCpe, FailsOnAGatewayWithoutGeneralSettings)
{
    recognise("dsl");
    EXPECT_FALSE(object.refreshCpe());
    EXPECT_EQ(log.lines(), lines({refreshing, notRefreshed, refreshing, notRefreshed}));
}

} // namespace quorvel::test
