#include "Wans.h"

#include "Failure.h"
#include "Words.h"

namespace quorvelctl
{

using namespace quorvel;

Wans::Wans(Gateway& gateway) : gateway(gateway), wanFacade(gateway.object().getWanSettingsFacade())
{
    gateway.require(wanFacade, QStringLiteral("WAN objects"));
}

QStringList Wans::names()
{
    return gateway.askNames(QStringLiteral("list the WANs"),
                            [&](auto& error) { return facade().getWanList(error); });
}

void Wans::expect(const QStringList& wans)
{
    const QStringList existing = names();
    for (const QString& wan : wans) {
        if (!existing.contains(wan))
            throw Failure{GatewayFailed,
                          QStringLiteral("%1 has no WAN '%2', but %3")
                              .arg(gateway.address(), wan,
                                   existing.isEmpty() ? QStringLiteral("none")
                                                      : existing.join(QStringLiteral(", ")))};
    }
}

AspWanDetails Wans::details(const QString& wan)
{
    return gateway.ask(QLatin1String("read ") + wan,
                       [&](auto& error) { return facade().getWanDetails(wan, error); });
}

QString Wans::defaultWan()
{
    return gateway.ask(QStringLiteral("read the default WAN"),
                       [&](auto& error) { return facade().getDefaultWan(routeInstance(), error); });
}

Record stateOf(const QString& wan, const AspWanDetails& details)
{
    return {plainField("wan", "WAN", wan),
            plainField("connectionType", "Layer 2", details.connectionType),
            plainField("linkType", "Link type", details.linkType),
            plainField("enabled", "Enabled", details.enabled),
            plainField("isConnected", "Connected", details.isConnected),
            plainField("localIp", "IP address", details.localIp)};
}

QString routeInstance()
{
    return QStringLiteral("route-0");
}

} // namespace quorvelctl
