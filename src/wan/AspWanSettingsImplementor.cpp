#include "wan/AspWanSettingsImplementor.h"

#include "protocol/AspResponseParser3g.h"
#include "wan/WanKeys.h"

#include <QMutexLocker>
#include <boost/make_shared.hpp>

namespace quorvel
{

using namespace wire;

namespace
{

QString layer2Type(const QString& wan, const ParamMap& result)
{
    return result.value(wan + QLatin1Char('.') + l2type);
}

bool isSameWord(const QString& text, QLatin1String word)
{
    return text.compare(word, Qt::CaseInsensitive) == 0;
}

QString entityName(const QString& entityType, const QString& instance)
{
    return entityType + QLatin1Char(':') + instance;
}

} // namespace

bool AspWanSettingsImplementor::getWanInstances(ParamMap& result)
{
    return run({query(devmgr0, instList, wire::wan)}, result);
}

bool AspWanSettingsImplementor::getWanL2Type(const QString& wan, ParamMap& result)
{
    return run(readTransaction(wan, {l2type}), result);
}

bool AspWanSettingsImplementor::getWanEthLinkStatus(const QString& instance, ParamMap& result)
{
    return run({query(instance, linkstate)}, result);
}

bool AspWanSettingsImplementor::getWanDslLinkStatus(const QString& instance, ParamMap& result)
{
    return run({query(instance, dslLinkStatus)}, result);
}

bool AspWanSettingsImplementor::getDefaultWan(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {wire::defaultGw}), result);
}

bool AspWanSettingsImplementor::getAliasDefaultWan(const QString& instance, ParamMap& result)
{
    return run(readTransaction(instance, {aliasDefaultGw}), result);
}

bool AspWanSettingsImplementor::getWanDetails(const QString& wan, ParamMap& result)
{
    return run({begin(wan), get(wan, type), get(wan, l2type), get(wan, enabled), get(wan, entities),
                query(wan, isconnected), query(wan, localip), end(wan)},
               result);
}

bool AspWanSettingsImplementor::getSupportedLinkTypes(const QString& wan, const QString& kind,
                                                      ParamMap& result)
{
    return run({query(wan, supportedLinkTypes, kind)}, result);
}

bool AspWanSettingsImplementor::getInternetConnectionStatus(const QString& instance,
                                                            ParamMap& result)
{
    return run({query(instance, internetConnection)}, result);
}

bool AspWanSettingsImplementor::addIface(const QString& wan, const QString& iface, ParamMap& result)
{
    return writeAndSave(wan, wire::addIface, iface, result);
}

bool AspWanSettingsImplementor::deleteIface(const QString& wan, const QString& iface,
                                            ParamMap& result)
{
    return writeAndSave(wan, delIface, iface, result);
}

bool AspWanSettingsImplementor::enableWan(const QString& wan, ParamMap& result)
{
    return writeAndSave(wan, enabled, QStringLiteral("1"), result);
}

bool AspWanSettingsImplementor::disableWan(const QString& wan, ParamMap& result)
{
    return writeAndSave(wan, enabled, QStringLiteral("0"), result);
}

bool AspWanSettingsImplementor::writeAndSave(const QString& wan, const QString& key,
                                             const QString& value, ParamMap& result)
{
    return run(writeTransaction(wan, {{key, value}}) << save() << apply(wan), result);
}

bool AspWanSettingsImplementor::writeLinkType(const QString& wan, const QString& key,
                                              const QString& linkType, ParamMap& result)
{
    return run(writeTransaction(wan, {{key, linkType}}) << apply(wan) << save(), result);
}

bool AspWanSettingsImplementor::getDefaultGwStatus(const QString& instance, ParamMap& result)
{
    QMutexLocker locker(&mutex);
    // The reply repeats its key, which only this parser keeps apart. The lock keeps every other
    // operation from meeting it.
    const boost::shared_ptr<ResponseParser> usual = getResponseParser();
    setResponseParser(boost::make_shared<AspResponseParser3g>());
    const bool answered = send({query(instance, defGwStatus)}, result);
    setResponseParser(usual);
    return answered;
}

bool AspWanSettingsImplementor::getWanDslList(QList<QString>& dslWans, QList<QString>& ethWans,
                                              ParamMap& result)
{
    QMutexLocker locker(&mutex);
    QList<QString> wans;
    if (!readLayer2Types(wans, result))
        return false;
    for (const QString& wan : qAsConst(wans)) {
        const QString layer2 = layer2Type(wan, result);
        if (isSameWord(layer2, QLatin1String("eth")))
            ethWans.append(wan);
        else if (isSameWord(layer2, QLatin1String("dsl")))
            dslWans.append(wan);
    }
    return true;
}

