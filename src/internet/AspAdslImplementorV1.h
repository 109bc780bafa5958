#pragma once

#include "internet/AdslSettingsImplementor.h"

namespace quorvel
{

/// The connection objects that all gateways with the web application have.
class AspAdslImplementorV1 : public AdslSettingsImplementor
{
public:
    bool getUsernameExtension(ParamMap& result) override;
    bool getPppoxSettings(const QString& instance, ParamMap& result) override;
    bool getPppoxState(const QString& instance, ParamMap& result) override;
    bool getPvcSettings(const QString& instance, ParamMap& result) override;
    bool getDslState(const QString& instance, ParamMap& result) override;
    bool getSupportedAnnexMode(const QString& instance, ParamMap& result) override;
    bool getCurrentAnnexMode(const QString& instance, ParamMap& result) override;
    bool getVpnSettings(const QString& instance, ParamMap& result) override;
    bool getDhcpSettings(const QString& instance, ParamMap& result) override;
    bool getStaticSettings(const QString& instance, ParamMap& result) override;
    bool getWanVlanSettings(const QString& instance, ParamMap& result) override;
    bool getRfc2684Encapsulation(const QString& instance, ParamMap& result) override;
    bool getRfc2684VdslSupport(const QString& instance, ParamMap& result) override;
    bool setAdslSettings(const QString& wanInstance, const QString& dslInstance,
                         const ParamMap& settings, ParamMap& result) override;
    bool setEthSettings(const QString& wanInstance, const ParamMap& settings,
                        ParamMap& result) override;
};

} // namespace quorvel
