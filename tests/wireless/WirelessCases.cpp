#include "wireless/WirelessCases.h"

namespace quorvel::test
{

namespace
{

using I = WirelessSettingsImplementor;
using Case = WirelessCase;

const QString core = text("wireless_core-7");
const QString ap = text("wireless_ap-7");
const QString radio = text("wireless-0");
const QString ap0 = text("ap0");

/// Settings of the older generation, with something under every key that could be written.
ParamMap olderSettings(const char* mode)
{
    return {{text("wireless_ap-0.ssid"), text("Home & Garden")},
            {text("wireless_ap-0.sec_mode"), text(mode)},
            {text("wireless_ap-0.wep_auth_type"), text("shared")},
            {text("wireless_ap-0.wep_key_type"), text("hex")},
            {text("wireless_ap-0.wep_key_index"), text("2")},
            {text("wireless_ap-0.wep_key"), text("0123456789")},
            {text("wireless_ap-0.wpa_password"), text("a secret")},
            {text("wireless_core-0.enabled"), text("1")}};
}

auto settingOlder(const char* mode)
{
    return
        [mode](I& i, ParamMap& r) { return i.setWirelessSettings(olderSettings(mode), core, r); };
}

auto settingNewer(const char* mode)
{
    return
        [mode](I& i, ParamMap& r) { return i.setWirelessSettings(newerSettings(mode), radio, r); };
}

} // namespace

ParamMap newerSettings(const char* mode)
{
    return {{text("wireless-0.ssid"), text("Home & Garden")},
            {text("wireless-0.security_mode"), text(mode)},
            {text("wireless-0.wep_auth_type"), text("shared")},
            {text("wireless-0.wep_key_type"), text("hex")},
            {text("wireless-0.wep_key_index"), text("2")},
            {text("wireless-0.wep_key"), text("0123456789")},
            {text("wireless-0.wpa_password"), text("a secret")},
            {text("wireless-0.enabled"), text("0")}};
}

std::vector<WirelessCase> olderRequests()
{
    return {
        {"checkWpsEnabledStatus",
         [](I& i, ParamMap& r) { return i.checkWpsEnabledStatus(r, core); }},
        {"checkWirelessStatus", [](I& i, ParamMap& r) { return i.checkWirelessStatus(r, core); }},
        {"setWpsEnabledStatusOn",
         [](I& i, ParamMap& r) { return i.setWpsEnabledStatus(r, true, core); }},
        {"setWpsEnabledStatusOff",
         [](I& i, ParamMap& r) { return i.setWpsEnabledStatus(r, false, core); }},
        {"getWpsRole", [](I& i, ParamMap& r) { return i.getWpsRole(r, core); }},
        {"isSecurityProxyEnabled",
         [](I& i, ParamMap& r) { return i.isSecurityProxyEnabled(r, core); }},
        {"getWirelessSettings",
         [](I& i, ParamMap& r) { return i.getWirelessSettings(ap, core, r); }},
        {"setWirelessSettingsWpaBoth", settingOlder("wpa_both")},
        {"setWirelessSettingsCapitalWpa2", settingOlder("WPA2")},
        {"setWirelessSettingsWep", settingOlder("wep")},
        {"setWirelessSettingsCapitalWep", settingOlder("WEP128")},
        {"setWirelessSettingsMixedWep", settingOlder("Wep")},
        {"setWirelessSettingsMixedWpa", settingOlder("Wpa")},
        {"setWirelessSettingsOff", settingOlder("off")},
        {"setWirelessSettingsWithoutValues",
         [](I& i, ParamMap& r) { return i.setWirelessSettings({}, core, r); }},
        {"getWirelessClientMacList",
         [](I& i, ParamMap& r) { return i.getWirelessClientMacList(ap, r); }},
        {"getWirelessMeshInstances", &I::getWirelessMeshInstances},
        {"getWirelessMeshInstanceInfo",
         [](I& i, ParamMap& r) {
             return i.getWirelessMeshInstanceInfo(text("wireless_wds-3"), core, r);
         }},
        {"getWirelessSecurityMode",
         [](I& i, ParamMap& r) { return i.getWirelessSecurityMode(ap, core, r); }}};
}

std::vector<WirelessCase> newerLockedRequests()
{
    return {
        {"checkWpsEnabledStatus",
         [](I& i, ParamMap& r) { return i.checkWpsEnabledStatus(r, radio); }},
        {"setWpsEnabledStatusOn",
         [](I& i, ParamMap& r) { return i.setWpsEnabledStatus(r, true, radio); }},
        {"setWpsEnabledStatusOff",
         [](I& i, ParamMap& r) { return i.setWpsEnabledStatus(r, false, radio); }},
        {"getWpsRole", [](I& i, ParamMap& r) { return i.getWpsRole(r, radio); }},
        {"isSecurityProxyEnabled",
         [](I& i, ParamMap& r) { return i.isSecurityProxyEnabled(r, radio); }},
        {"setWirelessSettingsWpaBoth", settingNewer("wpa_both")},
        {"setWirelessSettingsCapitalWpa2", settingNewer("WPA2")},
        {"setWirelessSettingsWep", settingNewer("wep")},
        {"setWirelessSettingsCapitalWep", settingNewer("WEP128")},
        {"setWirelessSettingsMixedWep", settingNewer("Wep")},
        {"setWirelessSettingsMixedWpa", settingNewer("Wpa")},
        {"setWirelessSettingsOff", settingNewer("off")},
        {"setWirelessSettingsWithoutValues",
         [](I& i, ParamMap& r) { return i.setWirelessSettings({}, radio, r); }},
        {"getWirelessClientMacList",
         [](I& i, ParamMap& r) { return i.getWirelessClientMacList(radio, r); }},
        {"getWirelessMeshInstanceInfo",
         [](I& i, ParamMap& r) { return i.getWirelessMeshInstanceInfo(text("wds2"), radio, r); }},
        {"getWirelessSecurityMode",
         [](I& i, ParamMap& r) { return i.getWirelessSecurityMode(ap0, radio, r); }},
        {"getWirelessCapabilities",
         [](I& i, ParamMap& r) { return i.getWirelessCapabilities(r, radio); }},
        {"getTxMode", [](I& i, ParamMap& r) { return i.getTxMode(r, radio); }}};
}

WirelessCase newerUnlockedRequest()
{
    return {"getWirelessSettings",
            [](I& i, ParamMap& r) { return i.getWirelessSettings(text("ap0"), radio, r); }};
}

} // namespace quorvel::test