bool AspWanSettingsImplementor::get3GWan(QString& wan, ParamMap& result)
{
    QMutexLocker locker(&mutex);
    QList<QString> wans;
    if (!readLayer2Types(wans, result))
        return false;
    for (const QString& candidate : qAsConst(wans)) {
        if (isSameWord(layer2Type(candidate, result), serial)) {
            wan = candidate;
            break;
        }
    }
    return true;
}

bool AspWanSettingsImplementor::readLayer2Types(QList<QString>& wans, ParamMap& result)
{
    if (!send({query(devmgr0, instList, wire::wan)}, result))
        return false;
    CommandList reads;
    // The bound counts status entries too, so it is never too low; numbers without an entry are
    // passed over.
    const int bound = result.size();
    for (int i = 0; i < bound; ++i) {
        const QString wan = result.value(QStringLiteral("devmgr-0.wan%1").arg(i));
        if (wan.isEmpty())
            continue;
        wans.append(wan);
        reads << readTransaction(wan, {l2type});
    }
    return send(reads, result);
}

bool AspWanSettingsImplementor::addEntity(const QString& wan, const QString& entityType,
                                          ParamMap& result)
{
    QMutexLocker locker(&mutex);
    if (!send({command(devmgr0, createInst, entityType)}, result))
        return false;
    const QString created = result.value(QLatin1String("devmgr-0.create_inst.") + entityType);
    // A gateway holds a transaction open on what it has just created, so none is begun there.
    CommandList commands{set(created, enabled, QStringLiteral("1")), commit(created), end(created),
                         command(devmgr0, startInst, created)};
    commands << writeTransaction(wan, {{wire::addEntity, entityName(entityType, created)}})
             << save() << apply(created) << apply(wan);
    return send(commands, result);
}

bool AspWanSettingsImplementor::deleteEntity(const QString& wan, const QString& entityType,
                                             ParamMap& result)
{
    // Asked before locking, because it locks itself.
    ParamMap details;
    if (!getWanDetails(wan, details))
        return false;
    const QString old = details.value(wan + QLatin1String(".entities.") + entityType);
    CommandList commands{command(devmgr0, stopInst, old), command(devmgr0, deleteInst, old)};
    commands << writeTransaction(wan, {{wire::deleteEntity, entityName(entityType, old)}}) << save()
             << apply(wan);
    return run(commands, result);
}

bool AspWanSettingsImplementor::switchConnectionType(const QList<QString>& enable,
                                                     const QList<QString>& disable,
                                                     const QString& defaultGw, ParamMap& result)
{
    CommandList commands = writeTransaction(route0, {{wire::defaultGw, defaultGw}});
    commands << command(route0, applyDefaultGw);
    for (const QString& wan : enable)
        commands << writeTransaction(wan, {{enabled, QStringLiteral("1")}}) << apply(wan);
    for (const QString& wan : disable)
        commands << writeTransaction(wan, {{enabled, QStringLiteral("0")}}) << apply(wan);
    // Not saved, unlike every other write: the switch lasts until the gateway restarts.
    return run(commands, result);
}

bool AspWanSettingsImplementor::get3GSettings(const QString& wan, const QString& settingsInstance,
                                              ParamMap& result)
{
    CommandList commands =
        readTransaction(wan, {simpinStatus, active, apn, pin, puk, imei, roaming, mobileOperator,
                              connectionMode, signalStrength, prefmode, prefmodelist});
    commands << readTransaction(settingsInstance, {settings});
    return run(commands, result);
}

bool AspWanSettingsImplementor::set3GSettings(const QString& wan, const QString& settingsInstance,
                                              const ParamMap& settings, ParamMap& result)
{
    const auto given = [&settings](const QString& instance, QLatin1String key) {
        return std::make_pair(QString(key), settings.value(instance + QLatin1Char('.') + key));
    };
    CommandList commands = writeTransaction(
        wan, {given(wan, pin), given(wan, puk), given(wan, apn), given(wan, prefmode)});
    commands << writeTransaction(settingsInstance, {given(settingsInstance, force3g)}) << save()
             << apply(wan) << apply(settingsInstance);
    return run(commands, result);
}

} // namespace quorvel
