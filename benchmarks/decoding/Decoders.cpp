#include "decoding/Decoders.h"

#include <quorvel/QuorvelApi1.h>

#include <QStringList>
#include <functional>

namespace quorvel::bench
{

namespace
{

using Replies = std::vector<ParamMap>;

/// The names of an item's entries; "%1" stands for its number, and for that in values as well.
using Item = std::initializer_list<std::pair<const char*, const char*>>;

ParamMap items(int entries, const Item& item)
{
    ParamMap reply{{QStringLiteral("response"), QStringLiteral("1.0.1")}};
    const int count = entries / static_cast<int>(item.size());
    for (int i = 0; i < count; ++i) {
        for (const auto& [name, value] : item) {
            const QString number = QString::number(i);
            reply.insert(QString::fromLatin1(name).replace(QLatin1String("%1"), number),
                         QString::fromLatin1(value).replace(QLatin1String("%1"), number));
        }
    }
    return reply;
}

Replies names(int entries)
{
    return {items(entries, {{"devmgr-0.mngr%1", "manager%1"}})};
}

/// The few entries of a record among many others.
Replies record(int entries)
{
    ParamMap reply = names(entries).front();
    for (const char* const entry :
         {"wan-0.settings.type", "wan-0.settings.username", "wan-0.settings.ip",
          "wan-0.state.status", "wan-0.status.mode", "wan-0.server", "wan-0.localip", "wan-0.name",
          "wan-0.vpi", "wireless_ap-0.ssid", "wireless-0.ap0_ssid", "warranty-0.token"})
        reply.insert(QString::fromLatin1(entry), QStringLiteral("8"));
    return {reply};
}

/// The WANs of a gateway, and what lies below each.
Replies wans(int entries)
{
    return {items(entries / 2, {{"devmgr-0.wan%1", "wan-%1"}}),
            items(entries / 2, {{"wan-%1.l2type", "dsl"}})};
}

/// The instances that share the disks, and their texts, among many other entries.
Replies sharing(int entries)
{
    ParamMap reply = names(entries).front();
    reply.insert(QStringLiteral("devmgr-0.conn.inst0"), QStringLiteral("conn-0"));
    reply.insert(QStringLiteral("devmgr-0.samba_mngr.inst0"), QStringLiteral("samba_mngr-0"));
    reply.insert(QStringLiteral("conn-0.hostname"), QStringLiteral("attic"));
    return {reply};
}

Replies clients(int entries)
{
    return {items(entries, {{"dhcps-0.client%1.mac", "00:16:3e:%1"},
                            {"dhcps-0.client%1.hostname", "host%1"},
                            {"dhcps-0.client%1.ip", "192.0.2.%1"}})};
}

Replies leases(int entries)
{
    return {items(entries, {{"dhcps-0.lease%1.mac", "00:16:3e:%1"},
                            {"dhcps-0.lease%1.name", "host%1"},
                            {"dhcps-0.lease%1.ip", "192.0.2.%1"}})};
}

Replies tunnels(int entries)
{
    return {items(entries, {{"wan-0.entities.vpn%1", "vpn-%1"}})};
}

Replies modem(int entries)
{
    return {items(entries, {{"wan-0.prefmodelist%1", "mode%1"}})};
}

Replies devices(int entries)
{
    ParamMap reply = items(entries, {{"usbhost_mngr-0.Type%1", "0"},
                                     {"usbhost_mngr-0.Name%1", "disk%1"},
                                     {"usbhost_mngr-0.DeviceId%1", "sd%1"},
                                     {"usbhost_mngr-0.Size%1", "%1"},
                                     {"usbhost_mngr-0.FreeSpace%1", "%1"},
                                     {"usbhost_mngr-0.Status%1", "1"}});
    reply.insert(QStringLiteral("usbhost_mngr-0.DeviceCount"), QString::number(entries / 6));
    return {reply};
}

Replies lines(int entries)
{
    const ParamMap list = items(entries / 5, {{"voice-0.line%1", "%1"}});
    const ParamMap accounts = items(
        entries, {{"voice-0.Voip_Status_%1", "1"},
                  {"voice-0.User_Name_%1", "user%1"},
                  {"voice-0.Phone_Number_%1", "%1"},
                  {"voice-0.VoiceService.VoiceProfile.Line[%1].SIP.URI", "sip:%1@example.net"},
                  {"voice-0.VoiceService.VoiceProfile.Line[%1].Enable", "1"}});
    return {list, accounts, {{QStringLiteral("response"), QStringLiteral("1.0.1")}}};
}

/// A call log of so many calls, in pages of 20.
Replies calls(int entries)
{
    const ParamMap page = items(20 * 6, {{"voice-0.time%1", "20240131 093000"},
                                         {"voice-0.duration%1", "5"},
                                         {"voice-0.destination%1", "%1"},
                                         {"voice-0.callerid%1", "%1"},
                                         {"voice-0.callType%1", "1"},
                                         {"voice-0.status%1", "1"}});
    Replies replies(static_cast<std::size_t>(entries / 20 + 2), page);
    replies.front() = {{QStringLiteral("voice-0.numcallentries:"), QString::number(entries)}};
    return replies;
}

Replies stations(int entries)
{
    return {items(entries, {{"wireless_ap-0.station%1.sta_mac", "00:16:3e:%1"}})};
}

Replies meshLinks(int entries)
{
    const int count = entries / 2;
    Replies replies{items(count, {{"devmgr-0.wireless_wds.inst%1", "wireless_wds-%1"}})};
    for (int i = 0; i < count; ++i) {
        const QString link = QStringLiteral("wireless_wds-%1.").arg(i);
        replies.push_back({{link + QLatin1String("mac"), QStringLiteral("00:16:3e:5d:00:12")},
                           {link + QLatin1String("enabled"), QStringLiteral("1")}});
    }
    return replies;
}

/// A radio whose one transmit mode knows so many security modes.
Replies securityModes(int entries)
{
    QStringList modes;
    for (int i = 0; i < entries; ++i)
        modes.append(QStringLiteral("\"%1\":{\"show\":1}").arg(i));
    return {{{QStringLiteral("wireless-0.wireless_capabilities"),
              QStringLiteral("{\"band\":{\"2400\":{\"modes\":{\"g\":{\"securityModes\":{%1}}}}}}x")
                  .arg(modes.join(QLatin1Char(',')))},
             {QStringLiteral("wireless-0.txmode"), QStringLiteral("g")}}};
}

Replies capabilities(int entries)
{
    QString channels;
    for (int i = 0; i < entries; ++i)
        channels += QStringLiteral("%1\"%2\":{\"show\":1,\"dfs\":0,\"freqVal\":2412}")
                        .arg(QLatin1String(i == 0 ? "" : ","), QString::number(i));
    return {{{QStringLiteral("wireless-0.wireless_capabilities"),
              QStringLiteral("{\"band\":{\"2400\":{\"channels\":{%1}}}}x").arg(channels)}}};
}

template <typename Facade, typename Operation>
auto ask(const boost::shared_ptr<Cpe>& gateway, Operation operation)
{
    Facade facade(gateway);
    AspWebAppErrorCodes error;
    return operation(facade, error);
}

using Gateway = boost::shared_ptr<Cpe>;
using General = AspGeneralSettingsFacade;
using Wan = AspWanSettingsFacade;
using Internet = AspAdslSettingsFacade;

const QString wan = QStringLiteral("wan-0");

/// Asks for a record of an instance; one if the field was decoded.
template <auto operation, auto field>
int connectionField(const Gateway& gateway)
{
    return ask<Internet>(gateway, [](auto& f, auto& error) {
        return (std::invoke(operation, f, wan, error).*field).size();
    });
}

/// The radio of a newer gateway, which knows its capabilities.
template <typename Operation>
int askNewerRadio(const Gateway& gateway, Operation operation)
{
    return ask<AspWirelessSettingsFacadeNG>(gateway, [&](auto& f, auto& error) {
        f.setManager(QStringLiteral("wireless-0"));
        return operation(f, error);
    });
}

const std::vector<Decoder> table = {
    {"getManagerList", names,
     [](const Gateway& gateway) {
         return ask<General>(gateway,
                             [](auto& f, auto& error) { return f.getManagerList(error).size(); });
     },
     1},
    {"getStaticClientList", clients,
     [](const Gateway& gateway) {
         return ask<General>(
             gateway, [](auto& f, auto& error) { return f.getStaticClientList(error).size(); });
     },
     3},
    {"getDynamicClientList", leases,
     [](const Gateway& gateway) {
         return ask<General>(
             gateway, [](auto& f, auto& error) { return f.getDynamicClientList(error).size(); });
     },
     3},
    {"getWanList", names,
     [](const Gateway& gateway) {
         return ask<Wan>(gateway, [](auto& f, auto& error) { return f.getWanList(error).size(); });
     },
     1},
    {"getWanDetails", tunnels,
     [](const Gateway& gateway) {
         return ask<Wan>(gateway, [](auto& f, auto& error) {
             return f.getWanDetails(wan, error).vpnInstances.size();
         });
     },
     1},
    {"get3GSettings", modem,
     [](const Gateway& gateway) {
         return ask<Wan>(gateway, [](auto& f, auto& error) {
             return f.get3GSettings(wan, wan, error).prefModeList.size();
         });
     },
     1},
    {"getUsbHostDevices", devices,
     [](const Gateway& gateway) {
         return ask<AspUsbHostSettingsFacade>(
             gateway, [](auto& f, auto& error) { return f.getUsbHostDevices(error).disks.size(); });
     },
     6},
    {"getVoipAccounts", lines,
     [](const Gateway& gateway) {
         return ask<AspVoipSettingsFacade>(gateway, [](auto& f, auto& error) {
             return f.getVoipAccounts(error).accounts.size();
         });
     },
     5},
    {"getVoipCallHistory", calls,
     [](const Gateway& gateway) {
         return ask<AspVoipSettingsFacade>(gateway, [](auto& f, auto& error) {
             AspVoipCallHistoryFilter filter;
             filter.callType = 3;
             return f.getVoipCallHistory(filter, error).size() - 1; // one past the end
         });
     },
     1},
    {"getWirelessClientMacList", stations,
     [](const Gateway& gateway) {
         return ask<AspWirelessSettingsFacade>(gateway, [](auto& f, auto& error) {
             return f.getWirelessClientMacList(error).size() + 1; // number 0 isn't asked for
         });
     },
     1},
    {"getWirelessMeshInstances", meshLinks,
     [](const Gateway& gateway) {
         return ask<AspWirelessSettingsFacade>(gateway, [](auto& f, auto& error) {
             return f.getWirelessMeshInstances(error).size();
         });
     },
     2},
    {"getWirelessCapabilities", capabilities,
     [](const Gateway& gateway) {
         return askNewerRadio(gateway, [](auto& f, auto& error) {
             f.getWirelessCapabilities(error);
             return error == AspWebAppNoError ? 1 : 0;
         });
     },
     0},
    {"getSupportSecurityModes", securityModes,
     [](const Gateway& gateway) {
         return askNewerRadio(gateway, [](auto& f, auto& error) {
             f.getWirelessCapabilities(error);
             return f.getSupportSecurityModes(0).size();
         });
     },
     1},
    {"getManagerInstanceList", names,
     [](const Gateway& gateway) {
         return ask<General>(gateway, [](auto& f, auto& error) {
             return f.getManagerInstanceList(QStringLiteral("manager"), error).size();
         });
     },
     1},
    {"getWirelessCoreList", names,
     [](const Gateway& gateway) {
         return ask<General>(
             gateway, [](auto& f, auto& error) { return f.getWirelessCoreList(error).size(); });
     },
     1},
    {"getWanList of each kind", wans,
     [](const Gateway& gateway) {
         return ask<Wan>(gateway, [](auto& f, auto& error) {
             QList<QString> dsl;
             QList<QString> ethernet;
             f.getWanList(dsl, ethernet, error);
             return dsl.size();
         });
     },
     2, Requests::LeftOut},
    {"getPppoxSettings", record,
     &connectionField<&Internet::getPppoxSettings, &AspPppoxSettings::type>, 0},
    {"getPppoxState", record, &connectionField<&Internet::getPppoxState, &AspPppoxState::status>,
     0},
    {"getRussianPppoxSettings", record,
     &connectionField<&Internet::getRussianPppoxSettings, &AspRussianPppoxSettings::username>, 0},
    {"getVpnSettings", record, &connectionField<&Internet::getVpnSettings, &AspVpnSettings::server>,
     0},
    {"getDhcpSettings", record,
     &connectionField<&Internet::getDhcpSettings, &AspDhcpSettings::localIp>, 0},
    {"getStaticSettings", record,
     &connectionField<&Internet::getStaticSettings, &AspStaticSettings::ip>, 0},
    {"getWanVlanSettings", record,
     &connectionField<&Internet::getWanVlanSettings, &AspWanVlanSettings::name>, 0},
    {"getPvcSettings", record, &connectionField<&Internet::getPvcSettings, &AspPvcSettings::vpi>,
     0},
    {"getDslState", record, &connectionField<&Internet::getDslState, &AspDslStatus::mode>, 0},
    {"getWarrantyInformation", record,
     [](const Gateway& gateway) {
         return ask<General>(gateway, [](auto& f, auto& error) {
             return f.getWarrantyInformation(error).token.size();
         });
     },
     0},
    {"getUsbHostAdvancedSettings", sharing,
     [](const Gateway& gateway) {
         return ask<AspUsbHostSettingsFacade>(gateway, [](auto& f, auto& error) {
             return f.getUsbHostAdvancedSettings(error).hostName.size();
         });
     },
     0},
    {"getWirelessSettings of a newer radio", record,
     [](const Gateway& gateway) {
         return askNewerRadio(gateway, [](auto& f, auto& error) {
             return f.getWirelessSettings(error).ssid.size();
         });
     },
     0},
    {"getWirelessSettings", record,
     [](const Gateway& gateway) {
         return ask<AspWirelessSettingsFacade>(gateway, [](auto& f, auto& error) {
             return f.getWirelessSettings(error).ssid.size();
         });
     },
     0}};

} // namespace

const std::vector<Decoder>& decoders()
{
    return table;
}

} // namespace quorvel::bench
