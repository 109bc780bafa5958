#include "operations/SimulatedHome.h"
#include "protocol/AspCpeSessionStorage.h"
#include "support/BuiltGateway.h"
#include "support/Golden.h"
#include "support/RecognisedGateway.h"

#include <QRegularExpression>
#include <algorithm>
#include <atomic>

namespace quorvel::test
{

namespace
{

/// The lines that hold a secret, in a form that is the same in every run.
QStringList telling(const QStringList& lines, const QString& address)
{
    static const QRegularExpression token(text("[0-9a-f]{32}"));
    QStringList told;
    for (QString line : lines) {
        if (!line.contains(text("secret")) && !line.contains(token))
            continue;
        line.replace(token, text("<token>")).replace(address, text("<gateway>"));
        told.append(line.replace(QLatin1Char('\t'), text("\\t")));
    }
    return told;
}

/// Every operation that tells a secret, and the lines that do.
template <typename Call>
QString toldByAll(Call call)
{
    QString all;
    for (const auto& list : {allReads(), allWrites()}) {
        for (const auto& [className, operations] : list) {
            for (const Operation& operation : operations) {
                const QString name = text(className) + text("::") + text(operation.name);
                SCOPED_TRACE(name.toStdString());
                const QStringList told = call(operation);
                if (!told.isEmpty())
                    all += text("%1\n    %2\n").arg(name, told.join(text("\n    ")));
            }
        }
    }
    return all;
}

QStringList loginsIn(const QStringList& told)
{
    return told.filter(text("DEBUG Logged in. / SESSION: SID=<token>"));
}

/// How many sessions the gateway has handed out since the exchanges were forgotten.
long sessionsOf(const SimulatedHome& home)
{
    const auto exchanges = home.gateway.exchanges();
    return std::count_if(exchanges.begin(), exchanges.end(), [](const auto& exchange) {
        return exchange.replyHead.find("Set-Cookie") != std::string::npos;
    });
}

class Secrets : public testing::Test
{
protected:
    /// What an operation tells on a gateway of its own, to which `happen` has happened before.
    template <typename Happen>
    QStringList toldBy(const Operation& operation, Happen happen)
    {
        SimulatedHome home;
        EXPECT_EQ(home.asked->handle.loginToCpe(false), CpeLoginSuccess);
        EXPECT_EQ(telling({home.asked->general.getCurrentSessionId()}, home.asked->info.cpeAddress),
                  lines({"SID=<token>"}));
        happen(home);
        home.gateway.clearExchanges();
        log.clear();
        operation.run(*home.asked);
        linesSeen += log.lines().size();
        const QStringList told = telling(log.lines(), home.asked->info.cpeAddress);
        EXPECT_EQ(loginsIn(told).size(), sessionsOf(home));
        return told;
    }

