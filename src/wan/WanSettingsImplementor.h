#pragma once

#include "protocol/CpeSettingsImplementor.h"

#include <QList>

namespace quorvel
{

/// Requests of the gateway's WAN objects.
class WanSettingsImplementor : public CpeSettingsImplementor
{
public:
    virtual bool getWanDslList(QList<QString>& dslWans, QList<QString>& ethWans,
                               ParamMap& result) = 0;
    virtual bool getWanInstances(ParamMap& result) = 0;
    virtual bool getDefaultGwStatus(const QString& instance, ParamMap& result) = 0;
    virtual bool getWanL2Type(const QString& wan, ParamMap& result) = 0;
    virtual bool getWanEthLinkStatus(const QString& instance, ParamMap& result) = 0;
    virtual bool getWanDslLinkStatus(const QString& instance, ParamMap& result) = 0;
    virtual bool getDefaultWan(const QString& instance, ParamMap& result) = 0;
    virtual bool getAliasDefaultWan(const QString& instance, ParamMap& result) = 0;
    virtual bool get3GWan(QString& wan, ParamMap& result) = 0;
    virtual bool getWanDetails(const QString& wan, ParamMap& result) = 0;
    virtual bool getSupportedLinkTypes(const QString& wan, const QString& kind,
                                       ParamMap& result) = 0;
    virtual bool getInternetConnectionStatus(const QString& instance, ParamMap& result) = 0;
    virtual bool addEntity(const QString& wan, const QString& entityType, ParamMap& result) = 0;
    virtual bool deleteEntity(const QString& wan, const QString& entityType, ParamMap& result) = 0;
    virtual bool addIface(const QString& wan, const QString& iface, ParamMap& result) = 0;
    virtual bool deleteIface(const QString& wan, const QString& iface, ParamMap& result) = 0;
    virtual bool enableWan(const QString& wan, ParamMap& result) = 0;
    virtual bool disableWan(const QString& wan, ParamMap& result) = 0;
    virtual bool setLinkType(const QString& wan, const QString& linkType, ParamMap& result) = 0;
    virtual bool switchConnectionType(const QList<QString>& enable, const QList<QString>& disable,
                                      const QString& defaultGw, ParamMap& result) = 0;
    virtual bool get3GSettings(const QString& wan, const QString& settingsInstance,
                               ParamMap& result) = 0;
    virtual bool set3GSettings(const QString& wan, const QString& settingsInstance,
                               const ParamMap& settings, ParamMap& result) = 0;
};

} // namespace quorvel
