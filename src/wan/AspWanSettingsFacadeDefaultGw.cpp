#include <quorvel/AspWanSettingsFacade.h>

#include "access/FacadeCall.h"
#include "protocol/Vocabulary.h"
#include "wan/WanCall.h"

#include <algorithm>

namespace quorvel
{

namespace
{

// A candidate stands in the reply as "wan-0:1": the WAN and whether it is in use.

QString wanOf(const QString& candidate)
{
    return candidate.section(QLatin1Char(':'), 0, 0);
}

bool isInUse(const QString& candidate)
{
    return candidate.section(QLatin1Char(':'), 1) == QLatin1String("1");
}

/// The shape of both questions for the default gateway. `chooseIdle` picks among candidates of
/// which none is in use.
template <typename ChooseIdle>
QString findDefaultGw(AspWanSettingsFacade& facade, const QString& instance,
                      AspWebAppErrorCodes& error, ChooseIdle chooseIdle)
{
    if (!FacadeCall(facade, error).isPermitted())
        return QString();
    const QList<QString> candidates =
        fetchList(facade, error, wanCall(&WanSettingsImplementor::getDefaultGwStatus, instance),
                  "AspWanSettingsFacade::getDefaultGwStatus -> GatewayStatus:",
                  "AspWanSettingsFacade::getDefaultGwStatus -> Failed to fetch GatewayStatus!");
    if (candidates.isEmpty())
        return facade.getDefaultWan(instance, error);
    const auto used = std::find_if(candidates.begin(), candidates.end(), isInUse);
    const QString found = used != candidates.end() ? wanOf(*used) : chooseIdle(candidates);
    // A gateway writes "0" for a default gateway that it doesn't know.
    return found == QLatin1String("0") ? facade.getDefaultWan(instance, error) : found;
}

/// Asks for a WAN's layer 2 without reporting an error.
bool readLayer2(AspFacade& facade, const QString& wan, QString& layer2)
{
    AspWebAppErrorCodes unreported;
    FacadeCall call(facade, unreported);
    if (!call.ask(&Cpe::getWanImplementor, &WanSettingsImplementor::getWanL2Type, wan))
        return false;
    QString unlogged;
    const QList<QString> values =
        listedValues(call.reply(), {responseKey, webappErrorKey}, unlogged);
    layer2 = values.isEmpty() ? QString() : values.last();
    return true;
}

bool hasLink(AspWanSettingsFacade& facade, const QString& wan, AspWebAppErrorCodes& error)
{
    QString layer2;
    if (!readLayer2(facade, wan, layer2))
        return false;
    const int status = layer2 == QLatin1String("eth")
                           ? facade.getWanEthLinkStatus(wire::eth0, error)
                           : facade.getWanDslLinkStatus(wire::dsl0, error);
    return status != 0;
}

} // namespace

QString AspWanSettingsFacade::getDefaultGwStatus(const QString& instance,
                                                 AspWebAppErrorCodes& error)
{
    return findDefaultGw(*this, instance, error, [](const QList<QString>& candidates) {
        return wanOf(candidates.first());
    });
}

QString AspWanSettingsFacade::getDefaultGwStatusWithLinkState(const QString& instance,
                                                              AspWebAppErrorCodes& error)
{
    return findDefaultGw(*this, instance, error, [&](const QList<QString>& candidates) {
        const auto linked =
            std::find_if(candidates.begin(), candidates.end(), [&](const QString& candidate) {
                return hasLink(*this, wanOf(candidate), error);
            });
        return wanOf(linked != candidates.end() ? *linked : candidates.last());
    });
}

} // namespace quorvel
