#include <quorvel/AspAdslSettingsFacade.h>

#include "access/ReplyReading.h"
#include "internet/InternetCall.h"
#include "internet/InternetKeys.h"
#include "protocol/Vocabulary.h"

#include <vector>

namespace quorvel
{

namespace
{

using I = AdslSettingsImplementor;

/// A field of a record as the log shows it.
template <typename Record>
struct LoggedText {
    const char* label;
    QString Record::*member;
};

/// A record that is read whole: who is asked, what fills it and how it is logged. The instance
/// stands first in the line.
template <typename Record>
struct RecordForm {
    bool (I::*operation)(const QString& instance, ParamMap& result);
    const char* group; ///< what the entries' names start with behind the instance
    std::vector<TextField<Record>> fields;
    const char* fetchedLine;
    std::vector<LoggedText<Record>> logged;
    const char* failureLine;
};

template <typename Record>
Record fetchRecord(AspFacade& facade, AspWebAppErrorCodes& error, const QString& instance,
                   const RecordForm<Record>& form)
{
    Record record;
    fetch(
        facade, error, internet(form.operation, instance),
        [&](const ParamMap& reply) {
            readTexts(record, form.fields, reply, replyKey(instance, QLatin1String(form.group)));
            QString line =
                QLatin1String(form.fetchedLine) + QLatin1String("\tInstance:") + instance;
            for (const LoggedText<Record>& text : form.logged)
                line += QLatin1String(text.label) + record.*text.member;
            logDebug(line);
        },
        form.failureLine);
    return record;
}

} // namespace

AspPppoxSettings AspAdslSettingsFacade::getPppoxSettings(const QString& instance,
                                                         AspWebAppErrorCodes& error)
{
    using R = AspPppoxSettings;
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getPppoxSettings,
         "settings.",
         {{"type", &R::type},
          {"username", &R::username},
          {"password", &R::password},
          {"mtu", &R::mtu},
          {"lcp_echo_interval", &R::lcpEchoInterval},
          {"lcp_echo_failure", &R::lcpEchoFailure},
          {"ondemand", &R::ondemand},
          {"idle", &R::idle}},
         "AspAdslSettingsFacade::getPppoxSettings -> Settings are fetched:",
         {{"\tType:", &R::type},
          {"\tUsername:", &R::username},
          {"\tPassword:", &R::password},
          {"\tMtu:", &R::mtu}},
         "AspAdslSettingsFacade::getPppoxSettings -> Failed to get pppox settings!"});
}

AspPppoxState AspAdslSettingsFacade::getPppoxState(const QString& instance,
                                                   AspWebAppErrorCodes& error)
{
    using R = AspPppoxState;
    return fetchRecord<R>(*this, error, instance,
                          {&I::getPppoxState,
                           "state.",
                           {{"status", &R::status},
                            {"interface", &R::interface},
                            {"localIP", &R::localIP},
                            {"remoteIP", &R::remoteIP},
                            {"primaryDNS", &R::primaryDNS},
                            {"secondaryDNS", &R::secondaryDNS},
                            {"sessionId", &R::sessionId},
                            {"nasDevice", &R::nasDevice}},
                           "AspAdslSettingsFacade::getPppoxState -> State is fetched:",
                           {{"\tStatus:", &R::status},
                            {"\tPPP Interface:", &R::interface},
                            {"\tLocal IP:", &R::localIP},
                            {"\tRemote IP:", &R::remoteIP},
                            {"\tPrimary DNS:", &R::primaryDNS},
                            {"\tSecondary DNS:", &R::secondaryDNS}},
                           "AspAdslSettingsFacade::getPppoxState -> Failed to get pppox state!"});
}

AspRussianPppoxSettings AspAdslSettingsFacade::getRussianPppoxSettings(const QString& instance,
                                                                       AspWebAppErrorCodes& error)
{
    using R = AspRussianPppoxSettings;
    // The lines name another method and another record on purpose: logged texts stay as they are.
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getPppoxSettings,
         "settings.",
         {{"username", &R::username}, {"password", &R::password}},
         "AspAdslSettingsFacade::getPppoxSettings -> Settings are fetched:",
         {{"\tusername:", &R::username}, {"\tpassword:", &R::password}},
         "AspAdslSettingsFacade::getPppoxSettings -> Failed to get VpnSettings!"});
}

