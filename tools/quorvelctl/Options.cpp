#include "Options.h"

#include "Routing.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
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

void Options::addTo(CLI::App& app)
{
    app.add_option("-a,--address", givenAddress,
                   "Address of the gateway, with or without a port; without it the default gateway "
                   "of this machine")
        ->type_name("ADDRESS")
        ->transform(CLI::Validator(normalizeAddress, std::string()))
        ->envname("QUORVELCTL_ADDRESS");
    app.add_option("-u,--user", userName, "Login name")
        ->type_name("NAME")
        ->envname("QUORVELCTL_USER")
        ->capture_default_str();
    passwordSource.addTo(app, "password", "QUORVELCTL_PASSWORD", "login password");
    app.add_flag("--json", json, "Print JSON instead of tables");
    app.add_flag("--show-secrets", showSecrets, "Print passwords, keys and cookies in clear");
    app.add_option("--log-level", levelName, "Show the library's lines from this level on")
        ->type_name("LEVEL")
        ->check(CLI::IsMember({"debug", "info", "warn", "error", "off"}))
        ->capture_default_str();
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
