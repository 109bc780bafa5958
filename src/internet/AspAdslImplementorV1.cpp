#include "internet/AspAdslImplementorV1.h"

#include "internet/ConnectionCommands.h"
#include "internet/InternetKeys.h"

#include <QMutexLocker>

namespace quorvel
{

using namespace wire;

bool AspAdslImplementorV1::getUsernameExtension(ParamMap& result)
{
    return run({query(webui0, usernameExtension)}, result);
}

bool AspAdslImplementorV1::getPppoxSettings(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {settings}), result);
}

bool AspAdslImplementorV1::getPppoxState(const QString& instance, ParamMap& result)
{
    return run({query(instance, pppState)}, result);
}

bool AspAdslImplementorV1::getPvcSettings(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {vpi, vci, trafficClass, pcr, scr, mbs, vlanid}), result);
}

bool AspAdslImplementorV1::getDslState(const QString& instance, ParamMap& result)
{
    return run({query(instance, dslStatus)}, result);
}

bool AspAdslImplementorV1::getSupportedAnnexMode(const QString& instance, ParamMap& result)
{
    return run({query(instance, annexes)}, result);
}

bool AspAdslImplementorV1::getCurrentAnnexMode(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {annex}), result);
}

bool AspAdslImplementorV1::getVpnSettings(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {tunnelServer, tunnelUsername, tunnelPassword, type}),
               result);
}

bool AspAdslImplementorV1::getDhcpSettings(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {localip, netmask}), result);
}

bool AspAdslImplementorV1::getStaticSettings(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {settings}), result);
}

bool AspAdslImplementorV1::getWanVlanSettings(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {vlanName, vlanPort, vlanid}), result);
}

bool AspAdslImplementorV1::getRfc2684Encapsulation(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {encaps}), result);
}

bool AspAdslImplementorV1::getRfc2684VdslSupport(const QString&, ParamMap& result)
{
    // Asked of the first instance whatever the caller names, on purpose.
    return run({query(rfc26840, vdslSupport)}, result);
}

bool AspAdslImplementorV1::setAdslSettings(const QString& wanInstance, const QString& dslInstance,
                                           const ParamMap& settings, ParamMap& result)
{
    QMutexLocker locker(&mutex);
    const Connection connection(wanInstance, dslInstance, settings);
    // Refused before the queue is touched.
    if (connection.type.isEmpty())
        return false;
    return send(commandsOverDsl(connection), result);
}

bool AspAdslImplementorV1::setEthSettings(const QString& wanInstance, const ParamMap& settings,
                                          ParamMap& result)
{
    QMutexLocker locker(&mutex);
    // Unlike over DSL, a refused write too leaves the queue empty.
    getRequestFormatter()->clearCommands();
    const Connection connection(wanInstance, QString(), settings);
    if (connection.type.isEmpty())
        return false;
    return send(commandsOverEthernet(connection), result);
}

} // namespace quorvel
