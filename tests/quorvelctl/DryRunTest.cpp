#include "InternetWrite.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

namespace quorvelctl::test
{

using testing::HasSubstr;
using testing::Not;

TEST_F(QuorvelctlInternetWrite, PrintsInADryRunWhatItWouldSendAndSendsNothing)
{
    const std::string arguments =
        "internet set-dsl wan-0 --link-type pppoe --current-annex-mode b --dry-run";
    const char* const commands = "COMMAND  OBJECT     KEY                VALUE\n"
                                 "command  cfgmgr-0   begin_transaction  wan-0\n"
                                 "set      wan-0      type               pppoe\n"
                                 "set      wan-0      linktype           pppoe\n"
                                 "command  cfgmgr-0   commit             wan-0\n"
                                 "command  cfgmgr-0   end_transaction    wan-0\n"
                                 "command  wan-0      apply\n"
                                 "command  cfgmgr-0   save\n"
                                 "command  cfgmgr-0   begin_transaction  pppox-0\n"
                                 "set      pppox-0    type               pppoe\n"
                                 "set      pppox-0    username           line1903@example.net\n"
                                 "set      pppox-0    password           ********\n"
                                 "set      pppox-0    mtu                1492\n"
                                 "command  cfgmgr-0   begin_transaction  pvc-0\n"
                                 "set      pvc-0      vpi                8\n"
                                 "set      pvc-0      vci                35\n"
                                 "set      pvc-0      vlanid             35\n"
                                 "command  cfgmgr-0   begin_transaction  dsl-0\n"
                                 "set      dsl-0      annex              b\n"
                                 "command  cfgmgr-0   begin_transaction  rfc2684-0\n"
                                 "set      rfc2684-0  encaps             LLC\n"
                                 "command  cfgmgr-0   commit             pppox-0\n"
                                 "command  cfgmgr-0   commit             pvc-0\n"
                                 "command  cfgmgr-0   commit             dsl-0\n"
                                 "command  cfgmgr-0   commit             rfc2684-0\n"
                                 "command  cfgmgr-0   end_transaction    pppox-0\n"
                                 "command  cfgmgr-0   end_transaction    pvc-0\n"
                                 "command  cfgmgr-0   end_transaction    dsl-0\n"
                                 "command  cfgmgr-0   end_transaction    rfc2684-0\n"
                                 "command  pppox-0    apply\n"
                                 "command  pvc-0      apply\n"
                                 "command  dsl-0      apply\n"
                                 "command  rfc2684-0  apply\n"
                                 "command  cfgmgr-0   save\n";
    expectOutput(arguments, commands);
    EXPECT_THAT(run(arguments + " --show-secrets").output,
                HasSubstr("set      pppox-0    password           dsl-secret\n"));
    EXPECT_FALSE(wasWrittenTo());
    EXPECT_EQ(simulator.storedValue("dsl-0", "annex"), "a");
}

TEST_F(QuorvelctlInternetWrite, PrintsADryRunAsJsonWithoutItsSecrets)
{
    const Outcome result = runWith("QUORVELCTL_VPN_PASSWORD", "tunnel-secret",
                                   "internet set-eth wan-1 --link-type vpn --vpn-server x "
                                   "--vpn-username ada --dry-run --json --log-level debug");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("    {\n"
                                         "        \"command\": \"set\",\n"
                                         "        \"instance\": \"vpn-0\",\n"
                                         "        \"key\": \"password-0\",\n"
                                         "        \"value\": \"********\"\n"
                                         "    },\n"));
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("tunnel-secret")));
}

namespace
{

/// A command as "set wan-0 type dhcp".
std::string commandLine(const QStringList& parts)
{
    return parts.join(QLatin1Char(' ')).toStdString();
}

std::vector<std::string> printedCommands(const std::string& json)
{
    std::vector<std::string> lines;
    const QJsonArray commands = QJsonDocument::fromJson(QByteArray::fromStdString(json)).array();
    for (const QJsonValue& command : commands)
        lines.push_back(commandLine({command[QLatin1String("command")].toString(),
                                     command[QLatin1String("instance")].toString(),
                                     command[QLatin1String("key")].toString(),
                                     command[QLatin1String("value")].toString()}));
    return lines;
}

std::vector<std::string> sentCommands(const std::string& request)
{
    std::vector<std::string> lines;
    QXmlStreamReader reader(QByteArray::fromStdString(request));
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        QStringList parts{reader.name().toString(),
                          reader.attributes().value(QLatin1String("inst")).toString()};
        while (reader.readNextStartElement())
            parts.append(reader.readElementText());
        lines.push_back(commandLine(parts));
    }
    return lines;
}

const char* const addresses =
    " --static-ip 192.0.2.10 --static-mask 255.255.255.0 --static-gateway 192.0.2.1";
