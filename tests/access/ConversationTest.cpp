#include <quorvel/AspCpeFacadeObject.h>
#include <quorvel/AspCpeFlyweightFactory.h>
#include <quorvel/AspGeneralSettingsFacade.h>

#include "support/Golden.h"
#include "support/RecognisedGateway.h"
#include "support/Replies.h"
#include "support/Transcript.h"

namespace quorvel::test
{

namespace
{

/// A host's first conversation with a gateway, from its key to its firmware version.
class Conversation : public RecognisedGateway
{
protected:
    QString firmwareVersion()
    {
        // A key that no other gateway of this process has.
        const auto object = AspCpeFlyweightFactory::getInstance()->getCpe(
            text("MAC of ") + gateway.address(), info());
        EXPECT_TRUE(object);
        AspWebAppErrorCodes error = AspWebAppRequestFailed;
        const QString version = object->getGeneralSettingsFacade()->getFirmwareVersion(error);
        EXPECT_EQ(static_cast<int>(error), 0);
        return version;
    }

    /// The log lines in front of what recognition has found.
    QStringList linesUpToAddress() const
    {
        return lines({"DEBUG AspCpeFacadeObject::refreshCpe -> Cpe is NULL. Reconstructing Cpe...",
                      "DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=1",
                      "DEBUG Recognizing CPE..."}) +
               QStringList(text("DEBUG CPE recognition completed for ") + gateway.address());
    }

    QStringList linesBehindParameters() const
    {
        return lines({"DEBUG Building CPE...", "DEBUG CPE is built.",
                      "DEBUG AspCpeFacadeObject::refreshCpe -> Cpe constructed.",
                      "DEBUG AspGeneralSettingsFacade::getFirmwareVersion -> Firmware "
                      "Version:7.1.2"});
    }
};

} // namespace

TEST_F(Conversation, InTheOlderDialect)
{
    gateway.logIn()
        .reply(managerList100({text("devmgr"), text("wan"), text("dsl")}))
        .reply(reply100({{"route-0", "default_gw", "wan-1"}}))
        .reply(reply100({{"wan-1", "isnewwan", "0"}}))
        .reply(reply100({{"sysmgr-0", "fwversion", "7.1.2"}}));
    EXPECT_EQ(firmwareVersion(), text("7.1.2"));
    EXPECT_TRUE(matchesGolden(text("access/conversationInOlderDialect"), transcript(gateway)));
    EXPECT_EQ(log.lines(),
              linesUpToAddress() +
                  lines({"DEBUG CPE Parameters: :AUTH_PARAM_LOGINRESULT->0\t"
                         "CPE_PARAM_ADSL_VERSION->1\tCPE_PARAM_GENERAL_SETTINGS_VERSION->1\t"
                         "CPE_PARAM_WAN_VERSION->1\tCPE_PARAM_XML_VERSION->1.0.0\t"}) +
                  linesBehindParameters());
}

TEST_F(Conversation, InTheNewerDialect)
{
    scriptRecognition({text("devmgr"), text("wan"), text("wan_vlan")});
    gateway.reply(reply101({{"sysmgr-0", "fwversion", "7.1.2"}}));
    EXPECT_EQ(firmwareVersion(), text("7.1.2"));
    EXPECT_TRUE(matchesGolden(text("access/conversationInNewerDialect"), transcript(gateway)));
    EXPECT_EQ(log.lines(),
              linesUpToAddress() +
                  lines({"DEBUG CPE Parameters: :AUTH_PARAM_LOGINRESULT->0\t"
                         "CPE_PARAM_ETHERNET_VERSION->1\tCPE_PARAM_GENERAL_SETTINGS_VERSION->1\t"
                         "CPE_PARAM_WAN_VERSION->2\tCPE_PARAM_XML_VERSION->1.0.1\t"}) +
                  linesBehindParameters());
}

TEST_F(Conversation, WithAGatewayThatHasNoWan)
{
    scriptRecognition({text("devmgr")});
    gateway.reply(reply101({{"sysmgr-0", "fwversion", "7.1.2"}}));
    EXPECT_EQ(firmwareVersion(), text("7.1.2"));
    EXPECT_TRUE(matchesGolden(text("access/conversationWithoutWan"), transcript(gateway)));
}

TEST_F(Conversation, SendsTheBytesOfTheOlderDialectAsTheyAre)
{
    gateway.logIn()
        .reply(managerList100({text("devmgr")}))
        .reply(reply100({{"sysmgr-0", "fwversion", "7.1.2"}}));
    EXPECT_EQ(firmwareVersion(), text("7.1.2"));
    EXPECT_EQ(gateway.request(1).body, QByteArray("<xmlrequest version=\"1.0.0\">\n"
                                                  " <query inst=\"devmgr-0\">\n"
                                                  "  <key>mngr_list</key>\n"
                                                  "  <value></value>\n"
                                                  " </query>\n"
                                                  "</xmlrequest>\n"));
}

} // namespace quorvel::test
