#pragma once

#include "Gateway.h"

#include <string>

namespace quorvelctl
{

/// One radio of a gateway.
class Radio
{
public:
    Radio(const QString& name, Gateway& gateway,
          boost::shared_ptr<quorvel::AspWirelessSettingsFacadeImplementor> facade);

    const QString& name() const { return ownName; }
    /// Whether it is of the newer generation, which tells what it can do, and neither whether it is
    /// on nor who is connected.
    bool isNewer() const { return newer != nullptr; }

    /// One call of the radio's facade, as Gateway::ask. `what` is completed by the radio's name.
    template <typename Call>
    auto ask(const char* what, Call call) const
    {
        return gateway->ask(QString::fromLatin1(what) + QLatin1Char(' ') + ownName,
                            [&](auto& error) { return call(*facade, error); });
    }

    quorvel::AspWirelessSettings settings() const;
    quorvel::AspWirelessStatus status() const;
    /// Asks what the radio can do, and keeps it for what depends on it: mesh links and security
    /// modes. Null if it doesn't tell: for an older radio, which isn't asked, and if what it tells
    /// can't be read.
    boost::shared_ptr<Capabilities> capabilities() const;
    /// The security modes of a band, 1 for 5 GHz, else 2.4 GHz. Needs the capabilities.
    QStringList securityModes(int band) const;

    /// Writes its settings in a request of its own, which only older radios take. A reply that
    /// doesn't come is no failure.
    bool write(const quorvel::AspWirelessSettings& settings,
               quorvel::AspWebAppErrorCodes& error) const;

private:
    QString ownName;
    Gateway* gateway;
    boost::shared_ptr<quorvel::AspWirelessSettingsFacadeImplementor> facade;
    quorvel::AspWirelessSettingsFacadeNG* newer;
};

/// The radios of a gateway, each to be asked for itself: the library's manager asks all of them and
/// doesn't tell which one an answer or an error came from.
class Radios : private quorvel::AspFacade
{
public:
    /// Fails if the gateway has none.
    explicit Radios(Gateway& gateway);

    /// All of them, or the one of that name.
    QList<Radio> named(const std::string& name) const;
    /// The one of that name, which may be left out if there is only one.
    Radio one(const std::string& name) const;

    /// The library's manager of some of them alone.
    quorvel::AspWirelessSettingsFacadeManager managerOf(const QList<Radio>& some) const;

private:
    QString names() const;

    QList<Radio> all;
};

/// Which key a network needs.
enum class Protection { None, Wep, Wpa, Unknown };

/// By the name of a security mode. Gateways spell them in small or in capital letters.
Protection protectionOf(const QString& securityMode);

/// Which of the WEP keys is in use, from 0; gateways count from 1. The first if they don't tell.
int wepKeyInUse(const quorvel::AspWirelessSettings& settings);

} // namespace quorvelctl
