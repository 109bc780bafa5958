#include "Options.h"

#include "Routing.h"

#include <QHostAddress>
#include <QUrl>
#include <iostream>
#include <limits>
#include <map>

namespace quorvelctl
{

namespace
{

const std::map<std::string, int> levels{{"debug", 96},
                                        {"info", 128},
                                        {"warn", 150},
                                        {"error", 182},
                                        {"off", std::numeric_limits<int>::max()}};

/// Whether this is a host and perhaps a port.
bool isAddress(const QString& text)
{
    const QUrl url(QLatin1String("http://") + text);
    return url.isValid() && !url.host().isEmpty() && url.port(80) > 0 && url.path().isEmpty() &&
           !url.hasQuery() && !url.hasFragment();
}

/// Makes an address what the library takes, or tells why it can't be one.
std::string normalizeAddress(std::string& address)
{
    QString text = QString::fromStdString(address).trimmed();
    if (text.contains(QLatin1Char('@')))
        return "user and password don't belong to the address";
    if (text.startsWith(QLatin1String("http://"), Qt::CaseInsensitive))
        text.remove(0, 7);
    if (text.contains(QLatin1String("://")))
        return "gateways are reached by plain http only: " + address;
    while (text.endsWith(QLatin1Char('/')))
        text.chop(1);
    if (QHostAddress(text).protocol() == QAbstractSocket::IPv6Protocol)
        text = QLatin1Char('[') + text + QLatin1Char(']');
    if (!isAddress(text))
        return "no address: " + address;
    address = text.toStdString();
    return std::string();
}

} // namespace

void Options::addTo(commandline::Command program)
{
    program
        .addOption("-a,--address", givenAddress,
                   "Address of the gateway, with or without a port; without it the default gateway "
                   "of this machine")
        .valueName("ADDRESS")
        .rewrite(normalizeAddress)
        .environment("QUORVELCTL_ADDRESS");
    program.addOption("-u,--user", userName, "Login name")
        .valueName("NAME")
        .environment("QUORVELCTL_USER")
        .showDefault();
    passwordSource.addTo(program, "password", "QUORVELCTL_PASSWORD", "login password");
    program.addFlag("--json", json, "Print JSON instead of tables");
    program.addFlag("--show-secrets", showSecrets, "Print passwords, keys and cookies in clear");
    program.addOption("--log-level", levelName, "Show the library's lines from this level on")
        .valueName("LEVEL")
        .oneOf({"debug", "info", "warn", "error", "off"})
        .showDefault();
}

QString Options::address() const
{
    if (!givenAddress.empty())
        return QString::fromStdString(givenAddress);
    const QString gateway = defaultGateway();
    std::cerr << "quorvelctl: no --address given, trying this machine's default gateway "
              << gateway.toStdString() << '\n';
    return gateway;
}

int Options::logLevel() const
{
    return levels.at(levelName);
}

} // namespace quorvelctl
