#include "Connection.h"

namespace quorvelctl
{

using namespace quorvel;

namespace
{

const int pppWithType = Ppp | PppType;
const int tunnelled = DhcpClient | Vlan;

const LinkType linkTypes[] = {
    {"pppoe", Ppp, Ppp | Line, Ppp | Vlan},
    {"pppoa", Ppp, Ppp | Line, LinkType::unknown},
    {"russian_pppoe", pppWithType | Addresses, pppWithType, pppWithType | Vlan},
    {"vpn", Vpn | DhcpClient | Addresses, 0, Vpn | tunnelled},
    {"l2tp", L2tp | DhcpClient | Addresses, 0, L2tp | tunnelled},
    {"dhcp", DhcpClient, 0, Vlan},
    {"bridge", 0, 0, 0},
    {"static", Addresses, Addresses, Addresses | Vlan}};

using C = Connection&;

const std::vector<ConnectionText> texts{
    {"pppox-instance", "PPP entity", Ppp, Use::Needed,
     [](C c) -> QString& { return c.settings.pppoxInstance; }},
    {"pppox-type", "PPP type", PppType, Use::Needed,
     [](C c) -> QString& { return c.settings.pppoxSettings.type; }},
    {"pppox-username", "PPP user name", Ppp, Use::Needed,
     [](C c) -> QString& { return c.settings.pppoxSettings.username; }},
    {"pppox-password", "PPP password", Ppp, Use::Secret,
     [](C c) -> QString& { return c.settings.pppoxSettings.password; }},
    {"pppox-mtu", "PPP MTU", Ppp, Use::Shown,
     [](C c) -> QString& { return c.settings.pppoxSettings.mtu; }},
    {"pppox-lcp-echo-interval", "LCP echo interval", Ppp, Use::Shown,
     [](C c) -> QString& { return c.settings.pppoxSettings.lcpEchoInterval; }},
    {"pppox-lcp-echo-failure", "LCP echo failures", Ppp, Use::Shown,
     [](C c) -> QString& { return c.settings.pppoxSettings.lcpEchoFailure; }},
    {"pppox-ondemand", "on demand", Ppp, Use::Shown,
     [](C c) -> QString& { return c.settings.pppoxSettings.ondemand; }},
    {"pppox-idle", "idle time", Ppp, Use::Shown,
     [](C c) -> QString& { return c.settings.pppoxSettings.idle; }},
    {"pppox-status", "PPP status", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.status; }},
    {"pppox-interface", "PPP interface", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.interface; }},
    {"pppox-local-ip", "local IP address", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.localIP; }},
    {"pppox-remote-ip", "remote IP address", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.remoteIP; }},
    {"pppox-primary-dns", "primary DNS", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.primaryDNS; }},
    {"pppox-secondary-dns", "secondary DNS", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.secondaryDNS; }},
    {"pppox-session-id", "PPP session", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.sessionId; }},
    {"pppox-nas-device", "PPP device", Ppp, Use::Shown,
     [](C c) -> QString& { return c.pppoxState.nasDevice; }},
    {"vpn-instance", "VPN entity", Vpn, Use::Needed,
     [](C c) -> QString& { return c.settings.vpnInstance; }},
    {"vpn-type", "VPN type", Vpn, Use::Shown,
     [](C c) -> QString& { return c.settings.vpnSettings.type; }},
    {"vpn-server", "VPN server", Vpn, Use::Needed,
     [](C c) -> QString& { return c.settings.vpnSettings.server; }},
    {"vpn-username", "VPN user name", Vpn, Use::Needed,
     [](C c) -> QString& { return c.settings.vpnSettings.username; }},
    {"vpn-password", "VPN password", Vpn, Use::Secret,
     [](C c) -> QString& { return c.settings.vpnSettings.password; }},
    {"l2tp-instance", "L2TP entity", L2tp, Use::Needed,
     [](C c) -> QString& { return c.settings.l2tpInstance; }},
    {"l2tp-type", "L2TP type", L2tp, Use::Shown,
     [](C c) -> QString& { return c.settings.l2tpSettings.type; }},
    {"l2tp-server", "L2TP server", L2tp, Use::Needed,
     [](C c) -> QString& { return c.settings.l2tpSettings.server; }},
    {"l2tp-username", "L2TP user name", L2tp, Use::Needed,
     [](C c) -> QString& { return c.settings.l2tpSettings.username; }},
    {"l2tp-password", "L2TP password", L2tp, Use::Secret,
     [](C c) -> QString& { return c.settings.l2tpSettings.password; }},
    {"dhcpc-instance", "DHCP client entity", DhcpClient, Use::Optional,
     [](C c) -> QString& { return c.settings.dhcpcInstance; }},
    {"dhcp-local-ip", "DHCP address", DhcpClient, Use::Shown,
     [](C c) -> QString& { return c.settings.dhcpSettings.localIp; }},
    {"dhcp-network-mask", "DHCP network mask", DhcpClient, Use::Shown,
     [](C c) -> QString& { return c.settings.dhcpSettings.networkMask; }},
    {"static-instance", "static address entity", Addresses, Use::Needed,
     [](C c) -> QString& { return c.settings.staticInstance; }},
    {"static-ip", "static IP address", Addresses, Use::Needed,
     [](C c) -> QString& { return c.settings.staticSettings.ip; }, Form::Address},
    {"static-mask", "network mask", Addresses, Use::Needed,
     [](C c) -> QString& { return c.settings.staticSettings.mask; }, Form::Address},
    {"static-gateway", "next gateway", Addresses, Use::Optional,
     [](C c) -> QString& { return c.settings.staticSettings.gateway; }, Form::Address},
    {"static-dns1", "first DNS server", Addresses, Use::Optional,
     [](C c) -> QString& { return c.settings.staticSettings.dns1; }, Form::Address},
    {"static-dns2", "second DNS server", Addresses, Use::Optional,
     [](C c) -> QString& { return c.settings.staticSettings.dns2; }, Form::Address},
    {"wan-vlan-instance", "VLAN entity", Vlan, Use::Optional,
     [](C c) -> QString& { return c.settings.wanVlanInstance; }},
    {"wan-vlan-name", "VLAN name", Vlan, Use::Shown,
     [](C c) -> QString& { return c.settings.wanVlanSettings.name; }},
    {"wan-vlan-port", "VLAN port", Vlan, Use::Shown,
     [](C c) -> QString& { return c.settings.wanVlanSettings.port; }},
    {"wan-vlan-vlanid", "VLAN number", Vlan, Use::Optional,
     [](C c) -> QString& { return c.settings.wanVlanSettings.vlanid; }, Form::Number},
    {"pvc-instance", "PVC entity", Line, Use::Optional,
     [](C c) -> QString& { return c.settings.pvcInstance; }},
    {"pvc-vpi", "VPI", Line, Use::Optional,
     [](C c) -> QString& { return c.settings.pvcSettings.vpi; }, Form::Number},
    {"pvc-vci", "VCI", Line, Use::Optional,
     [](C c) -> QString& { return c.settings.pvcSettings.vci; }, Form::Number},
    {"pvc-vlanid", "PVC VLAN number", Line, Use::Optional,
     [](C c) -> QString& { return c.settings.pvcSettings.vlanid; }, Form::Number},
    {"pvc-traffic-class", "traffic class", Line, Use::Shown,
     [](C c) -> QString& { return c.settings.pvcSettings.trafficClass; }},
    {"pvc-pcr", "peak cell rate", Line, Use::Shown,
     [](C c) -> QString& { return c.settings.pvcSettings.pcr; }},
    {"pvc-scr", "sustained cell rate", Line, Use::Shown,
     [](C c) -> QString& { return c.settings.pvcSettings.scr; }},
    {"pvc-mbs", "maximum burst size", Line, Use::Shown,
     [](C c) -> QString& { return c.settings.pvcSettings.mbs; }},
    {"rfc2684-instance", "RFC 2684 entity", Line, Use::Optional,
     [](C c) -> QString& { return c.settings.rfc2684Instance; }},
    {"rfc2684-encapsulation", "encapsulation", Line, Use::Shown,
     [](C c) -> QString& { return c.encapsulation; }},
    {"dsl-instance", "DSL line", Line, Use::Needed, [](C c) -> QString& { return c.dslInstance; }},
    {"supported-annex-mode", "annexes that it can use", Line, Use::Optional,
     [](C c) -> QString& { return c.supportedAnnexMode; }, Form::Annexes},
    {"current-annex-mode", "annex", Line, Use::Optional,
     [](C c) -> QString& { return c.currentAnnexMode; }, Form::Annex},
    {"dsl-training-status", "training", Line, Use::Shown,
     [](C c) -> QString& { return c.dslStatus.trainingStatus; }},
    {"dsl-mode", "DSL mode", Line, Use::Shown, [](C c) -> QString& { return c.dslStatus.mode; }},
    {"dsl-channel", "channel", Line, Use::Shown,
     [](C c) -> QString& { return c.dslStatus.channel; }},
    {"dsl-trellis", "trellis coding", Line, Use::Shown,
     [](C c) -> QString& { return c.dslStatus.trellis; }},
    {"dsl-line-status", "line", Line, Use::Shown,
     [](C c) -> QString& { return c.dslStatus.lineStatus; }}};

} // namespace

const LinkType* findLinkType(const QString& name)
{
    for (const LinkType& type : linkTypes) {
        if (name == QLatin1String(type.name))
            return &type;
    }
    return nullptr;
}

std::vector<std::string> linkTypesOver(Medium medium)
{
    std::vector<std::string> names;
    for (const LinkType& type : linkTypes) {
        if (type.written(medium) != LinkType::unknown)
            names.push_back(type.name);
    }
    return names;
}

const std::vector<ConnectionText>& connectionTexts()
{
    return texts;
}

QString heading(const ConnectionText& text)
{
    QString words = QString::fromLatin1(text.meaning);
    words[0] = words[0].toUpper();
    return words;
}

QString jsonKey(const ConnectionText& text)
{
    QString key;
    bool capital = false;
    for (const char* character = text.name; *character; ++character) {
        const QLatin1Char letter(*character);
        if (*character != '-')
            key += capital ? QChar(letter).toUpper() : QChar(letter);
        capital = *character == '-';
    }
    return key;
}

} // namespace quorvelctl
