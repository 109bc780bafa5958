#include "internet/WrittenConnection.h"

namespace quorvel::test
{

namespace
{

const Change completeConnection[] = {{"wan-3.entities.pppox", "pppox-1"},
                                     {"wan-3.entities.rfc2684", "rfc2684-2"},
                                     {"wan-3.entities.pvc", "pvc-4"},
                                     {"wan-3.entities.static", "static-5"},
                                     {"wan-3.entities.vpn", "vpn-6"},
                                     {"wan-3.entities.l2tp", "l2tp-7"},
                                     {"wan-3.entities.dhcpc", "dhcpc-8"},
                                     {"wan-3.entities.bridge", "bridge-10"},
                                     {"wan-3.wan_vlan", "wan_vlan-9"},
                                     {"dsl-1.annexes", "ab"},
                                     {"dsl-1.annex", "b"},
                                     {"pppox-1.enabled", "ppp enabled"},
                                     {"pppox-1.settings.type", "ppp type"},
                                     {"pppox-1.settings.username", "ppp user"},
                                     {"pppox-1.settings.password", "<ppp> & \"password\""},
                                     {"pvc-4.vpi", "1"},
                                     {"pvc-4.vci", "32"},
                                     {"pvc-4.vlanid", "102"},
                                     {"vpn-6.enabled", "vpn enabled"},
                                     {"vpn-6.settings.type", "vpn type"},
                                     {"vpn-6.settings.server", "vpn server"},
                                     {"vpn-6.settings.username-0", "vpn user"},
                                     {"vpn-6.settings.password-0", "vpn password"},
                                     {"l2tp-7.enabled", "l2tp enabled"},
                                     {"l2tp-7.settings.type", "l2tp type"},
                                     {"l2tp-7.settings.server", "l2tp server"},
                                     {"l2tp-7.settings.username-0", "l2tp user"},
                                     {"l2tp-7.settings.password-0", "l2tp password"},
                                     {"wan_vlan-9.vlanid", "101"},
                                     {"static-5.settings.ip", "192.0.2.10"},
                                     {"static-5.settings.mask", "255.255.255.0"},
                                     {"static-5.settings.gateway", "192.0.2.1"},
                                     {"static-5.settings.dns1", "198.51.100.1"},
                                     {"static-5.settings.dns2", "198.51.100.2"}};

void take(ParamMap& map, const Change& change)
{
    if (change.value)
        map.insert(text(change.key), text(change.value));
    else
        map.remove(text(change.key));
}

} // namespace

bool WrittenConnection::write(AdslSettingsImplementor& implementor, ParamMap& result) const
{
    ParamMap map;
    for (const Change& entry : completeConnection)
        take(map, entry);
    if (link == Link::Ethernet && !text(type).contains(text("pppoe")))
        map.remove(text("wan-3.entities.pppox"));
    map.insert(text("wan-3.type"), text(type));
    for (const Change& change : changes)
        take(map, change);
    if (link == Link::Dsl)
        return implementor.setAdslSettings(text("wan-3"), text("dsl-1"), map, result);
    return implementor.setEthSettings(text("wan-3"), map, result);
}

} // namespace quorvel::test
