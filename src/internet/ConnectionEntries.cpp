#include "internet/ConnectionEntries.h"

#include "internet/AnnexWords.h"
#include "internet/ConnectionKeys.h"
#include "internet/InternetKeys.h"

#include <QVector>
#include <utility>

namespace quorvel
{

using namespace wire;

namespace
{

using Entry = std::pair<QString, QString>;
using Entries = QVector<Entry>;

/// A host's connection, and the entries that several link types have in common.
struct Source {
    QString wan;
    QString dsl;
    const AspAdslSettings& s;

    Entry linkType() const { return {replyKey(wan, type), s.linkType}; }

    Entry entity(const QString& kind, const QString& instance) const
    {
        return {entityKey(wan, kind), instance};
    }

    Entries ppp() const
    {
        return {{settingKey(s.pppoxInstance, type), s.pppoxSettings.type},
                {settingKey(s.pppoxInstance, username), s.pppoxSettings.username},
                {settingKey(s.pppoxInstance, password), s.pppoxSettings.password}};
    }

    Entries tunnel(const QString& instance, const AspVpnSettings& tunnel) const
    {
        return {{settingKey(instance, tunnelServer), tunnel.server},
                {settingKey(instance, tunnelUsername), tunnel.username},
                {settingKey(instance, tunnelPassword), tunnel.password}};
    }

    Entries vlan() const
    {
        // Unlike the entities, the VLAN is named by the WAN itself.
        return {{replyKey(wan, wanVlan), s.wanVlanInstance},
                {replyKey(s.wanVlanInstance, vlanid), s.wanVlanSettings.vlanid}};
    }

