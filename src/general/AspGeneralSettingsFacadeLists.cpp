#include <quorvel/AspGeneralSettingsFacade.h>

#include "access/FacadeCall.h"
#include "access/ReplyReading.h"
#include "general/GeneralCall.h"
#include "protocol/ParamKeys.h"
#include "protocol/Vocabulary.h"

namespace quorvel
{

namespace
{

const char managerListLabel[] = "AspGeneralSettingsFacade::getManagerList -> Manager List::";
const char managerListFailure[] =
    "AspGeneralSettingsFacade::getManagerList -> Failed to fetch manager list!";

/// Names of the numbered entries of a client list.
struct ClientPatterns {
    QString mac;
    QString hostname;
    QString ip;
};

bool isPlaceholder(const QString& mac)
{
    return mac == QLatin1String("00:00:00:00:00:00") || mac == QLatin1String("000000000000") ||
           mac == QLatin1String("00-00-00-00-00-00");
}

QList<AspDhcpsClient> clientsIn(const ParamMap& reply, const ClientPatterns& patterns)
{
    QList<AspDhcpsClient> clients;
    for (int i = 0;; ++i) {
        const auto mac = reply.constFind(patterns.mac.arg(i));
        if (mac == reply.constEnd())
            return clients;
        if (!isPlaceholder(*mac))
            clients.append(
                {*mac, reply.value(patterns.ip.arg(i)), reply.value(patterns.hostname.arg(i))});
    }
}

template <typename Request>
QList<AspDhcpsClient> fetchClients(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                                   const ClientPatterns& patterns)
{
    QList<AspDhcpsClient> clients;
    fetch(
        facade, error, request,
        [&](const ParamMap& reply) { clients = clientsIn(reply, patterns); }, nullptr);
    return clients;
}

} // namespace

QList<AspDhcpsClient> AspGeneralSettingsFacade::getStaticClientList(AspWebAppErrorCodes& error)
{
    return fetchClients(
        *this, error,
        general(&GeneralSettingsImplementor::getStaticClientList, QString(wire::dhcps0)),
        {QStringLiteral("dhcps-0.client%1.mac"), QStringLiteral("dhcps-0.client%1.hostname"),
         QStringLiteral("dhcps-0.client%1.ip")});
}

QList<AspDhcpsClient> AspGeneralSettingsFacade::getDynamicClientList(AspWebAppErrorCodes& error)
{
    return fetchClients(
        *this, error,
        general(&GeneralSettingsImplementor::getDynamicClientList, QString(wire::dhcps0)),
        {QStringLiteral("dhcps-0.lease%1.mac"), QStringLiteral("dhcps-0.lease%1.name"),
         QStringLiteral("dhcps-0.lease%1.ip")});
}

QList<QString> AspGeneralSettingsFacade::getManagerList(AspWebAppErrorCodes& error)
{
    return fetchList(*this, error, general(&GeneralSettingsImplementor::getManagerList),
                     managerListLabel, managerListFailure);
}

QList<QString> AspGeneralSettingsFacade::getManagerInstanceList(const QString& manager,
                                                                AspWebAppErrorCodes& error)
{
    return fetchList(
        *this, error, general(&GeneralSettingsImplementor::getManagerInstanceList, manager),
        "AspGeneralSettingsFacade::getManagerInstanceList -> Manager Instance List::",
        "AspGeneralSettingsFacade::getManagerInstanceList -> Failed to fetch manager instance "
        "list!");
}

QList<QString> AspGeneralSettingsFacade::getWirelessCoreList(AspWebAppErrorCodes& error)
{
    // Alone among the lists it leaves out the trace of a login, and it logs another's words.
    return fetchList(*this, error, general(&GeneralSettingsImplementor::getWirelessCoreList),
                     managerListLabel, managerListFailure,
                     {responseKey, webappErrorKey, AUTH_PARAM_LOGINRESULT});
}

QList<QString> AspGeneralSettingsFacade::getWirelessCoreList()
{
    AspWebAppErrorCodes discarded;
    return getWirelessCoreList(discarded);
}

} // namespace quorvel