const char* const tunnel = " --vpn-server x --vpn-username y";

/// A write, and how many commands it is.
struct Write {
    const char* name;
    std::string arguments;
    std::size_t commands;
};

void PrintTo(const Write& write, std::ostream* out)
{
    *out << write.name;
}

const Write writes[] = {
    {"DslPppoe", "set-dsl wan-0 --link-type pppoe", 33},
    {"DslPppoa", "set-dsl wan-0 --link-type pppoa --supported-annex-mode a", 28},
    {"DslRussianPppoe", "set-dsl wan-0 --link-type russian_pppoe", 16},
    {"DslRussianPppoeWithStatic",
     "set-dsl wan-0 --link-type russian_pppoe --russian-pppox-use-static" + std::string(addresses),
     25},
    {"DslVpn", "set-dsl wan-0 --link-type vpn", 8},
    {"DslL2tp", "set-dsl wan-0 --link-type l2tp", 8},
    {"DslDhcp", "set-dsl wan-0 --link-type dhcp", 8},
    {"DslBridge", "set-dsl wan-0 --link-type bridge", 8},
    {"DslStatic", "set-dsl wan-0 --link-type static" + std::string(addresses), 17},
    {"EthPppoe", "set-eth wan-1 --link-type pppoe --pppox-username y", 20},
    {"EthRussianPppoe", "set-eth wan-1 --link-type russian_pppoe --pppox-username y", 20},
    {"EthRussianPppoeWithStatic",
     "set-eth wan-1 --link-type russian_pppoe --pppox-username y --russian-pppox-use-static" +
         std::string(addresses),
     29},
    {"EthVpn", "set-eth wan-1 --link-type vpn" + std::string(tunnel), 24},
    {"EthVpnWithStatic",
     "set-eth wan-1 --link-type vpn --vpn-use-static" + std::string(tunnel) + addresses, 33},
    {"EthL2tp", "set-eth wan-1 --link-type l2tp --l2tp-server x --l2tp-username y", 24},
    {"EthL2tpWithStatic",
     "set-eth wan-1 --link-type l2tp --l2tp-server x --l2tp-username y --l2tp-use-static" +
         std::string(addresses),
     33},
    {"EthDhcp", "set-eth wan-1 --link-type dhcp", 12},
    {"EthBridge", "set-eth wan-1 --link-type bridge", 12},
    {"EthStatic", "set-eth wan-1 --link-type static" + std::string(addresses), 21}};

/// A dry run, and the real one to compare it with.
class DryRunOfAGateway : public QuorvelctlInternetWrite
{
protected:
    using QuorvelctlInternetWrite::QuorvelctlInternetWrite;

    void expectTheSame(const std::string& arguments, std::size_t commands) const;
};

class QuorvelctlDryRun : public DryRunOfAGateway, public testing::WithParamInterface<Write>
{
};

class QuorvelctlDryRunOfTheOlderGateway : public DryRunOfAGateway
{
protected:
    QuorvelctlDryRunOfTheOlderGateway() : DryRunOfAGateway("classic") {}
};

void DryRunOfAGateway::expectTheSame(const std::string& arguments, std::size_t commands) const
{
    const std::map<std::string, std::string> secrets{{"QUORVELCTL_PPPOX_PASSWORD", "p <&> q"},
                                                     {"QUORVELCTL_VPN_PASSWORD", "v <&> w"},
                                                     {"QUORVELCTL_L2TP_PASSWORD", "l <&> m"}};
    const Surroundings surroundings{simulator.address(), "admin", {}, secrets};
    const Outcome dry = runQuorvelctl(arguments + " --dry-run --json --show-secrets", surroundings);
    EXPECT_EQ(dry.status, 0) << dry.errors;
    EXPECT_FALSE(wasWrittenTo());
    const Outcome real = runQuorvelctl(arguments, surroundings);
    EXPECT_EQ(real.status, 0) << real.errors;
    const auto sent = sentCommands(simulator.exchanges().back().requestBody);
    EXPECT_EQ(printedCommands(dry.output), sent);
    EXPECT_EQ(sent.size(), commands);
}

} // namespace

TEST_P(QuorvelctlDryRun, PrintsExactlyWhatTheWriteSends)
{
    expectTheSame("internet " + GetParam().arguments, GetParam().commands);
}

// In the other dialect.
TEST_F(QuorvelctlDryRunOfTheOlderGateway, PrintsExactlyWhatTheWriteSends)
{
    expectTheSame("internet set-dsl wan-0 --link-type pppoe", 28);
}

INSTANTIATE_TEST_SUITE_P(All, QuorvelctlDryRun, testing::ValuesIn(writes),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace quorvelctl::test
