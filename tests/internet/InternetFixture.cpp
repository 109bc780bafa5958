#include "internet/InternetFixture.h"

namespace quorvel::test
{

namespace
{

template <typename... Fields>
QString barred(const Fields&... fields)
{
    return QStringList{shown(fields)...}.join(QLatin1Char('|'));
}

} // namespace

QString shown(const QString& text)
{
    return text;
}

QString shown(AspAnnexMode annex)
{
    return QString::number(annex);
}

QString shown(AspRfc2684Encapsulation encapsulation)
{
    return QString::number(encapsulation);
}

// Taken apart by position: the order of the fields is part of a record.

QString shown(const AspPppoxSettings& record)
{
    const auto& [type, username, password, mtu, interval, failure, ondemand, idle] = record;
    return barred(type, username, password, mtu, interval, failure, ondemand, idle);
}

QString shown(const AspPppoxState& record)
{
    const auto& [status, interface, localIp, remoteIp, dns1, dns2, session, device] = record;
    return barred(status, interface, localIp, remoteIp, dns1, dns2, session, device);
}

QString shown(const AspRussianPppoxSettings& record)
{
    const auto& [username, password, reserved, useStatic] = record;
    return barred(username, password, reserved, useStatic);
}

QString shown(const AspVpnSettings& record)
{
    const auto& [server, username, password, type, reserved, useStatic] = record;
    return barred(server, username, password, type, reserved, useStatic);
}

QString shown(const AspDhcpSettings& record)
{
    const auto& [localIp, mask] = record;
    return barred(localIp, mask);
}

QString shown(const AspStaticSettings& record)
{
    const auto& [ip, mask, gateway, dns1, dns2] = record;
    return barred(ip, mask, gateway, dns1, dns2);
}

QString shown(const AspWanVlanSettings& record)
{
    const auto& [name, vlanid, port] = record;
    return barred(name, vlanid, port);
}

QString shown(const AspPvcSettings& record)
{
    const auto& [vpi, vci, trafficClass, pcr, scr, mbs, vlanid] = record;
    return barred(vpi, vci, trafficClass, pcr, scr, mbs, vlanid);
}

QString shown(const AspDslStatus& record)
{
    const auto& [training, mode, channel, trellis, line] = record;
    return barred(training, mode, channel, trellis, line);
}

AspAdslSettings hostConnection(const char* linkType)
{
    return {text("pppox-1"),
            text("rfc2684-2"),
            text("vlan-0"),
            text("pvc-4"),
            text("dhcpc-8"),
            text("vpn-6"),
            text("l2tp-7"),
            text("static-5"),
            text("bridge-3"),
            text("wan_vlan-9"),
            text(linkType),
            {text("vlan name"), text("101"), text("vlan port")},
            {text("ppp type"), text("ppp user"), text("ppp password"), text("ppp mtu"),
             text("ppp interval"), text("ppp failure"), text("ppp ondemand"), text("ppp idle")},
            {text("1"), text("32"), text("pvc class"), text("pvc pcr"), text("pvc scr"),
             text("pvc mbs"), text("102")},
            {text("vpn server"), text("vpn user"), text("vpn password"), text("vpn type"), false,
             false},
            {text("l2tp server"), text("l2tp user"), text("l2tp password"), text("l2tp type"),
             false, false},
            {text("192.0.2.10"), text("255.255.255.0"), text("192.0.2.1"), text("198.51.100.1"),
             text("198.51.100.2")},
            {text("russian user"), text("russian password"), false, false},
            {text("192.0.2.77"), text("255.255.0.0")},
            AspAnnexAB,
            AspAnnexB};
}

} // namespace quorvel::test
