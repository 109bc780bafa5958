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

/// What the numbered entries of a client list are called, around the number.
struct ClientNames {
    QString stem;
    QString mac;
    QString hostname;
    QString ip;
};

bool isPlaceholder(const QString& mac)
{
    return mac == QLatin1String("00:00:00:00:00:00") || mac == QLatin1String("000000000000") ||
           mac == QLatin1String("00-00-00-00-00-00");
}

QList<AspDhcpsClient> clientsIn(const ParamMap& reply, const ClientNames& names)
{
    const NumberedEntries macs(reply, names.stem, names.mac);
    const NumberedEntries ips(reply, names.stem, names.ip);
    const NumberedEntries hostnames(reply, names.stem, names.hostname);
    QList<AspDhcpsClient> clients;
    for (int number = 0; const QString* mac = macs.find(number); ++number) {
        if (!isPlaceholder(*mac))
            clients.append({*mac, ips.value(number), hostnames.value(number)});
    }
    return clients;
}

template <typename Request>
QList<AspDhcpsClient> fetchClients(AspFacade& facade, AspWebAppErrorCodes& error, Request request,
                                   const ClientNames& names)
{
    QList<AspDhcpsClient> clients;
    fetch(
        facade, error, request, [&](const ParamMap& reply) { clients = clientsIn(reply, names); },
        nullptr);
    return clients;
}

} // namespace

QList<AspDhcpsClient> AspGeneralSettingsFacade::getStaticClientList(AspWebAppErrorCodes& error)
{
    return fetchClients(
        *this, error,
        general(&GeneralSettingsImplementor::getStaticClientList, QString(wire::dhcps0)),
        {QStringLiteral("dhcps-0.client"), QStringLiteral(".mac"), QStringLiteral(".hostname"),
         QStringLiteral(".ip")});
}

QList<AspDhcpsClient> AspGeneralSettingsFacade::getDynamicClientList(AspWebAppErrorCodes& error)
{
    return fetchClients(
        *this, error,
        general(&GeneralSettingsImplementor::getDynamicClientList, QString(wire::dhcps0)),
        {QStringLiteral("dhcps-0.lease"), QStringLiteral(".mac"), QStringLiteral(".name"),
         QStringLiteral(".ip")});
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
