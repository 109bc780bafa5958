#pragma once

#include "wan/WanSettingsImplementor.h"

namespace quorvel
{

/// What both WAN models share: everything but the key of the link type.
class AspWanSettingsImplementor : public WanSettingsImplementor
{
public:
    bool getWanDslList(QList<QString>& dslWans, QList<QString>& ethWans, ParamMap& result) override;
    bool getWanInstances(ParamMap& result) override;
    bool getDefaultGwStatus(const QString& instance, ParamMap& result) override;
    bool getWanL2Type(const QString& wan, ParamMap& result) override;
    bool getWanEthLinkStatus(const QString& instance, ParamMap& result) override;
    bool getWanDslLinkStatus(const QString& instance, ParamMap& result) override;
    bool getDefaultWan(const QString& instance, ParamMap& result) override;
    bool getAliasDefaultWan(const QString& instance, ParamMap& result) override;
    bool get3GWan(QString& wan, ParamMap& result) override;
    bool getWanDetails(const QString& wan, ParamMap& result) override;
    bool getSupportedLinkTypes(const QString& wan, const QString& kind, ParamMap& result) override;
    bool getInternetConnectionStatus(const QString& instance, ParamMap& result) override;
    bool addEntity(const QString& wan, const QString& entityType, ParamMap& result) override;
    bool deleteEntity(const QString& wan, const QString& entityType, ParamMap& result) override;
    bool addIface(const QString& wan, const QString& iface, ParamMap& result) override;
    bool deleteIface(const QString& wan, const QString& iface, ParamMap& result) override;
    bool enableWan(const QString& wan, ParamMap& result) override;
    bool disableWan(const QString& wan, ParamMap& result) override;
    bool switchConnectionType(const QList<QString>& enable, const QList<QString>& disable,
                              const QString& defaultGw, ParamMap& result) override;
    bool get3GSettings(const QString& wan, const QString& settingsInstance,
                       ParamMap& result) override;
    bool set3GSettings(const QString& wan, const QString& settingsInstance,
                       const ParamMap& settings, ParamMap& result) override;

protected:
    /// A write that is applied before it is saved, as both models write the link type.
    bool writeLinkType(const QString& wan, const QString& key, const QString& linkType,
                       ParamMap& result);

private:
    bool writeAndSave(const QString& wan, const QString& key, const QString& value,
                      ParamMap& result);
    bool readLayer2Types(QList<QString>& wans, ParamMap& result);
};

} // namespace quorvel
