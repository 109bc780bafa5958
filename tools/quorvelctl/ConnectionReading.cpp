#include "Connection.h"

namespace quorvelctl
{

using namespace quorvel;

namespace
{

const struct {
    const char* word;
    AspAnnexMode annex;
} annexWords[] = {{"a", AspAnnexA}, {"b", AspAnnexB}, {"ab", AspAnnexAB}};

QString wordOf(AspAnnexMode annex)
{
    for (const auto& row : annexWords) {
        if (row.annex == annex)
            return QString::fromLatin1(row.word);
    }
    return QString();
}

QString wordOf(AspRfc2684Encapsulation encapsulation)
{
    switch (encapsulation) {
    case AspRfc2684Llc:
        return QStringLiteral("LLC");
    case AspRfc2684VcMux:
        return QStringLiteral("VCMUX");
    default:
        return QString();
    }
}

/// Reads what is named, one entity at a time.
class Reader
{
public:
    Reader(Gateway& gateway, AspAdslSettingsFacade& facade) : gateway(gateway), facade(facade) {}

    /// A record of an entity; a fresh one if the entity has no name.
    template <typename Result>
    Result read(Result (AspAdslSettingsFacade::*getter)(const QString&, AspWebAppErrorCodes&),
                const QString& instance)
    {
        if (instance.isEmpty())
            return Result();
        return gateway.ask(QLatin1String("read ") + instance,
                           [&](auto& error) { return (facade.*getter)(instance, error); });
    }

private:
    Gateway& gateway;
    AspAdslSettingsFacade& facade;
};

using F = AspAdslSettingsFacade;

void readLine(Connection& connection, bool withState, Reader& reader)
{
    AspAdslSettings& settings = connection.settings;
    settings.pvcSettings = reader.read(&F::getPvcSettings, settings.pvcInstance);
    const QString& dsl = connection.dslInstance;
    connection.supportedAnnexMode = wordOf(reader.read(&F::getSupportedAnnexMode, dsl));
    connection.currentAnnexMode = wordOf(reader.read(&F::getCurrentAnnexMode, dsl));
    if (!withState)
        return;
    connection.dslStatus = reader.read(&F::getDslState, dsl);
    const QString& rfc2684 = settings.rfc2684Instance;
    if (!rfc2684.isEmpty())
        connection.encapsulation = wordOf(reader.read(&F::getRfc2684Encapsulation, rfc2684));
}

/// The only instance of a manager; empty if it has none or several.
QString onlyInstance(Gateway& gateway, const QString& manager)
{
    const QStringList instances = gateway.instancesOf(manager);
    return instances.size() == 1 ? instances.first() : QString();
}

} // namespace

AspAnnexMode annexNamed(const QString& word)
{
    for (const auto& row : annexWords) {
        if (word == QLatin1String(row.word))
            return row.annex;
    }
    return AspAnnexUnknown;
}

void nameEntities(Connection& connection, int parts, Gateway& gateway)
{
    const AspWanDetails& details = connection.wan;
    AspAdslSettings& settings = connection.settings;
    const struct {
        QString& name;
        QString found;
    } entities[] = {{settings.pppoxInstance, details.pppoxInstance},
                    {settings.rfc2684Instance, details.rfc2684Instance},
                    {settings.pvcInstance, details.pvcInstance},
                    {settings.staticInstance, details.staticInstance},
                    {settings.wanVlanInstance, details.wanVlanInstance},
                    {settings.dhcpcInstance, details.dhcpcInstance},
                    {settings.vpnInstance, details.vpnInstances.value(0)}};
    for (const auto& entity : entities) {
        if (entity.name.isEmpty())
            entity.name = entity.found;
    }
    if (parts & L2tp && settings.l2tpInstance.isEmpty() && gateway.object().hasL2tp())
        settings.l2tpInstance = onlyInstance(gateway, QStringLiteral("l2tp"));
}

void readConnection(Connection& connection, int parts, bool withState, Gateway& gateway,
                    AspAdslSettingsFacade& facade)
{
    Reader reader(gateway, facade);
    AspAdslSettings& settings = connection.settings;
    if (parts & (Ppp | PppType))
        settings.pppoxSettings = reader.read(&F::getPppoxSettings, settings.pppoxInstance);
    if (parts & Ppp && withState)
        connection.pppoxState = reader.read(&F::getPppoxState, settings.pppoxInstance);
    if (parts & Vpn)
        settings.vpnSettings = reader.read(&F::getVpnSettings, settings.vpnInstance);
    if (parts & L2tp)
        settings.l2tpSettings = reader.read(&F::getVpnSettings, settings.l2tpInstance);
    if (parts & DhcpClient && withState)
        settings.dhcpSettings = reader.read(&F::getDhcpSettings, settings.dhcpcInstance);
    if (parts & Addresses)
        settings.staticSettings = reader.read(&F::getStaticSettings, settings.staticInstance);
    if (parts & Vlan)
        settings.wanVlanSettings = reader.read(&F::getWanVlanSettings, settings.wanVlanInstance);
    if (parts & Line)
        readLine(connection, withState, reader);
}

} // namespace quorvelctl
