#pragma once

#include "wireless/AspWirelessImplementor.h"

namespace quorvel
{

/// Radios of the older generation: a core, "wireless_core-0", and its one access point,
/// "wireless_ap-0". Most operations ask these two, whatever instance they are given.
class AspWirelessImplementorV1 : public AspWirelessImplementor
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
    static CommandList write(const ParamMap& settings);
};

} // namespace quorvel
