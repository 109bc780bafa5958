#include "fuzz/FacadeOperations.h"

#include "internet/InternetFixture.h"
#include "usbhost/UsbHostFixture.h"
#include "voice/VoiceFixture.h"
#include "wan/WanFixture.h"
#include "wireless/WirelessFixture.h"

#include <quorvel/AspGeneralSettingsFacade.h>
#include <quorvel/AspWirelessSettingsFacadeManager.h>

namespace quorvel::fuzz
{

namespace
{

using test::hostConnection;
using test::shown;
using test::text;
using test::wholeRecord;

QString shown(int number)
{
    return QString::number(number);
}

QString shown(const QList<QString>& texts)
{
    return shown(QStringList(texts));
}

QString shown(const QList<AspDhcpsClient>& clients)
{
    QStringList texts;
    for (const auto& [mac, ip, hostname] : clients)
        texts << mac << ip << hostname;
    return shown(texts);
}

QString shown(const AspDeviceWarrantyInformation& record)
{
    const auto& [name, email, phone, token, usertoken, timestamp] = record;
    return shown(QStringList{name, email, phone, token, usertoken, timestamp});
}

QString shown(const QList<AspVoipCallHistory>& calls)
{
    QStringList texts;
    for (const AspVoipCallHistory& call : calls)
        texts << shown(call);
    return shown(texts);
}

using Gateway = boost::shared_ptr<Cpe>;
using Error = AspWebAppErrorCodes;
using General = AspGeneralSettingsFacade;
using Internet = AspAdslSettingsFacade;
using Wan = AspWanSettingsFacade;
using Voice = AspVoipSettingsFacade;
using UsbHost = AspUsbHostSettingsFacade;

struct OlderRadio : AspWirelessSettingsFacade {
    explicit OlderRadio(const Gateway& cpe) : AspWirelessSettingsFacade(cpe)
    {
        setManager(text("wireless_core-0"));
    }
};

struct NewerRadio : AspWirelessSettingsFacadeNG {
    explicit NewerRadio(const Gateway& cpe) : AspWirelessSettingsFacadeNG(cpe)
    {
        setManager(text("wireless-0"));
    }
};

struct Radios : AspWirelessSettingsFacadeManager {
    explicit Radios(const Gateway& cpe)
        : AspWirelessSettingsFacadeManager(cpe, {text("wireless_core-0"), text("wireless-0")})
    {
    }
};

/// An operation with its inputs before the error.
template <typename Facade, typename Method, typename... Inputs>
FacadeOperation asking(Method method, const Inputs&... inputs)
{
    return {[=](const Gateway& cpe, Error& error) {
        Facade facade(cpe);
        return shown(shown((facade.*method)(inputs..., error)));
    }};
}

/// The same where an unreadable answer is no failure.
template <typename Facade, typename Method, typename... Inputs>
FacadeOperation ordering(Method method, const Inputs&... inputs)
{
    return {asking<Facade>(method, inputs...).call, true};
}

QString wanListsByLayer(const Gateway& cpe, Error& error)
{
    QList<QString> dsl;
    QList<QString> eth;
    const bool done = Wan(cpe).getWanList(dsl, eth, error);
    return shown(done) + shown(dsl) + shown(eth);
}

QString usbStatus(const Gateway& cpe, Error& error)
{
    bool hasPrinter = true;
    bool hasDisk = true;
    UsbHost(cpe).getUsbStatus(hasPrinter, hasDisk, error);
    return shown(hasPrinter) + shown(hasDisk);
}

/// The capabilities and what can only be asked once they are there.
QString capabilitiesAndLinks(const Gateway& cpe, Error& error)
{
    NewerRadio radio(cpe);
    radio.getWirelessCapabilities(error);
    const QString modes =
        shown(radio.getSupportSecurityModes(0)) + shown(radio.getSupportSecurityModes(1));
    return modes + shown(radio.getWirelessMeshInstances(error));
}

AspVoipAccount changedLine()
{
    AspVoipAccount line;
    line.id = text("0");
    line.changed = true;
    return line;
}

const QString any = text("any-0");
const QString wan = text("wan-3");
const QString route = text("route-0");
const QString entity = text("voice-0");
const AspVoipCallHistoryFilter allCalls{0, 3, 0, 0, 0};

} // namespace

const std::vector<FacadeOperation>& facadeOperations()
{
    using WirelessStatusOf = AspWirelessStatus (Radios::*)(int, Error&);
    using WriteOne = bool (Radios::*)(const AspWirelessStatus&, const AspWirelessSettings&, Error&);
    using WriteAll = bool (Radios::*)(const QList<AspWirelessSettings>&, Error&);
    using NamesOf = QList<QString> (General::*)(Error&);
    using WansOf = QList<QString> (Wan::*)(Error&);
    static const std::vector<FacadeOperation> operations{
        asking<General>(&General::getEthMacAddress),
        asking<General>(&General::getDslMacAddress),
        asking<General>(&General::getWlanMacAddress),
        asking<General>(&General::getFirmwareVersion),
        asking<General>(&General::getModelName),
        asking<General>(&General::getSerialNumber),
        asking<General>(&General::getRouterMode),
        asking<General>(&General::setCpeInternetModeAp2Router, text("router")),
        asking<General>(&General::setCpePassword, text("secret")),
        asking<General>(&General::checkCpePassword, text("secret")),
        asking<General>(&General::getDefaultGw, route),
        asking<General>(&General::setDefaultGw, route, wan),
        asking<General>(&General::isRebootRequired),
        asking<General>(&General::getRebootDuration),
        asking<General>(&General::getFwUpgradeDuration),
        ordering<General>(&General::rebootCpe),
        ordering<General>(&General::factoryDefault),
        asking<General>(&General::getWarrantyInformation),
        asking<General>(&General::setWarrantyInformation, AspDeviceWarrantyInformation()),
        asking<General>(&General::checkSession, text("SID=fed")),
        asking<General>(&General::getStaticClientList),
        asking<General>(&General::getDynamicClientList),
        asking<General>(&General::getManagerList),
        asking<General>(&General::getManagerInstanceList, text("conn")),
        asking<General>(NamesOf(&General::getWirelessCoreList)),
        asking<Internet>(&Internet::getPppoxSettings, any),
        asking<Internet>(&Internet::getUsernameExtension),
        asking<Internet>(&Internet::getPppoxState, any),
        asking<Internet>(&Internet::getRussianPppoxSettings, any),
        asking<Internet>(&Internet::getVpnSettings, any),
        asking<Internet>(&Internet::getDhcpSettings, any),
        asking<Internet>(&Internet::getStaticSettings, any),
        asking<Internet>(&Internet::getWanVlanSettings, any),
        asking<Internet>(&Internet::getPvcSettings, any),
        asking<Internet>(&Internet::getDslState, any),
        asking<Internet>(&Internet::getSupportedAnnexMode, any),
        asking<Internet>(&Internet::getCurrentAnnexMode, any),
        asking<Internet>(&Internet::getRfc2684VdslSupport, any),
        asking<Internet>(&Internet::getRfc2684Encapsulation, any),
        asking<Internet>(&Internet::setAdslSettings, wan, any, hostConnection("pppoe")),
        asking<Internet>(&Internet::setEthSettings, wan, hostConnection("l2tp")),
        asking<Wan>(&Wan::getDefaultWan, route),
        asking<Wan>(&Wan::getAliasDefaultWan, route),
        asking<Wan>(&Wan::getDefaultGwStatus, route),
        asking<Wan>(&Wan::getDefaultGwStatusWithLinkState, route),
        asking<Wan>(&Wan::getInternetConnectionStatus, route),
        asking<Wan>(&Wan::getInternetConnectionStatus2),
        asking<Wan>(WansOf(&Wan::getWanList)),
        {wanListsByLayer},
        asking<Wan>(&Wan::getWanDetails, wan),
        asking<Wan>(&Wan::addEntity, wan, text("pvc")),
        asking<Wan>(&Wan::deleteEntity, wan, text("pvc")),
        asking<Wan>(&Wan::addIface, wan, text("eth-2")),
        asking<Wan>(&Wan::deleteIface, wan, text("eth-2")),
        asking<Wan>(&Wan::enableWan, wan),
        asking<Wan>(&Wan::switchConnectionType, QList<QString>{wan}, QList<QString>{any}, wan),
        asking<Wan>(&Wan::getWanEthLinkStatus, text("eth-0")),
        asking<Wan>(&Wan::getWanDslLinkStatus, text("dsl-0")),
        asking<Wan>(&Wan::has3GSupport),
        asking<Wan>(&Wan::get3GWan),
        asking<Wan>(&Wan::get3GSettings, wan, text("serial-0")),
        asking<Wan>(&Wan::set3GSettings, wan, text("serial-0"), Asp3GSettings()),
        asking<Voice>(&Voice::getVoipAccounts),
        asking<Voice>(&Voice::setVoipSettings, entity, changedLine()),
        asking<Voice>(&Voice::getGainSettings),
        asking<Voice>(&Voice::setGainSettings, entity, QList<AspVoipAccount>{changedLine()}),
        asking<Voice>(&Voice::getVoipCallHistory, allCalls),
        asking<UsbHost>(&UsbHost::getUsbHostDevices),
        {usbStatus},
        asking<UsbHost>(&UsbHost::diskMount, text("3")),
        asking<UsbHost>(&UsbHost::getUsbHostAdvancedSettings),
        ordering<UsbHost>(&UsbHost::setUsbHostAdvancedSettings, AspUsbHostDevices()),
        asking<OlderRadio>(&OlderRadio::checkWirelessStatus),
        asking<OlderRadio>(&OlderRadio::checkWpsEnabledStatus),
        asking<OlderRadio>(&OlderRadio::setWpsEnabledStatus, true),
        asking<OlderRadio>(&OlderRadio::getWpsRole),
        asking<OlderRadio>(&OlderRadio::isSecurityProxyEnabled),
        asking<OlderRadio>(&OlderRadio::getWirelessSettings),
        ordering<OlderRadio>(&OlderRadio::setWirelessSettings, AspWirelessEnabled,
                             wholeRecord("wep")),
        ordering<OlderRadio>(&OlderRadio::setWirelessQuery, text("<a/>")),
        asking<OlderRadio>(&OlderRadio::getWirelessClientMacList),
        asking<OlderRadio>(&OlderRadio::getWirelessMeshInstances),
        asking<OlderRadio>(&OlderRadio::isWirelessSecurityEnabled),
        asking<NewerRadio>(&NewerRadio::checkWpsEnabledStatus),
        asking<NewerRadio>(&NewerRadio::getWpsRole),
        asking<NewerRadio>(&NewerRadio::isSecurityProxyEnabled),
        asking<NewerRadio>(&NewerRadio::getWirelessSettings),
        ordering<NewerRadio>(&NewerRadio::setWirelessQuery, text("<a/>")),
        asking<NewerRadio>(&NewerRadio::isWirelessSecurityEnabled),
        {capabilitiesAndLinks},
        asking<Radios>(WirelessStatusOf(&Radios::checkWirelessStatus), 0),
        asking<Radios>(&Radios::checkWpsEnabledStatus, 1),
        asking<Radios>(&Radios::getWirelessSettings, 1),
        ordering<Radios>(WriteOne(&Radios::setWirelessSettings), AspWirelessEnabled,
                         wholeRecord("wpa2")),
        ordering<Radios>(WriteAll(&Radios::setWirelessSettings),
                         QList<AspWirelessSettings>{wholeRecord("off"), wholeRecord("wep")}),
        asking<Radios>(&Radios::getWirelessClientMacList),
        asking<Radios>(&Radios::getWirelessMeshInstances),
        asking<Radios>(&Radios::isWirelessSecurityEnabled),
        asking<Radios>(&Radios::isSecurityProxyEnabled),
        asking<Radios>(&Radios::getWpsRole)};
    return operations;
}

} // namespace quorvel::fuzz
