#include "assembly/Cpe.h"

#include "general/AspGeneralSettingsImplV1.h"
#include "internet/AdslSettingsImplementor.h"
#include "protocol/AspCpeSessionStorage.h"
#include "support/BuiltGateway.h"
#include "support/Text.h"
#include "support/Transcript.h"
#include "usbhost/UsbHostSettingsImplementor.h"
#include "voice/VoipSettingsImplementor.h"
#include "wan/WanSettingsImplementor.h"
#include "wireless/WirelessSettingsImplementor.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

namespace
{

/// A transport that notes who was aborted, and that can't send.
class AbortRecorder : public RequestExecutor
{
public:
    AbortRecorder(const char* name, QStringList& aborted) : name(text(name)), aborted(aborted) {}

    int execute(const ParamMap&, ParamMap&) override
    {
        ADD_FAILURE() << "a request over the transport of " << name.toStdString();
        return RequestNetworkFailure;
    }
    void abortPendingRequests() override { aborted.append(name); }

private:
    const QString name;
    QStringList& aborted;
};

class CpeOfBuiltGateway : public BuiltGateway
{
protected:
    // Before the recorders' list goes.
    ~CpeOfBuiltGateway() override { cpe.reset(); }

    /// Gives the family's transport away to one that notes aborts, if the gateway has the family.
    void record(const char* name, boost::shared_ptr<CpeSettingsImplementor> implementor)
    {
        if (implementor)
            implementor->setRequestExecutor(boost::make_shared<AbortRecorder>(name, aborted));
    }

    void recordAborts()
    {
        record("newer radio", cpe->getWirelessImplementorNG());
        record("general", cpe->getGeneralImplementor());
        record("dsl", cpe->getAdslImplementor());
        record("wan", cpe->getWanImplementor());
        record("radio", cpe->getWirelessImplementor());
        record("usb host", cpe->getUsbHostImplementor());
        record("telephony", cpe->getVoipImplementor());
    }

    AspCpeSessionStorage& storage() { return *AspCpeSessionStorage::getInstance(); }

    QStringList aborted;
};

} // namespace

TEST(Cpe, HasNoPartsAtFirst)
{
    const Cpe cpe;
    EXPECT_FALSE(cpe.getAdslImplementor());
    EXPECT_FALSE(cpe.getWirelessImplementor());
    EXPECT_FALSE(cpe.getWirelessImplementorNG());
    EXPECT_FALSE(cpe.getVoipImplementor());
    EXPECT_FALSE(cpe.getGeneralImplementor());
    EXPECT_FALSE(cpe.getWanImplementor());
    EXPECT_FALSE(cpe.getParameters());
    EXPECT_FALSE(cpe.getUsbHostImplementor());
    EXPECT_FALSE(cpe.hasVoipImplementor());
    EXPECT_FALSE(cpe.hasUsbHostImplementor());
}

TEST(Cpe, WithoutPartsHasNothingToAbortAndNoSession)
{
    Cpe cpe;
    cpe.abortPendingRequests();
    EXPECT_EQ(cpe.ensureSession(), 1);
}

TEST(Cpe, SharesItsPartsWithItsHolders)
{
    Cpe cpe;
    const auto general = boost::make_shared<AspGeneralSettingsImplV1>();
    const auto parameters = boost::make_shared<ParamMap>();
    cpe.setGeneralImplementor(general);
    cpe.setParameters(parameters);
    EXPECT_EQ(cpe.getGeneralImplementor(), general);
    EXPECT_EQ(cpe.getParameters(), parameters);
}

TEST(Cpe, AbortsAnImplementorWithoutTransport)
{
    Cpe cpe;
    cpe.setGeneralImplementor(boost::make_shared<AspGeneralSettingsImplV1>());
    cpe.abortPendingRequests();
}

TEST_F(CpeOfBuiltGateway, AbortsTheFamiliesThatItHasInOrderButNewerRadios)
{
    buildNewest();
    recordAborts();
    cpe->abortPendingRequests();
    EXPECT_EQ(aborted, lines({"general", "dsl", "wan", "radio", "usb host", "telephony"}));
}

