#include "operations/Operations.h"

namespace quorvel::test
{

namespace
{

using Asked = AskedGateway;

/// A connection in which everything is set that any link type writes. The entities that both WANs
/// have bear the WAN's own number.
AspAdslSettings connection(const char* linkType, const char* number)
{
    AspAdslSettings settings;
    settings.linkType = text(linkType);
    settings.pppoxInstance = text("pppox-") + text(number);
    settings.staticInstance = text("static-") + text(number);
    settings.rfc2684Instance = text("rfc2684-0");
    settings.pvcInstance = text("pvc-0");
    settings.vpnInstance = text("vpn-0");
    settings.l2tpInstance = text("l2tp-0");
    settings.dhcpcInstance = text("dhcpc-0");
    settings.wanVlanInstance = text("wan_vlan-0");
    settings.wanVlanSettings.vlanid = text("12");
    settings.pppoxSettings.type = text("pppoe");
    settings.pppoxSettings.username = text("ada");
    settings.pppoxSettings.password = text("new ppp secret");
    settings.pvcSettings.vpi = text("1");
    settings.pvcSettings.vci = text("32");
    settings.vpnSettings.server = text("192.0.2.99");
    settings.vpnSettings.username = text("ada");
    settings.vpnSettings.password = text("new vpn secret");
    settings.vpnSettings.useStatic = true;
    settings.l2tpSettings = settings.vpnSettings;
    settings.l2tpSettings.password = text("new l2tp secret");
    settings.russianPppoxSettings.password = text("unwritten ppp secret");
    settings.russianPppoxSettings.useStatic = true;
    settings.staticSettings = {text("198.51.100.77"), text("255.255.255.0"), text("198.51.100.1"),
                               text("192.0.2.53"), text("192.0.2.54")};
    settings.supportedAnnexMode = AspAnnexAB;
    settings.currentAnnexMode = AspAnnexB;
    return settings;
}

std::function<void(Asked&)> overDsl(const char* linkType)
{
    return calling(&Asked::internet, &AspAdslSettingsFacade::setAdslSettings, text("wan-0"),
                   text("dsl-0"), connection(linkType, "0"));
}

std::function<void(Asked&)> overEthernet(const char* linkType)
{
    return calling(&Asked::internet, &AspAdslSettingsFacade::setEthSettings, text("wan-1"),
                   connection(linkType, "1"));
}

AspWirelessSettings network(const char* mode)
{
    AspWirelessSettings settings;
    settings.ssid = text("Attic");
    settings.securityMode = text(mode);
    settings.wpaPassword = text("new wpa secret");
    settings.wpaRadiusKey = text("new radius secret");
    for (QString& key : settings.wepKeys)
        key = text("new wep secret");
    return settings;
}

Asp3GSettings modem()
{
    Asp3GSettings settings;
    settings.pin = text("new pin secret");
    settings.puk = text("new puk secret");
    settings.apn = text("mobile.example.net");
    settings.prefMode = 2;
    settings.force3g = true;
    return settings;
}

AspVoipAccount account()
{
    AspVoipAccount account;
    account.id = text("0");
    account.uri = text("5550199");
    account.authUserName = text("ada");
    account.authPassword = text("new sip secret");
    account.transmitGain = text("50");
    account.receiveGain = text("50");
    account.changed = true;
    return account;
}

AspUsbHostDevices sharing()
{
    AspUsbHostDevices devices;
    devices.advanced = {
        text("attic"), text("Attic disks"), text("ATTIC"), {text("conn-0"), text("samba_mngr-0")}};
    return devices;
}

/// Writes one network as a batch writes several: first its query, then all of them.
template <typename Facade>
void writeQuery(Facade& radio, AspWebAppErrorCodes& error)
{
    const QString query =
        radio.getWirelessSettingsQuery(AspWirelessEnabled, network("wpa_both"), error);
    radio.setWirelessQuery(query, error);
}

OperationsOfClass generalWrites()
{
    using F = AspGeneralSettingsFacade;
    const AspDeviceWarrantyInformation owner{
        text("Ada"),          text("ada@example.net"),  text("5550123"),
        text("token secret"), text("usertoken secret"), text("2024-01-31")};
    return {
        "AspGeneralSettingsFacade",
        {{"setCpeInternetModeAp2Router",
          calling(&Asked::general, &F::setCpeInternetModeAp2Router, text("ap"))},
         {"setCpePassword", calling(&Asked::general, &F::setCpePassword, text("new login secret"))},
         {"setDefaultGw",
          calling(&Asked::general, &F::setDefaultGw, text("route-0"), text("wan-0"))},
         {"setWarrantyInformation", calling(&Asked::general, &F::setWarrantyInformation, owner)},
         {"factoryDefault", calling(&Asked::general, &F::factoryDefault)}}};
}

OperationsOfClass internetWrites()
{
    return {"AspAdslSettingsFacade",
            {{"setAdslSettings pppoe", overDsl("pppoe")},
             {"setAdslSettings pppoa", overDsl("pppoa")},
             {"setAdslSettings vpn", overDsl("vpn")},
             {"setAdslSettings l2tp", overDsl("l2tp")},
             {"setAdslSettings russian_pppoe", overDsl("russian_pppoe")},
             {"setAdslSettings dhcp", overDsl("dhcp")},
             {"setAdslSettings bridge", overDsl("bridge")},
             {"setAdslSettings static", overDsl("static")},
             {"setEthSettings vpn", overEthernet("vpn")},
             {"setEthSettings l2tp", overEthernet("l2tp")},
             {"setEthSettings russian_pppoe", overEthernet("russian_pppoe")},
             {"setEthSettings pppoe", overEthernet("pppoe")},
             {"setEthSettings bridge", overEthernet("bridge")},
             {"setEthSettings dhcp", overEthernet("dhcp")},
             {"setEthSettings static", overEthernet("static")}}};
}

OperationsOfClass wanWrites()
{
    using F = AspWanSettingsFacade;
    const auto wan = &Asked::wan;
    return {"AspWanSettingsFacade",
            {{"addEntity", calling(wan, &F::addEntity, text("wan-1"), text("vpn"))},
             {"deleteEntity", calling(wan, &F::deleteEntity, text("wan-1"), text("vpn"))},
             {"addIface", calling(wan, &F::addIface, text("wan-1"), text("eth1"))},
             {"deleteIface", calling(wan, &F::deleteIface, text("wan-0"), text("eth0"))},
             {"enableWan", calling(wan, &F::enableWan, text("wan-0"))},
             {"disableWan", calling(wan, &F::disableWan, text("wan-1"))},
             {"switchConnectionType", calling(wan, &F::switchConnectionType, lines({"wan-0"}),
                                              lines({"wan-1"}), text("wan-0"))},
             {"set3GSettings",
              calling(wan, &F::set3GSettings, text("wan-2"), text("serial-0"), modem())}}};
}

OperationsOfClass olderRadioWrites()
{
    using F = AspWirelessSettingsFacade;
    const auto write = [](AspWirelessStatus status, const char* mode) {
        return calling(&Asked::older, &F::setWirelessSettings, status, network(mode));
    };
    return {"AspWirelessSettingsFacade",
            {{"setWpsEnabledStatus", calling(&Asked::older, &F::setWpsEnabledStatus, true)},
             {"setWirelessSettings wpa", write(AspWirelessEnabled, "wpa_both")},
             {"setWirelessSettings wep", write(AspWirelessDisabled, "wep")},
             {"setWirelessQuery", [](Asked& asked) { writeQuery(asked.older, asked.error); }}}};
}

OperationsOfClass newerRadioWrites()
{
    return {"AspWirelessSettingsFacadeNG",
            {{"setWirelessQuery", [](Asked& asked) { writeQuery(asked.newer, asked.error); }}}};
}

OperationsOfClass radioManagerWrites()
{
    const auto writeOne = [](Asked& asked) {
        asked.radios.setWirelessSettings(AspWirelessEnabled, network("wpa_both"), asked.error);
    };
    const auto writeBoth = [](Asked& asked) {
        asked.radios.setWirelessSettings({network("wpa_both"), network("wep")}, asked.error);
    };
    return {"AspWirelessSettingsFacadeManager",
            {{"setWirelessSettings one", writeOne}, {"setWirelessSettings both", writeBoth}}};
}

OperationsOfClass voiceWrites()
{
    using F = AspVoipSettingsFacade;
    const QList<AspVoipAccount> accounts{account()};
    return {"AspVoipSettingsFacade",
            {{"setVoipSettings",
              calling(&Asked::voice, &F::setVoipSettings, text("voice-0"), account())},
             {"setGainSettings",
              calling(&Asked::voice, &F::setGainSettings, text("voice-0"), accounts)}}};
}

OperationsOfClass usbHostWrites()
{
    using F = AspUsbHostSettingsFacade;
    return {"AspUsbHostSettingsFacade",
            {{"diskMount", calling(&Asked::usbHost, &F::diskMount, text("3"))},
             {"diskUnmount", calling(&Asked::usbHost, &F::diskUnmount, text("1"))},
             {"setUsbHostAdvancedSettings",
              calling(&Asked::usbHost, &F::setUsbHostAdvancedSettings, sharing())}}};
}

} // namespace

std::vector<OperationsOfClass> allWrites()
{
    return {generalWrites(),    internetWrites(),     wanWrites(),   olderRadioWrites(),
            newerRadioWrites(), radioManagerWrites(), voiceWrites(), usbHostWrites()};
}

} // namespace quorvel::test
