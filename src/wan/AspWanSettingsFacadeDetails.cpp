#include <quorvel/AspWanSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "wan/WanCall.h"
#include "wan/WanKeys.h"

#include <QHash>

namespace quorvel
{

namespace
{

const int mostLinkTypes = 20;

const TextField<AspWanDetails> detailFields[] = {
    {"l2type", &AspWanDetails::connectionType},
    {"type", &AspWanDetails::linkType},
    {"localip", &AspWanDetails::localIp},
    {"entities.pvc", &AspWanDetails::pvcInstance},
    {"entities.rfc2684", &AspWanDetails::rfc2684Instance},
    {"entities.pppox", &AspWanDetails::pppoxInstance},
    {"entities.static", &AspWanDetails::staticInstance},
    {"entities.wan_vlan", &AspWanDetails::wanVlanInstance},
    {"entities.dhcpc", &AspWanDetails::dhcpcInstance}};

/// The tunnels "vpn-0", "vpn-1" and so on that occur as values.
QList<QString> vpnInstancesIn(const ParamMap& reply)
{
    // Noted in one pass, so that a large reply isn't searched for every number.
    QHash<QString, QString> firstKeys;
    for (auto it = reply.constBegin(); it != reply.constEnd(); ++it) {
        if (!firstKeys.contains(it.value()))
            firstKeys.insert(it.value(), it.key());
    }
    QList<QString> tunnels;
    for (int i = 0; i < reply.size(); ++i) {
        const QString tunnel = wire::vpn + QStringLiteral("-%1").arg(i);
        if (!firstKeys.value(tunnel).isEmpty())
            tunnels.append(tunnel);
    }
    return tunnels;
}

void readDetails(AspWanDetails& details, const QString& wan, const ParamMap& reply)
{
    details.enabled = isSet(reply, replyKey(wan, wire::enabled));
    details.isConnected = isSet(reply, replyKey(wan, wire::isconnected));
    readTexts(details, detailFields, reply, replyKey(wan, QString()));
    // The newer WAN model has another key for it.
    if (details.linkType.isEmpty())
        details.linkType = reply.value(replyKey(wan, wire::linktype));
    details.vpnInstances = vpnInstancesIn(reply);
}

/// Empty also on failure, which is neither logged nor reported.
QList<QString> fetchLinkTypes(AspFacade& facade, const QString& wan, const QString& kind)
{
    QList<QString> linkTypes;
    AspWebAppErrorCodes unreported;
    fetch(
        facade, unreported, wanCall(&WanSettingsImplementor::getSupportedLinkTypes, wan, kind),
        [&](const ParamMap& reply) {
            const QString key = replyKey(wan, wire::linktype);
            for (int i = 0; i < mostLinkTypes; ++i) {
                const QString linkType = reply.value(key + QString::number(i));
                if (linkType.isEmpty())
                    return;
                linkTypes.append(linkType);
            }
        },
        nullptr);
    return linkTypes;
}

QString listing(const QString& wan, const AspWanDetails& details)
{
    return QLatin1String("Instance:") + wan + QLatin1String("\tConnection Type:") +
           details.connectionType + QLatin1String("\tEnabled:") +
           QLatin1String(details.enabled ? "true" : "false") + QLatin1String("\tType:") +
           details.linkType + QLatin1String("\tLocal IP:") + details.localIp;
}

} // namespace

AspWanDetails AspWanSettingsFacade::getWanDetails(const QString& wan, AspWebAppErrorCodes& error)
{
    AspWanDetails details;
    fetch(
        *this, error, wanCall(&WanSettingsImplementor::getWanDetails, wan),
        [&](const ParamMap& reply) {
            readDetails(details, wan, reply);
            details.dslLinkTypes = fetchLinkTypes(*this, wan, wire::dsl);
            details.ethLinkTypes = fetchLinkTypes(*this, wan, QStringLiteral("eth"));
            logDebug(QLatin1String("AspWanSettingsFacade::getWanDetails -> WAN Details:") +
                     listing(wan, details));
        },
        "AspWanSettingsFacade::getWanDetails -> Failed to fetch WAN details!");
    return details;
}

} // namespace quorvel