TEST_F(CpeOfBuiltGateway, AbortsInTheSameWayWhenItGoes)
{
    build({{"WAN_VERSION", "1"}});
    recordAborts();
    cpe.reset();
    EXPECT_EQ(aborted, lines({"general", "wan"}));
}

TEST_F(CpeOfBuiltGateway, EndsARequestInFlightWhenItGoes)
{
    build({});
    gateway.sendAndHold(QByteArray());
    const auto general = cpe->getGeneralImplementor();
    ParamMap result;
    bool answered = true;
    std::thread caller([&] { answered = general->getFirmwareVersion(result); });
    EXPECT_TRUE(gateway.waitForRequests(1));
    cpe.reset();
    caller.join();
    EXPECT_FALSE(answered);
    EXPECT_EQ(entries(result), lines({"AUTH_PARAM_LOGINRESULT=3", "webapp.error=29"}));
}

TEST_F(CpeOfBuiltGateway, LetsARequestOfANewerRadioRunToItsEndWhenItGoes)
{
    buildNewest();
    gateway.answer([](const ReceivedRequest&, GatewayConnection& peer) {
        peer.waitForRelease();
        peer.send(httpReply("<response version=\"1.0.1\"/>"));
    });
    const auto radio = cpe->getWirelessImplementorNG();
    ParamMap result;
    bool answered = false;
    std::thread caller([&] {
        answered = radio->executeRequest(text("<xmlrequest version=\"1.0.1\"/>"), result, false);
    });
    EXPECT_TRUE(gateway.waitForRequests(1));
    cpe.reset();
    gateway.release();
    caller.join();
    EXPECT_TRUE(answered);
    EXPECT_EQ(entries(result), lines({"response=1.0.1"}));
}

TEST_F(CpeOfBuiltGateway, TakesAStoredSessionForValid)
{
    build({});
    storage().setSession(gateway.address(), text("SID=77"));
    EXPECT_EQ(cpe->ensureSession(), 0);
    EXPECT_EQ(log.lines(), QStringList(text("DEBUG Session for ") + gateway.address() +
                                       text(" exists in session storage...SID=77")));
}

TEST_F(CpeOfBuiltGateway, LogsInOverATransportOfItsOwnIfNoSessionIsStored)
{
    build({});
    recordAborts();
    storage().removeSession(gateway.address());
    gateway.logIn("SID=78");
    EXPECT_EQ(cpe->ensureSession(), 0);
    EXPECT_EQ(storage().getSession(gateway.address()), text("SID=78"));
    EXPECT_EQ(transcript(gateway), text("POST /cgi-bin/login\nuser=admin&password=secret\n"));
    EXPECT_EQ(log.lines(), lines({"DEBUG Session is expired. Logging in again...",
                                  "DEBUG Logging in...", "DEBUG Logged in. / SESSION: SID=78"}));
}

TEST_F(CpeOfBuiltGateway, TellsHowTheLoginFailed)
{
    build({});
    storage().removeSession(gateway.address());
    gateway.refuseLogin().sendRaw({});
    EXPECT_EQ(cpe->ensureSession(), 1);
    EXPECT_EQ(cpe->ensureSession(), 3);
    EXPECT_EQ(log.lines(),
              lines({"DEBUG Session is expired. Logging in again...", "DEBUG Logging in...",
                     "WARN Failed to log in.", "DEBUG Session is expired. Logging in again...",
                     "DEBUG Logging in...", "WARN Log in request timed out or failed."}));
}

TEST_F(CpeOfBuiltGateway, LogsInAnewAtAnAddressWithSchemeAlthoughASessionIsStored)
{
    build({});
    cpe->getGeneralImplementor()->getAuthenticator()->setCpeAddress(text("http://") +
                                                                    gateway.address());
    gateway.logIn("SID=79");
    EXPECT_EQ(cpe->ensureSession(), 0);
    EXPECT_EQ(storage().getSession(gateway.address()), text("SID=79"));
}

} // namespace quorvel::test
