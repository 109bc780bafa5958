#include "general/GeneralSettings.h"

#include <ostream>

namespace quorvel::test
{

namespace
{

using Facade = AspGeneralSettingsFacade;
using Error = AspWebAppErrorCodes;

/// A list of clients and the name of the entries that it is read from.
struct ClientList {
    const char* name;
    QList<AspDhcpsClient> (*read)(Facade& facade, Error& error);
    const char* entry;    ///< with the number's place in it
    const char* hostname; ///< what the host name's entry ends with
};

void PrintTo(const ClientList& list, std::ostream* out)
{
    *out << list.name;
}

class GeneralSettingsClients : public GeneralSettings,
                               public testing::WithParamInterface<ClientList>
{
protected:
    /// One client's entries of the gateway's reply.
    QString client(int number, const char* mac) const
    {
        const QString name = text(GetParam().entry).arg(number);
        return pair(name + text(".mac"), text(mac)) +
               pair(name + text(".ip"), text("192.0.2.%1").arg(number)) +
               pair(name + text(GetParam().hostname), text("host%1").arg(number));
    }

    static QString pair(const QString& key, const QString& value)
    {
        return text("<dhcps-0><key>%1</key><value>%2</value></dhcps-0>").arg(key, value);
    }

    /// The clients that are read from a reply with these entries, one line each.
    QStringList read(const QString& entries)
    {
        gateway.reply(text("<response version=\"1.0.1\">") + entries + text("</response>"));
        QStringList clients;
        for (const AspDhcpsClient& client : GetParam().read(*facade, error))
            clients.append(client.mac + text(" ") + client.ip + text(" ") + client.hostname);
        EXPECT_EQ(log.lines(), QStringList());
        return clients;
    }
};

/// A list of names, and the lines in front of and without it.
struct NameList {
    const char* name;
    QList<QString> (*read)(Facade& facade, Error& error);
    const char* line;
    QStringList behindLogin; ///< what is read when the request had to log in
    const char* loginLogged;
};

void PrintTo(const NameList& list, std::ostream* out)
{
    *out << list.name;
}

class GeneralSettingsNames : public GeneralSettings, public testing::WithParamInterface<NameList>
{
protected:
    QStringList read() { return GetParam().read(*facade, error); }
    QStringList logged(const char* listing) const
    {
        return {text(GetParam().line) + text(listing)};
    }
};

} // namespace

TEST_P(GeneralSettingsClients, AreReadInTheOrderOfTheirNumbers)
{
    QString entries;
    QStringList expected;
    for (int i = 0; i < 12; ++i) {
        entries.prepend(client(i, "aa:bb"));
        expected.append(text("aa:bb 192.0.2.%1 host%1").arg(i));
    }
    EXPECT_EQ(read(entries), expected);
    EXPECT_EQ(code(), 0);
}

TEST_P(GeneralSettingsClients, AreNoneInAnEmptyReply)
{
    EXPECT_EQ(read(QString()), QStringList());
    EXPECT_EQ(code(), 0);
}

TEST_P(GeneralSettingsClients, EndAtTheFirstGap)
{
    EXPECT_EQ(read(client(0, "a") + client(1, "b") + client(3, "d")),
              lines({"a 192.0.2.0 host0", "b 192.0.2.1 host1"}));
}

TEST_P(GeneralSettingsClients, StartAtZero)
{
    EXPECT_EQ(read(client(1, "b")), QStringList());
}

TEST_P(GeneralSettingsClients, AreLeftOutWithAPlaceholderButNotThoseBehindThem)
{
    EXPECT_EQ(read(client(0, "00:00:00:00:00:00") + client(1, "b") + client(2, "000000000000") +
                   client(3, "00-00-00-00-00-00") + client(4, "e")),
              lines({"b 192.0.2.1 host1", "e 192.0.2.4 host4"}));
}

TEST_P(GeneralSettingsClients, AreKeptWithAMacThatOnlyResemblesAPlaceholder)
{
    EXPECT_EQ(read(client(0, "00.00.00.00.00.00") + client(1, "0:0:0:0:0:0") +
                   client(2, "00:00:00:00:00:0a") + client(3, " 000000000000") +
                   client(4, "ab_cd")),
              lines({"00.00.00.00.00.00 192.0.2.0 host0", "0:0:0:0:0:0 192.0.2.1 host1",
                     "00:00:00:00:00:0a 192.0.2.2 host2", " 000000000000 192.0.2.3 host3",
                     "ab_cd 192.0.2.4 host4"}));
}

TEST_P(GeneralSettingsClients, AreKeptWithoutAddressOrNameAndWithAnEmptyMac)
{
    const QString first = text(GetParam().entry).arg(0) + text(".mac");
    const QString second = text(GetParam().entry).arg(1) + text(".mac");
    EXPECT_EQ(read(pair(first, text("a")) + pair(second, QString())), lines({"a  ", "  "}));
}

TEST_P(GeneralSettingsClients, AreReadBesideACodeOfTheGateway)
{
    EXPECT_EQ(read(client(0, "a") + text("<webapp><error>5</error></webapp>")),
              lines({"a 192.0.2.0 host0"}));
    EXPECT_EQ(code(), 5);
}

INSTANTIATE_TEST_SUITE_P(
    BothLists, GeneralSettingsClients,
    testing::Values(ClientList{"Static",
                               [](Facade& f, Error& e) { return f.getStaticClientList(e); },
                               "client%1", ".hostname"},
                    ClientList{"Dynamic",
                               [](Facade& f, Error& e) { return f.getDynamicClientList(e); },
                               "lease%1", ".name"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_P(GeneralSettingsNames, AreTheValuesInTheOrderOfTheKeys)
{
    reply({{"devmgr-0", "conn.inst1", "conn-1"},
           {"devmgr-0", "conn.inst0", "conn-0"},
           {"webapp", "error", "0"},
           {"aaa", "zzz", "1.0.1"}});
    EXPECT_EQ(read(), lines({"1.0.1", "conn-0", "conn-1"}));
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines(), logged(":aaa.zzz->1.0.1\tdevmgr-0.conn.inst0->conn-0\t"
                                  "devmgr-0.conn.inst1->conn-1\t"));
}

TEST_P(GeneralSettingsNames, AreNoneInAnEmptyReply)
{
    reply({});
    EXPECT_EQ(read(), QStringList());
    EXPECT_EQ(log.lines(), logged(":"));
}

TEST_P(GeneralSettingsNames, HoldTheTraceOfALoginButForTheRadios)
{
    expireSession();
    gateway.logIn();
    reply({{"devmgr-0", "conn.inst0", "conn-0"}});
    EXPECT_EQ(read(), GetParam().behindLogin);
    EXPECT_EQ(code(), 0);
    EXPECT_EQ(log.lines().mid(2), logged(GetParam().loginLogged));
}

INSTANTIATE_TEST_SUITE_P(
    AllLists, GeneralSettingsNames,
    testing::Values(
        NameList{"Managers", [](Facade& f, Error& e) { return f.getManagerList(e); },
                 "DEBUG AspGeneralSettingsFacade::getManagerList -> Manager List:",
                 lines({"0", "conn-0"}),
                 ":AUTH_PARAM_LOGINRESULT->0\tdevmgr-0.conn.inst0->conn-0\t"},
        NameList{"Instances",
                 [](Facade& f, Error& e) { return f.getManagerInstanceList(text("conn"), e); },
                 "DEBUG AspGeneralSettingsFacade::getManagerInstanceList -> Manager Instance List:",
                 lines({"0", "conn-0"}),
                 ":AUTH_PARAM_LOGINRESULT->0\tdevmgr-0.conn.inst0->conn-0\t"},
        NameList{"Radios", [](Facade& f, Error& e) { return f.getWirelessCoreList(e); },
                 "DEBUG AspGeneralSettingsFacade::getManagerList -> Manager List:",
                 lines({"conn-0"}), ":devmgr-0.conn.inst0->conn-0\t"},
        NameList{"RadiosWithoutError",
                 [](Facade& f, Error& e) {
                     e = AspWebAppNoError;
                     return f.getWirelessCoreList();
                 },
                 "DEBUG AspGeneralSettingsFacade::getManagerList -> Manager List:",
                 lines({"conn-0"}), ":devmgr-0.conn.inst0->conn-0\t"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(GeneralSettings, ListTheRadiosOfBothGenerationsTogether)
{
    reply({{"devmgr-0", "wireless_core.inst0", "wireless_core-0"},
           {"devmgr-0", "wireless.inst1", "wireless-1"},
           {"devmgr-0", "wireless.inst0", "wireless-0"}});
    EXPECT_EQ(QStringList(facade->getWirelessCoreList(error)),
              lines({"wireless-0", "wireless-1", "wireless_core-0"}));
}

TEST_F(GeneralSettings, ListNoRadiosWithoutTellingAnErrorIfTheRequestFails)
{
    gateway.sendRaw({});
    EXPECT_EQ(QStringList(facade->getWirelessCoreList()), QStringList());
}

} // namespace quorvel::test