AspVpnSettings AspAdslSettingsFacade::getVpnSettings(const QString& instance,
                                                     AspWebAppErrorCodes& error)
{
    using R = AspVpnSettings;
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getVpnSettings,
         "",
         {{"server", &R::server},
          {"username-0", &R::username},
          {"password-0", &R::password},
          {"type", &R::type}},
         "AspAdslSettingsFacade::getVpnSettings -> Settings are fetched:",
         {{"\tserver:", &R::server}, {"\tusername:", &R::username}, {"\tpassword:", &R::password}},
         "AspAdslSettingsFacade::getVpnSettings -> Failed to get VpnSettings!"});
}

AspDhcpSettings AspAdslSettingsFacade::getDhcpSettings(const QString& instance,
                                                       AspWebAppErrorCodes& error)
{
    using R = AspDhcpSettings;
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getDhcpSettings,
         "",
         {{"localip", &R::localIp}, {"netmask", &R::networkMask}},
         "AspAdslSettingsFacade::getDhcpSettings -> Settings are fetched:",
         {{"\tlocalip:", &R::localIp}, {"\tnetworkMask:", &R::networkMask}},
         "AspAdslSettingsFacade::getDhcpSettings -> Failed to get getDhcpSettings!"});
}

AspStaticSettings AspAdslSettingsFacade::getStaticSettings(const QString& instance,
                                                           AspWebAppErrorCodes& error)
{
    using R = AspStaticSettings;
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getStaticSettings,
         "settings.",
         {{"ip", &R::ip},
          {"mask", &R::mask},
          {"gateway", &R::gateway},
          {"dns1", &R::dns1},
          {"dns2", &R::dns2}},
         "AspAdslSettingsFacade::getStaticSettings -> Settings are fetched:",
         {{"\tipAddress:", &R::ip},
          {"\tnetworkGateway:", &R::gateway},
          {"\tnetworkMask:", &R::mask},
          {"\tdns1:", &R::dns1},
          {"\tdns2:", &R::dns2}},
         "AspAdslSettingsFacade::getStaticSettings -> Failed to get StaticSettings!"});
}

AspWanVlanSettings AspAdslSettingsFacade::getWanVlanSettings(const QString& instance,
                                                             AspWebAppErrorCodes& error)
{
    using R = AspWanVlanSettings;
    // "VPI" labels the name, as it always has.
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getWanVlanSettings,
         "",
         {{"name", &R::name}, {"vlanid", &R::vlanid}, {"port", &R::port}},
         "AspAdslSettingsFacade::getWanVlanSettings -> Settings are fetched:",
         {{"\tVPI:", &R::name}, {"\tvlanId:", &R::vlanid}, {"\tport:", &R::port}},
         "AspAdslSettingsFacade::getWanVlanSettings -> Failed to get WanVlanSettings!"});
}

AspPvcSettings AspAdslSettingsFacade::getPvcSettings(const QString& instance,
                                                     AspWebAppErrorCodes& error)
{
    using R = AspPvcSettings;
    return fetchRecord<R>(*this, error, instance,
                          {&I::getPvcSettings,
                           "",
                           {{"vpi", &R::vpi},
                            {"vci", &R::vci},
                            {"traffic_class", &R::trafficClass},
                            {"pcr", &R::pcr},
                            {"scr", &R::scr},
                            {"mbs", &R::mbs},
                            {"vlanid", &R::vlanid}},
                           "AspAdslSettingsFacade::getPvcSettings -> Settings are fetched:",
                           {{"\tVPI:", &R::vpi}, {"\tVCI:", &R::vci}},
                           "AspAdslSettingsFacade::getPvcSettings -> Failed to get pvc settings!"});
}

AspDslStatus AspAdslSettingsFacade::getDslState(const QString& instance, AspWebAppErrorCodes& error)
{
    using R = AspDslStatus;
    return fetchRecord<R>(
        *this, error, instance,
        {&I::getDslState,
         "status.",
         {{"training_stat", &R::trainingStatus},
          {"mode", &R::mode},
          {"channel", &R::channel},
          {"trellis", &R::trellis},
          {"line_stat", &R::lineStatus}},
         "AspAdslSettingsFacade::getDslState -> Status is fetched:",
         {{"\tMode:", &R::mode}, {"\tLine Status:", &R::lineStatus}, {"\tChannel:", &R::channel}},
         "AspAdslSettingsFacade::getDslState -> Failed to get dsl state!"});
}

} // namespace quorvel
