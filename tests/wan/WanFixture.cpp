#include "wan/WanFixture.h"

namespace quorvel::test
{

const QByteArray notFound = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";

namespace
{

QString shown(const QList<QString>& texts)
{
    return QStringList(texts).join(QLatin1Char(' '));
}

} // namespace

QString shown(const AspWanDetails& details)
{
    // Taken apart by position: the order of the fields is part of the record.
    const auto& [enabled, isConnected, connectionType, ethLinkTypes, dslLinkTypes, linkType,
                 localIp, pvc, rfc2684, pppox, fixed, wanVlan, dhcpc, vpns, reserved1, reserved2,
                 reserved3, reserved4] = details;
    return QStringList{shown(enabled),
                       shown(isConnected),
                       connectionType,
                       shown(ethLinkTypes),
                       shown(dslLinkTypes),
                       linkType,
                       localIp,
                       pvc,
                       rfc2684,
                       pppox,
                       fixed,
                       wanVlan,
                       dhcpc,
                       shown(vpns),
                       reserved1,
                       reserved2,
                       reserved3,
                       reserved4}
        .join(QLatin1Char('|'));
}

QString shown(const Asp3GSettings& settings)
{
    const auto& [pin, puk, apn, prefMode, force3g, simPinStatus, active, imei, roaming,
                 operatorName, connectionMode, signalStrength, prefModeList] = settings;
    return QStringList{pin,
                       puk,
                       apn,
                       QString::number(prefMode),
                       shown(force3g),
                       QString::number(simPinStatus),
                       shown(active),
                       imei,
                       shown(roaming),
                       operatorName,
                       QString::number(connectionMode),
                       QString::number(signalStrength),
                       shown(prefModeList)}
        .join(QLatin1Char('|'));
}

void WanFacade::SetUp()
{
    buildNewest();
    facade = AspWanSettingsFacade(cpe);
}

QStringList WanFacade::lines() const
{
    QStringList own;
    for (const QString& line : log.lines()) {
        if (!line.startsWith(QLatin1String("HTTP_REQUEST_EXECUTOR: ")))
            own.append(line);
    }
    return own;
}

} // namespace quorvel::test
