#include <quorvel/AspWanSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "protocol/Vocabulary.h"
#include "wan/WanCall.h"
#include "wan/WanKeys.h"

namespace quorvel
{

namespace
{

const Word<AspGwInternetConnection> connectionWords[] = {{"1", AspGwInternetConnected},
                                                         {"0", AspGwInternetDisconnected}};

/// The default WAN and its alias, which share their lines.
template <typename Request>
QString fetchDefaultWan(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                        const QString& key)
{
    return fetchText(facade, error, request, key,
                     "AspWanSettingsFacade::getDefaultWan -> Default WAN:",
                     "AspWanSettingsFacade::getDefaultWan -> Failed to fetch default WAN!");
}

/// 1 if the last entry of the reply says that the link is up.
template <typename Request>
int fetchLinkStatus(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                    bool (*isUp)(const QString& state), const char* label, const char* failureLine)
{
    const QList<QString> states = fetchList(facade, error, request, label, failureLine);
    return !states.isEmpty() && isUp(states.last()) ? 1 : 0;
}

QString tabbed(const QList<QString>& names)
{
    QString text;
    for (const QString& name : names)
        text += name + QLatin1Char('\t');
    return text;
}

} // namespace

QString AspWanSettingsFacade::getDefaultWan(const QString& instance, AspWebAppErrorCodes& error)
{
    return fetchDefaultWan(*this, error, wanCall(&WanSettingsImplementor::getDefaultWan, instance),
                           replyKey(instance, wire::defaultGw));
}

QString AspWanSettingsFacade::getAliasDefaultWan(const QString& instance,
                                                 AspWebAppErrorCodes& error)
{
    return fetchDefaultWan(*this, error,
                           wanCall(&WanSettingsImplementor::getAliasDefaultWan, instance),
                           replyKey(instance, wire::aliasDefaultGw));
}

AspGwInternetConnection AspWanSettingsFacade::getInternetConnectionStatus(
    const QString& instance, AspWebAppErrorCodes& error)
{
    const QString status = fetchText(
        *this, error, wanCall(&WanSettingsImplementor::getInternetConnectionStatus, instance),
        replyKey(instance, wire::internetConnection),
        "pWanSettingsFacade::getInternetConnectionStatus -> Status:",
        "AspWanSettingsFacade::getInternetConnectionStatus -> Failed to fetch "
        "connection status!");
    return meaningOf(status, connectionWords, AspGwInternetUnknown);
}

AspGwInternetConnection AspWanSettingsFacade::getInternetConnectionStatus2(
    AspWebAppErrorCodes& error)
{
    const QString wan = getDefaultWan(wire::route0, error);
    if (wan.isEmpty())
        return AspGwInternetUnknown;
    const AspWanDetails details = getWanDetails(wan, error);
    if (error != AspWebAppNoError)
        return AspGwInternetUnknown;
    return details.isConnected ? AspGwInternetConnected : AspGwInternetDisconnected;
}

QList<QString> AspWanSettingsFacade::getWanList(AspWebAppErrorCodes& error)
{
    return fetchList(*this, error, wanCall(&WanSettingsImplementor::getWanInstances),
                     "AspWanSettingsFacade::getWanList -> WAN List:",
                     "AspWanSettingsFacade::getWanList -> Failed to fetch WAN list!");
}

bool AspWanSettingsFacade::getWanList(QList<QString>& dslWans, QList<QString>& ethWans,
                                      AspWebAppErrorCodes& error)
{
    const auto request = [&](FacadeCall& call) {
        return call.ask(&Cpe::getWanImplementor, &WanSettingsImplementor::getWanDslList, dslWans,
                        ethWans);
    };
    return change(*this, error, request, [&](bool done) {
        if (done)
            logDebug(QLatin1String("AspWanSettingsFacade::getWanList2 -> WAN List:DSL WANs:") +
                     tabbed(dslWans) + QLatin1String("ETH WANs:") + tabbed(ethWans));
        else
            logError(QStringLiteral("AspWanSettingsFacade::getWanList2 -> Failed to get WAN "
                                    "list!"));
    });
}

int AspWanSettingsFacade::getWanEthLinkStatus(const QString& instance, AspWebAppErrorCodes& error)
{
    return fetchLinkStatus(
        *this, error, wanCall(&WanSettingsImplementor::getWanEthLinkStatus, instance),
        [](const QString& state) { return state == QLatin1String("1"); },
        "AspWanSettingsFacade::getWanEthLinkStatus -> wanLinkStatus:",
        "AspWanSettingsFacade::getWanEthLinkStatus -> Failed to fetch wanLinkStatus!");
}

int AspWanSettingsFacade::getWanDslLinkStatus(const QString& instance, AspWebAppErrorCodes& error)
{
    return fetchLinkStatus(
        *this, error, wanCall(&WanSettingsImplementor::getWanDslLinkStatus, instance),
        [](const QString& state) { return state.toUpper() == QLatin1String("UP"); },
        "AspWanSettingsFacade::getWanDslLinkStatus -> wanLinkStatus:",
        "AspWanSettingsFacade::getWanDslLinkStatus -> Failed to fetch wanLinkStatus!");
}

} // namespace quorvel
