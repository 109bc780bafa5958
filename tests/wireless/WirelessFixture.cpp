#include "wireless/WirelessFixture.h"

#include <boost/make_shared.hpp>

namespace quorvel::test
{

QString shown(const AspWirelessSettings& settings)
{
    // Taken apart by position: the order of the fields is part of the record.
    const auto& [managerIndex, ssid, securityMode, wepAuthType, wepKeyType, wepKeyIndex, wepKeys,
                 wpaAuthType, wpaPassword, wpaRekeyInterval, wpaRadiusAddr, wpaRadiusPort,
                 wpaRadiusKey, wpaRadiusEapReauthPeriod, wpa2RsnPreauth, freq, status] = settings;
    return QStringList{QString::number(managerIndex),
                       ssid,
                       securityMode,
                       wepAuthType,
                       wepKeyType,
                       wepKeyIndex,
                       wepKeys[0],
                       wepKeys[1],
                       wepKeys[2],
                       wepKeys[3],
                       wpaAuthType,
                       wpaPassword,
                       wpaRekeyInterval,
                       wpaRadiusAddr,
                       wpaRadiusPort,
                       wpaRadiusKey,
                       wpaRadiusEapReauthPeriod,
                       wpa2RsnPreauth,
                       freq,
                       QString::number(status)}
        .join(QLatin1Char('|'));
}

QString shown(const QList<AspWirelessMeshInst>& links)
{
    QStringList texts;
    for (const auto& [mac, enabled] : links)
        texts.append(mac + text(enabled ? " on" : " off"));
    return shown(texts);
}

QString shown(const QStringList& texts)
{
    return texts.join(QLatin1Char(','));
}

AspWirelessSettings wholeRecord(const char* mode)
{
    return {7,
            text("Home"),
            text(mode),
            text("shared"),
            text("hex"),
            text("3"),
            {text("key 1"), text("key 2"), text("key 3"), text("key 4")},
            text("psk"),
            text("pass phrase"),
            text("3600"),
            text("192.0.2.9"),
            text("1812"),
            text("radius key"),
            text("7200"),
            text("1"),
            text("2412"),
            AspWirelessEnabled};
}

void WirelessRadios::SetUp()
{
    FacadeOnGateway::SetUp();
    older = boost::make_shared<AspWirelessSettingsFacade>(cpe);
    older->setManager(text("wireless_core-0"));
    newer = boost::make_shared<AspWirelessSettingsFacadeNG>(cpe);
    newer->setManager(text("wireless-0"));
}

} // namespace quorvel::test
