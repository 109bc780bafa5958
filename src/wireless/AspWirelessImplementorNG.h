#pragma once

#include "wireless/AspWirelessImplementor.h"

namespace quorvel
{

/// Radios of the newer generation: one instance each, which `manager` or `entity` names. An access
/// point is a prefix on its keys.
class AspWirelessImplementorNG : public AspWirelessImplementor
{
public:
    bool checkWirelessStatus(ParamMap& result, const QString& entity) override;
    bool getWpsRole(ParamMap& result, const QString& entity) override;
    bool isSecurityProxyEnabled(ParamMap& result, const QString& entity) override;
    bool getWirelessSettings(const QString& ap, const QString& manager, ParamMap& result) override;
    bool setWirelessSettings(const ParamMap& settings, const QString& manager,
                             ParamMap& result) override;
    QString getWirelessSettingsQuery(const ParamMap& settings, const QString& ap,
                                     const QString& manager, ParamMap& result) override;
    bool getWirelessMeshInstances(ParamMap& result) override;
    bool getWirelessMeshInstanceInfo(const QString& instance, const QString& manager,
                                     ParamMap& result) override;
    bool getWirelessSecurityMode(const QString& ap, const QString& manager,
                                 ParamMap& result) override;
    bool getWirelessCapabilities(ParamMap& result, const QString& manager) override;
    bool getTxMode(ParamMap& result, const QString& manager) override;

private:
    static CommandList write(const ParamMap& settings, const QString& prefix,
                             const QString& manager);
};

} // namespace quorvel
