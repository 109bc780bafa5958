#include "decoding/Decoders.h"

#include <quorvel/QuorvelApi1.h>

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
    for (const char* const entry : {"wan-0.settings.type", "wan-0.vpi", "wireless_ap-0.ssid"})
        reply.insert(QString::fromLatin1(entry), QStringLiteral("8"));
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
         return ask<AspWirelessSettingsFacadeNG>(gateway, [](auto& f, auto& error) {
             f.setManager(QStringLiteral("wireless-0"));
             f.getWirelessCapabilities(error);
             return error == AspWebAppNoError ? 1 : 0;
         });
     },
     0},
    {"getPppoxSettings", record,
     [](const Gateway& gateway) {
         return ask<Internet>(gateway, [](auto& f, auto& error) {
             return f.getPppoxSettings(wan, error).type.size();
         });
     },
     0},
    {"getPvcSettings", record,
     [](const Gateway& gateway) {
         return ask<Internet>(
             gateway, [](auto& f, auto& error) { return f.getPvcSettings(wan, error).vpi.size(); });
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
