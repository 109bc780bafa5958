#include <quorvel/AspCpeFlyweightFactory.h>

#include "operations/Operations.h"

namespace quorvel::test
{

namespace
{

using Asked = AskedGateway;

OperationsOfClass factoryReads()
{
    using F = AspCpeFlyweightFactory;
    return {"AspCpeFlyweightFactory",
            {{"getInstance", [](Asked&) { F::getInstance(); }},
             {"getCpe key", [](Asked& a) { F::getInstance()->getCpe(a.info.cpeAddress, a.info); }},
             {"getCpe address", [](Asked& a) { F::getInstance()->getCpe(a.info); }}}};
}

OperationsOfClass handleReads()
{
    // The same address written otherwise, so that the gateway still lets it in.
    const auto changeCredentials = [](Asked& a) {
        a.handle.setAuthenticationInfo(
            {a.info.user, a.info.password, text("http://") + a.info.cpeAddress});
    };
    const auto rehearse = [](Asked& a) {
        QString sent;
        const auto rehearsal = a.handle.rehearse([&](const QString& request) { sent += request; });
        if (rehearsal)
            rehearsal->getGeneralSettingsFacade()->setCpePassword(text("rehearsed secret"),
                                                                  a.error);
    };
    return {
        "AspCpeFacadeObject",
        {{"setAuthenticationInfo", changeCredentials},
         {"setAuthenticationInfo same", [](Asked& a) { a.handle.setAuthenticationInfo(a.info); }},
         {"loginToCpe stored", [](Asked& a) { a.handle.loginToCpe(false); }},
         {"loginToCpe forced", [](Asked& a) { a.handle.loginToCpe(true); }},
         {"getCpeProperties", [](Asked& a) { a.handle.getCpeProperties(); }},
         {"hasGeneral", [](Asked& a) { a.handle.hasGeneral(); }},
         {"hasPptp", [](Asked& a) { a.handle.hasPptp(); }},
         {"hasL2tp", [](Asked& a) { a.handle.hasL2tp(); }},
         {"hasDsl", [](Asked& a) { a.handle.hasDsl(); }},
         {"hasWan", [](Asked& a) { a.handle.hasWan(); }},
         {"hasWireless", [](Asked& a) { a.handle.hasWireless(); }},
         {"hasVoip", [](Asked& a) { a.handle.hasVoip(); }},
         {"has3G", [](Asked& a) { a.handle.has3G(); }},
         {"hasUsbHost", [](Asked& a) { a.handle.hasUsbHost(); }},
         {"hasEth", [](Asked& a) { a.handle.hasEth(); }},
         {"hasWarrantyRegistrationSupport",
          [](Asked& a) { a.handle.hasWarrantyRegistrationSupport(); }},
         {"hasVdsl", [](Asked& a) { a.handle.hasVdsl(); }},
         {"getGeneralSettingsFacade", [](Asked& a) { a.handle.getGeneralSettingsFacade(); }},
         {"getAdslSettingsFacade", [](Asked& a) { a.handle.getAdslSettingsFacade(); }},
         {"getWanSettingsFacade", [](Asked& a) { a.handle.getWanSettingsFacade(); }},
         {"getWirelessSettingsFacadeImp",
          [](Asked& a) { a.handle.getWirelessSettingsFacadeImp(nullptr); }},
         {"getWirelessSettingsFacade", [](Asked& a) { a.handle.getWirelessSettingsFacade(0); }},
         {"getVoipSettingsFacade", [](Asked& a) { a.handle.getVoipSettingsFacade(); }},
         {"getUsbHostSettingsFacade", [](Asked& a) { a.handle.getUsbHostSettingsFacade(); }},
         {"rehearse", rehearse},
         {"abortPendingRequests", [](Asked& a) { a.handle.abortPendingRequests(); }},
         {"isDeviceAvailable",
          [](Asked& a) { AspCpeFacadeObject::isDeviceAvailable(a.info.cpeAddress); }},
         {"refreshCpe", [](Asked& a) { a.handle.refreshCpe(); }}}};
}

OperationsOfClass generalReads()
{
    using F = AspGeneralSettingsFacade;
    const auto general = &Asked::general;
    const auto checkSession = [](Asked& a) {
        a.general.checkSession(a.general.getCurrentSessionId(), a.error);
    };
    return {
        "AspGeneralSettingsFacade",
        {{"getEthMacAddress", calling(general, &F::getEthMacAddress)},
         {"getDslMacAddress", calling(general, &F::getDslMacAddress)},
         {"getWlanMacAddress", calling(general, &F::getWlanMacAddress)},
         {"getFirmwareVersion", calling(general, &F::getFirmwareVersion)},
         {"getModelName", calling(general, &F::getModelName)},
         {"getSerialNumber", calling(general, &F::getSerialNumber)},
         {"getRouterMode", calling(general, &F::getRouterMode)},
         {"checkCpePassword", calling(general, &F::checkCpePassword, text("login secret"))},
         {"checkCpePassword wrong", calling(general, &F::checkCpePassword, text("wrong secret"))},
         {"getDefaultGw", calling(general, &F::getDefaultGw, text("route-0"))},
         {"isRebootRequired", calling(general, &F::isRebootRequired)},
         {"getRebootDuration", calling(general, &F::getRebootDuration)},
         {"getFwUpgradeDuration", calling(general, &F::getFwUpgradeDuration)},
         {"rebootCpe", calling(general, &F::rebootCpe)},
         {"getWarrantyInformation", calling(general, &F::getWarrantyInformation)},
         {"checkSession", checkSession},
         {"getCurrentSessionId", [](Asked& a) { a.general.getCurrentSessionId(); }},
         {"getStaticClientList", calling(general, &F::getStaticClientList)},
         {"getDynamicClientList", calling(general, &F::getDynamicClientList)},
         {"getManagerList", calling(general, &F::getManagerList)},
         {"getManagerInstanceList", calling(general, &F::getManagerInstanceList, text("wan"))},
         {"getWirelessCoreList", [](Asked& a) { a.general.getWirelessCoreList(a.error); }}}};
}

OperationsOfClass internetReads()
{
    using F = AspAdslSettingsFacade;
    const auto of = [](auto function, const char* instance) {
        return calling(&Asked::internet, function, text(instance));
    };
    return {"AspAdslSettingsFacade",
            {{"getPppoxSettings", of(&F::getPppoxSettings, "pppox-0")},
             {"getUsernameExtension", calling(&Asked::internet, &F::getUsernameExtension)},
             {"getPppoxState", of(&F::getPppoxState, "pppox-0")},
             {"getRussianPppoxSettings", of(&F::getRussianPppoxSettings, "pppox-0")},
             {"getVpnSettings vpn", of(&F::getVpnSettings, "vpn-0")},
             {"getVpnSettings l2tp", of(&F::getVpnSettings, "l2tp-0")},
             {"getDhcpSettings", of(&F::getDhcpSettings, "dhcpc-0")},
             {"getStaticSettings", of(&F::getStaticSettings, "static-0")},
             {"getWanVlanSettings", of(&F::getWanVlanSettings, "wan_vlan-0")},
             {"getPvcSettings", of(&F::getPvcSettings, "pvc-0")},
             {"getDslState", of(&F::getDslState, "dsl-0")},
             {"getSupportedAnnexMode", of(&F::getSupportedAnnexMode, "dsl-0")},
             {"getCurrentAnnexMode", of(&F::getCurrentAnnexMode, "dsl-0")},
             {"getRfc2684VdslSupport", of(&F::getRfc2684VdslSupport, "rfc2684-0")},
             {"getRfc2684Encapsulation", of(&F::getRfc2684Encapsulation, "rfc2684-0")}}};
}

OperationsOfClass wanReads()
{
    using F = AspWanSettingsFacade;
    const auto of = [](auto function, const char* instance) {
        return calling(&Asked::wan, function, text(instance));
    };
    const auto listByKind = [](Asked& a) {
        QList<QString> dslWans;
        QList<QString> ethWans;
        a.wan.getWanList(dslWans, ethWans, a.error);
    };
    return {
        "AspWanSettingsFacade",
        {{"getDefaultWan", of(&F::getDefaultWan, "route-0")},
         {"getAliasDefaultWan", of(&F::getAliasDefaultWan, "route-0")},
         {"getDefaultGwStatus", of(&F::getDefaultGwStatus, "route-0")},
         {"getDefaultGwStatusWithLinkState", of(&F::getDefaultGwStatusWithLinkState, "route-0")},
         {"getInternetConnectionStatus", of(&F::getInternetConnectionStatus, "wan-1")},
         {"getInternetConnectionStatus2", calling(&Asked::wan, &F::getInternetConnectionStatus2)},
         {"getWanList", [](Asked& a) { a.wan.getWanList(a.error); }},
         {"getWanList kinds", listByKind},
         {"getWanDetails", of(&F::getWanDetails, "wan-1")},
         {"getWanEthLinkStatus", of(&F::getWanEthLinkStatus, "eth-0")},
         {"getWanDslLinkStatus", of(&F::getWanDslLinkStatus, "dsl-0")},
         {"has3GSupport", calling(&Asked::wan, &F::has3GSupport)},
         {"get3GWan", calling(&Asked::wan, &F::get3GWan)},
         {"get3GSettings",
          calling(&Asked::wan, &F::get3GSettings, text("wan-2"), text("serial-0"))}}};
}

/// What both generations of radios are asked in the same way.
template <typename Facade>
std::vector<Operation> radioReads(Facade Asked::*radio)
{
    AspWirelessSettings settings;
    settings.securityMode = text("wpa_both");
    settings.wpaPassword = text("queried secret");
    return {
        {"checkWirelessStatus", calling(radio, &Facade::checkWirelessStatus)},
        {"checkWpsEnabledStatus", calling(radio, &Facade::checkWpsEnabledStatus)},
        {"getWpsRole", calling(radio, &Facade::getWpsRole)},
        {"isSecurityProxyEnabled", calling(radio, &Facade::isSecurityProxyEnabled)},
        {"getWirelessSettings", calling(radio, &Facade::getWirelessSettings)},
        {"getWirelessSettingsQuery",
         calling(radio, &Facade::getWirelessSettingsQuery, AspWirelessEnabled, settings)},
        {"getWirelessClientMacList", calling(radio, &Facade::getWirelessClientMacList)},
        {"getWirelessMeshInstances", calling(radio, &Facade::getWirelessMeshInstances)},
        {"isWirelessSecurityEnabled", calling(radio, &Facade::isWirelessSecurityEnabled)},
        {"getWirelessCapabilities", calling(radio, &Facade::getWirelessCapabilities)},
        {"getManager", [radio](Asked& a) { (a.*radio).getManager(); }},
        {"setManager", [radio](Asked& a) { (a.*radio).setManager((a.*radio).getManager()); }},
        {"getSupportSecurityModes", [radio](Asked& a) { (a.*radio).getSupportSecurityModes(0); }}};
}

OperationsOfClass newerRadioReads()
{
    using F = AspWirelessSettingsFacadeNG;
    AspWirelessSettings settings;
    settings.wpaPassword = text("unsent secret");
    std::vector<Operation> operations = radioReads(&Asked::newer);
    // They send nothing on this generation.
    operations.push_back(
        {"setWpsEnabledStatus", calling(&Asked::newer, &F::setWpsEnabledStatus, true)});
    operations.push_back({"setWirelessSettings", calling(&Asked::newer, &F::setWirelessSettings,
                                                         AspWirelessEnabled, settings)});
    operations.push_back({"getCapabilities", [](Asked& a) { a.newer.getCapabilities(); }});
    operations.push_back(
        {"setCapabilities", [](Asked& a) { a.newer.setCapabilities(a.newer.getCapabilities()); }});
    return {"AspWirelessSettingsFacadeNG", operations};
}

OperationsOfClass radioManagerReads()
{
    using F = AspWirelessSettingsFacadeManager;
    const auto radios = &Asked::radios;
    return {
        "AspWirelessSettingsFacadeManager",
        {{"getManagerCount", [](Asked& a) { a.radios.getManagerCount(); }},
         {"setManagerId", [](Asked& a) { a.radios.setManagerId(1); }},
         {"setManagerList", [](Asked& a) { a.radios.setManagerList(lines({"wireless-0"})); }},
         {"checkWirelessStatus", [](Asked& a) { a.radios.checkWirelessStatus(0, a.error); }},
         {"checkWpsEnabledStatus", [](Asked& a) { a.radios.checkWpsEnabledStatus(0, a.error); }},
         {"getWirelessSettings", [](Asked& a) { a.radios.getWirelessSettings(0, a.error); }},
         {"getSupportSecurityModes", [](Asked& a) { a.radios.getSupportSecurityModes(0, 0); }},
         {"getWirelessClientMacList", calling(radios, &F::getWirelessClientMacList)},
         {"getWirelessMeshInstances", calling(radios, &F::getWirelessMeshInstances)},
         {"isWirelessSecurityEnabled", calling(radios, &F::isWirelessSecurityEnabled)},
         {"isSecurityProxyEnabled", calling(radios, &F::isSecurityProxyEnabled)},
         {"getWpsRole", calling(radios, &F::getWpsRole)}}};
}

OperationsOfClass voiceReads()
{
    using F = AspVoipSettingsFacade;
    AspVoipCallHistoryFilter allCalls;
    allCalls.callType = 3;
    return {"AspVoipSettingsFacade",
            {{"getVoipAccounts", calling(&Asked::voice, &F::getVoipAccounts)},
             {"getGainSettings", calling(&Asked::voice, &F::getGainSettings)},
             {"getVoipCallHistory", calling(&Asked::voice, &F::getVoipCallHistory, allCalls)},
             {"followVoipCallHistory", calling(&Asked::voice, &F::followVoipCallHistory, allCalls,
                                               AspVoipCallHistoryProgress())}}};
}

OperationsOfClass usbHostReads()
{
    using F = AspUsbHostSettingsFacade;
    const auto getStatus = [](Asked& a) {
        bool printer = false;
        bool disk = false;
        a.usbHost.getUsbStatus(printer, disk, a.error);
    };
    return {
        "AspUsbHostSettingsFacade",
        {{"getUsbHostDevices", calling(&Asked::usbHost, &F::getUsbHostDevices)},
         {"getUsbStatus", getStatus},
         {"getUsbHostAdvancedSettings", calling(&Asked::usbHost, &F::getUsbHostAdvancedSettings)}}};
}

} // namespace

std::vector<OperationsOfClass> allReads()
{
    return {factoryReads(),    handleReads(),
            generalReads(),    internetReads(),
            wanReads(),        {"AspWirelessSettingsFacade", radioReads(&Asked::older)},
            newerRadioReads(), radioManagerReads(),
            voiceReads(),      usbHostReads()};
}

} // namespace quorvel::test