    Entries addresses(bool wanted = true) const
    {
        if (!wanted)
            return {};
        return {entity(staticAddress, s.staticInstance),
                {settingKey(s.staticInstance, staticIp), s.staticSettings.ip},
                {settingKey(s.staticInstance, staticMask), s.staticSettings.mask},
                {settingKey(s.staticInstance, staticGateway), s.staticSettings.gateway},
                {settingKey(s.staticInstance, staticDns1), s.staticSettings.dns1},
                {settingKey(s.staticInstance, staticDns2), s.staticSettings.dns2}};
    }
};

Entry isEnabled(const QString& instance)
{
    return {replyKey(instance, enabled), QStringLiteral("1")};
}

Entries pppOverDsl(const Source& c)
{
    return Entries{c.entity(pppox, c.s.pppoxInstance),
                   c.entity(rfc2684, c.s.rfc2684Instance),
                   // Without an instance in front, and read by nobody.
                   {vlanid, c.s.vlanInstance},
                   c.entity(pvc, c.s.pvcInstance),
                   c.linkType()}
           << c.ppp()
           << Entries{{replyKey(c.s.pvcInstance, vpi), c.s.pvcSettings.vpi},
                      {replyKey(c.s.pvcInstance, vci), c.s.pvcSettings.vci},
                      {replyKey(c.s.pvcInstance, vlanid), c.s.pvcSettings.vlanid},
                      {replyKey(c.dsl, annexes), annexWord(c.s.supportedAnnexMode)},
                      {replyKey(c.dsl, annex), annexWord(c.s.currentAnnexMode)}};
}

Entries vpnOverDsl(const Source& c)
{
    return Entries{c.linkType(), c.entity(vpn, c.s.vpnInstance)}
           << c.tunnel(c.s.vpnInstance, c.s.vpnSettings)
           << Entry{settingKey(c.s.vpnInstance, type), c.s.vpnSettings.type}
           << c.addresses(c.s.vpnSettings.useStatic);
}

Entries l2tpOverDsl(const Source& c)
{
    return Entries{c.linkType(), c.entity(l2tp, c.s.l2tpInstance)}
           << c.tunnel(c.s.l2tpInstance, c.s.l2tpSettings)
           << c.addresses(c.s.l2tpSettings.useStatic);
}

Entries russianPppoeOverDsl(const Source& c)
{
    return Entries{c.linkType(), c.entity(pppox, c.s.pppoxInstance), isEnabled(c.s.pppoxInstance)}
           << c.ppp() << c.addresses(c.s.russianPppoxSettings.useStatic);
}

Entries dhcpOverDsl(const Source& c)
{
    return {c.linkType(), c.entity(dhcpc, c.s.dhcpcInstance)};
}

Entries bridgeOverAnything(const Source& c)
{
    return {c.linkType(), c.entity(bridge, c.s.bridgeInstance)};
}

Entries staticOverDsl(const Source& c)
{
    return Entries{c.linkType()} << c.addresses();
}

/// A tunnel over Ethernet, whose type is fixed.
Entries tunnelOverEthernet(const Source& c, const QString& kind, const QString& instance,
                           const QString& tunnelType, const AspVpnSettings& tunnel)
{
    return Entries{c.linkType(),
                   c.entity(kind, instance),
                   isEnabled(instance),
                   {settingKey(instance, type), tunnelType}}
           << c.tunnel(instance, tunnel) << c.vlan() << c.entity(dhcpc, c.s.dhcpcInstance)
           << c.addresses(tunnel.useStatic);
}

Entries vpnOverEthernet(const Source& c)
{
    return tunnelOverEthernet(c, vpn, c.s.vpnInstance, QStringLiteral("pptp"), c.s.vpnSettings);
}

Entries l2tpOverEthernet(const Source& c)
{
    return tunnelOverEthernet(c, l2tp, c.s.l2tpInstance, QStringLiteral("l2tp"), c.s.l2tpSettings);
}

Entries russianPppoeOverEthernet(const Source& c)
{
    return russianPppoeOverDsl(c) << c.vlan();
}

Entries pppoeOverEthernet(const Source& c)
{
    return Entries{c.linkType(), c.entity(pppox, c.s.pppoxInstance)} << c.ppp() << c.vlan();
}

Entries dhcpOverEthernet(const Source& c)
{
    return dhcpOverDsl(c) << c.vlan();
}

Entries staticOverEthernet(const Source& c)
{
    return c.vlan() << c.linkType() << c.addresses();
}

/// A link type, and the entries that describe a connection of that type.
struct LinkType {
    QLatin1String name;
    Entries (*entries)(const Source& source);
};

const LinkType dslLinkTypes[] = {{pppoa, &pppOverDsl},
                                 {pppoe, &pppOverDsl},
                                 {vpn, &vpnOverDsl},
                                 {l2tp, &l2tpOverDsl},
                                 {russianPppoe, &russianPppoeOverDsl},
                                 {dhcp, &dhcpOverDsl},
                                 {bridge, &bridgeOverAnything},
                                 {staticAddress, &staticOverDsl}};

const LinkType ethernetLinkTypes[] = {{vpn, &vpnOverEthernet},
                                      {l2tp, &l2tpOverEthernet},
                                      {russianPppoe, &russianPppoeOverEthernet},
                                      {pppoe, &pppoeOverEthernet},
                                      {bridge, &bridgeOverAnything},
                                      {dhcp, &dhcpOverEthernet},
                                      {staticAddress, &staticOverEthernet}};

template <typename LinkTypes>
ParamMap entriesOf(const Source& source, const LinkTypes& linkTypes)
{
    ParamMap map;
    for (const LinkType& linkType : linkTypes) {
        if (source.s.linkType != linkType.name)
            continue;
        for (const auto& [key, value] : linkType.entries(source))
            map.insert(key, value);
        break;
    }
    return map;
}

} // namespace

ParamMap entriesOverDsl(const QString& wan, const QString& dsl, const AspAdslSettings& settings)
{
    return entriesOf({wan, dsl, settings}, dslLinkTypes);
}

ParamMap entriesOverEthernet(const QString& wan, const AspAdslSettings& settings)
{
    return entriesOf({wan, QString(), settings}, ethernetLinkTypes);
}

} // namespace quorvel
