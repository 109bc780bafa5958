#include "Radios.h"

#include "Failure.h"

#include <boost/make_shared.hpp>

namespace quorvelctl
{

using namespace quorvel;

namespace
{

boost::shared_ptr<AspWirelessSettingsFacadeImplementor> facadeOf(const QString& name,
                                                                 const boost::shared_ptr<Cpe>& cpe)
{
    boost::shared_ptr<AspWirelessSettingsFacadeImplementor> facade;
    if (name.contains(QLatin1String("wireless_core")))
        facade = boost::make_shared<AspWirelessSettingsFacade>(cpe);
    else if (name.contains(QLatin1String("wireless-0")))
        facade = boost::make_shared<AspWirelessSettingsFacadeNG>(cpe);
    if (facade)
        facade->setManager(name);
    return facade;
}

} // namespace

Radio::Radio(const QString& name, Gateway& gateway,
             boost::shared_ptr<AspWirelessSettingsFacadeImplementor> facade)
    : ownName(name),
      gateway(&gateway),
      facade(facade),
      newer(dynamic_cast<AspWirelessSettingsFacadeNG*>(facade.get()))
{
}

AspWirelessSettings Radio::settings() const
{
    return ask("read the settings of",
               [](auto& radio, auto& error) { return radio.getWirelessSettings(error); });
}

AspWirelessStatus Radio::status() const
{
    return ask("read the state of",
               [](auto& radio, auto& error) { return radio.checkWirelessStatus(error); });
}

boost::shared_ptr<Capabilities> Radio::capabilities() const
{
    if (!newer)
        return boost::shared_ptr<Capabilities>();
    ask("read the capabilities of",
        [](auto& radio, auto& error) { return radio.getWirelessCapabilities(error); });
    // A document that can't be read gives an empty tree.
    const auto tree = newer->getCapabilities();
    return tree && tree->getBand() ? tree : boost::shared_ptr<Capabilities>();
}

QStringList Radio::securityModes(int band) const
{
    return ask("read the security modes of",
               [&](auto& radio, auto&) { return radio.getSupportSecurityModes(band); });
}

bool Radio::write(const AspWirelessSettings& settings, AspWebAppErrorCodes& error) const
{
    return facade->setWirelessSettings(settings.status, settings, error);
}

Radios::Radios(Gateway& gateway) : AspFacade(gateway.general())
{
    if (gateway.object().hasWireless()) {
        const QStringList found = gateway.ask(QStringLiteral("list the radios"), [&](auto& error) {
            return QStringList(gateway.general().getWirelessCoreList(error));
        });
        for (const QString& name : found) {
            if (const auto facade = facadeOf(name, cpe))
                all.append(Radio(name, gateway, facade));
        }
    }
    if (all.isEmpty())
        throw Failure{GatewayFailed, QStringLiteral("%1 has no radio").arg(gateway.address())};
}

QList<Radio> Radios::named(const std::string& name) const
{
    return name.empty() ? all : QList<Radio>{one(name)};
}

Radio Radios::one(const std::string& name) const
{
    if (name.empty() && all.size() == 1)
        return all.first();
    for (const Radio& radio : all) {
        if (radio.name().toStdString() == name)
            return radio;
    }
    const QString wanted = QString::fromStdString(name);
    throw Failure{WrongUsage,
                  name.empty()
                      ? QStringLiteral("which radio? Choose by --radio from %1").arg(names())
                      : QStringLiteral("no radio %1, but there is %2").arg(wanted, names())};
}

AspWirelessSettingsFacadeManager Radios::managerOf(const QList<Radio>& some) const
{
    QStringList chosen;
    for (const Radio& radio : some)
        chosen.append(radio.name());
    return AspWirelessSettingsFacadeManager(cpe, chosen);
}

QString Radios::names() const
{
    QStringList texts;
    for (const Radio& radio : all)
        texts.append(radio.name());
    return texts.join(QStringLiteral(", "));
}

Protection protectionOf(const QString& securityMode)
{
    const auto begins = [&](const char* small, const char* capital) {
        return securityMode.startsWith(QLatin1String(small)) ||
               securityMode.startsWith(QLatin1String(capital));
    };
    if (begins("wpa", "WPA"))
        return Protection::Wpa;
    if (begins("wep", "WEP"))
        return Protection::Wep;
    return securityMode == QLatin1String("off") ? Protection::None : Protection::Unknown;
}

int wepKeyInUse(const AspWirelessSettings& settings)
{
    const int number = settings.wepKeyIndex.toInt();
    return number >= 1 && number <= 4 ? number - 1 : 0;
}

} // namespace quorvelctl
