#pragma once

#include "general/GeneralSettingsImplementor.h"

namespace quorvel
{

/// The general settings of gateways with the web application, whatever their dialect.
class AspGeneralSettingsImplV1 : public GeneralSettingsImplementor
{
public:
    bool getStaticClientList(const QString& instance, ParamMap& result) override;
    bool getDynamicClientList(const QString& instance, ParamMap& result) override;
    bool getEthMacAddress(ParamMap& result) override;
    bool getDslMacAddress(ParamMap& result) override;
    bool getWlanMacAddress(ParamMap& result) override;
    bool getFirmwareVersion(ParamMap& result) override;
    bool getModelName(ParamMap& result) override;
    bool getRouterMode(ParamMap& result) override;
    bool getSerialNumber(ParamMap& result) override;
    bool checkSession(const QString& session, ParamMap& result) override;
    bool deleteSession(ParamMap& result) override;
    bool setCpeInternetModeAp2Router(const QString& mode, ParamMap& result) override;
    bool setCpePassword(const QString& password, ParamMap& result) override;
    bool checkCpePassword(const QString& password, ParamMap& result) override;
    bool isRebootRequired(ParamMap& result) override;
    bool getRebootDuration(ParamMap& result) override;
    bool getFwUpgradeDuration(ParamMap& result) override;
    bool factoryDefault(ParamMap& result) override;
    bool rebootCpe(ParamMap& result) override;
    bool getDefaultGw(const QString& routeInstance, ParamMap& result) override;
    bool setDefaultGw(const QString& routeInstance, const QString& wanInstance,
                      ParamMap& result) override;
    bool getManagerList(ParamMap& result) override;
    bool getWirelessCoreList(ParamMap& result) override;
    bool getManagerInstanceList(const QString& manager, ParamMap& result) override;
    bool queryParameter(const QString& manager, const QString& parameter, const QString& value,
                        ParamMap& result) override;
    bool getWarrantyInformation(ParamMap& result) override;
    bool setWarrantyInformation(const ParamMap& values, ParamMap& result) override;
};

} // namespace quorvel
