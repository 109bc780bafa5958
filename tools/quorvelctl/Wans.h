#pragma once

#include "Gateway.h"
#include "Output.h"

#include <QStringList>

namespace quorvelctl
{

/// The WAN objects of a gateway. Fails if it has none.
class Wans
{
public:
    explicit Wans(Gateway& gateway);

    quorvel::AspWanSettingsFacade& facade() { return *wanFacade; }

    QStringList names();
    /// Fails unless the gateway has all of these WANs: an unknown one is mostly written to without
    /// an error.
    void expect(const QStringList& wans);
    /// What an existing WAN is made of, without asking whether it exists.
    quorvel::AspWanDetails details(const QString& wan);
    /// The WAN that the routing has for the default gateway; empty if it has none.
    QString defaultWan();

private:
    Gateway& gateway;
    const boost::shared_ptr<quorvel::AspWanSettingsFacade> wanFacade;
};

/// How a WAN is doing.
Record stateOf(const QString& wan, const quorvel::AspWanDetails& details);

/// The one routing object that gateways have.
QString routeInstance();

} // namespace quorvelctl