    LogCapture log;
    int linesSeen = 0;
};

} // namespace

TEST_F(Secrets, DoReachTheHost)
{
    SimulatedHome home;
    AskedGateway& asked = *home.asked;
    const AspWirelessSettings older = asked.older.getWirelessSettings(asked.error);
    EXPECT_EQ(older.wpaPassword, text("wpa secret"));
    EXPECT_EQ(older.wpaRadiusKey, text("radius secret"));
    EXPECT_EQ(older.wepKeys[3], text("wep secret 4"));
    const AspWirelessSettings newer = asked.newer.getWirelessSettings(asked.error);
    EXPECT_EQ(newer.wpaPassword, text("wpa secret"));
    EXPECT_EQ(newer.wepKeys[0], text("wep secret 1"));
    const Asp3GSettings modem =
        asked.wan.get3GSettings(text("wan-2"), text("serial-0"), asked.error);
    EXPECT_EQ(modem.pin, text("pin secret"));
    EXPECT_EQ(modem.puk, text("puk secret"));
    EXPECT_EQ(asked.voice.getVoipAccounts(asked.error).accounts.value(1).authPassword,
              text("sip secret"));
    EXPECT_EQ(asked.general.getWarrantyInformation(asked.error).token, text("token secret"));
    EXPECT_TRUE(asked.general.checkCpePassword(text("login secret"), asked.error));
}

TEST_F(Secrets, AreToldByConnectionsAndSessionsAlone)
{
    const QString told = toldByAll(
        [&](const Operation& operation) { return toldBy(operation, [](SimulatedHome&) {}); });
    EXPECT_TRUE(matchesGolden(text("operations/linesWithSecrets"), told));
    EXPECT_GE(linesSeen, 100);
}

TEST_F(Secrets, AreToldByRefusedWritesOfConnectionsToo)
{
    // The lines of connections go by the answer that came, whatever it says.
    const QString told = toldByAll([&](const Operation& operation) {
        return toldBy(operation, [](SimulatedHome& home) {
            home.gateway.setFault(*simulator::Fault::fromText("error"));
        });
    });
    EXPECT_TRUE(matchesGolden(text("operations/linesWithSecretsOfRefusals"), told));
    EXPECT_GE(linesSeen, 100);
}

TEST_F(Secrets, AreToldOnceMoreByALoginWhenTheSessionHasExpired)
{
    int renewed = 0;
    toldByAll([&](const Operation& operation) {
        const auto withoutLogins = [](QStringList told) {
            for (const QString& login : loginsIn(told))
                told.removeOne(login);
            return told;
        };
        const QStringList told =
            toldBy(operation, [](SimulatedHome& home) { home.gateway.expireSessions(); });
        const QStringList usual = toldBy(operation, [](SimulatedHome&) {});
        EXPECT_EQ(withoutLogins(told), withoutLogins(usual));
        EXPECT_LE(loginsIn(told).size(), loginsIn(usual).size() + 1);
        renewed += loginsIn(told).size() > loginsIn(usual).size() ? 1 : 0;
        return told;
    });
    EXPECT_GE(renewed, 100);
}

namespace
{

/// A gateway that was recognised and has turned: it hands out sessions, but answers everything
/// else with the same bytes, which tell a secret.
class SecretsOfHostileGateway : public BuiltGateway
{
protected:
    /// All that is told about it.
    QString toldOnAnswer(const QByteArray& answer)
    {
        const QByteArray managers =
            managerList101(lines({"devmgr", "dsl", "wireless", "voice", "usbhost_mngr"})).toUtf8();
        std::atomic<bool> turned{false};
        gateway.answerAllOthers([&](const ReceivedRequest& request, GatewayConnection& peer) {
            if (request.path == "/cgi-bin/login")
                peer.send(httpReply("", "Set-Cookie: SID=session secret\r\n"));
            else
                peer.send(turned ? answer : httpReply(managers));
        });
        buildNewest();
        return toldByAll([&](const Operation& operation) {
            turned = false;
            AskedGateway asked({text("admin"), text("login secret"), gateway.address()}, cpe);
            EXPECT_EQ(asked.handle.loginToCpe(false), CpeLoginSuccess);
            turned = true;
            log.clear();
            operation.run(asked);
            linesSeen += log.lines().size();
            return telling(log.lines(), gateway.address());
        });
    }

    int linesSeen = 0;
};

} // namespace

TEST_F(SecretsOfHostileGateway, AreToldOfSessionsAloneIfRequestsFail)
{
    const QByteArray failure = httpReply("a secret page").replace("200 OK", "500 a secret");
    EXPECT_TRUE(
        matchesGolden(text("operations/linesWithSecretsOfSessions"), toldOnAnswer(failure)));
    EXPECT_GE(linesSeen, 100);
}

TEST_F(SecretsOfHostileGateway, AreToldOfSessionsAloneIfRepliesAreUnreadable)
{
    const QByteArray unreadable = httpReply("<response><a secret></response>");
    EXPECT_TRUE(
        matchesGolden(text("operations/linesWithSecretsOfSessions"), toldOnAnswer(unreadable)));
    EXPECT_GE(linesSeen, 100);
}

} // namespace quorvel::test
